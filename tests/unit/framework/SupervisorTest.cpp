#include "framework/core/Supervisor.h"
#include "framework/core/NewestOnly.h"

#include <gmock/gmock.h>

#include <map>
#include <optional>

using framework::ComponentState;
using testing::ElementsAre;
using testing::HasSubstr;
using namespace std::chrono_literals;

namespace {

/// Time that passes only when a test says so.
class FakeTimer : public framework::ITimer
{
public:
    TimePoint Now() const override { return m_now; }
    void After(std::chrono::milliseconds pause, Base::Task task) override
    {
        m_tasks.emplace(m_now + pause, std::move(task));
    }

    void Pass(std::chrono::milliseconds time)
    {
        const TimePoint end = m_now + time;
        while (!m_tasks.empty() && m_tasks.begin()->first <= end) {
            const auto [due, task] = *m_tasks.begin();
            m_tasks.erase(m_tasks.begin());
            m_now = due;
            task();
        }
        m_now = end;
    }

    int Seconds() const { return static_cast<int>(m_now.time_since_epoch() / 1s); }

private:
    TimePoint m_now{};
    std::multimap<TimePoint, Base::Task> m_tasks;
};

/// How a component lives; seconds from its start, never when there are none.
struct Life
{
    std::optional<int> ready;
    std::optional<int> dies;
    bool canStart = true;
    bool endsWhenAsked = true;
};

class World : public framework::IComponentProcess
{
public:
    explicit World(const Life& way)
        : life(way),
          supervisor(*this, timer, [this](ComponentState, const std::string& why) { detail = why; })
    {}

    bool Start(std::string& error) override
    {
        starts.push_back(timer.Seconds());
        error = "no such file";
        if (!life.canStart)
            return false;
        runs = true;
        if (life.ready)
            timer.After(std::chrono::seconds(*life.ready), [this] { JoinAndBeReady(); });
        if (life.dies)
            timer.After(std::chrono::seconds(*life.dies), [this] { End("exit code 1"); });
        return true;
    }
    void AskToEnd() override
    {
        ++asked;
        if (life.endsWhenAsked)
            timer.After(1s, [this] { End("exit code 0"); });
    }
    void Kill() override { End("signal 9"); }

    void JoinAndBeReady()
    {
        supervisor.OnJoined();
        supervisor.OnReady();
    }

    void End(const char* how)
    {
        if (std::exchange(runs, false))
            supervisor.OnExit(how);
    }

    Life life;
    FakeTimer timer;
    std::string detail;
    std::vector<int> starts;
    int asked = 0;
    bool runs = false;
    framework::CSupervisor supervisor;
};

struct Row
{
    const char* name;
    Life life;
    std::vector<int> starts; ///< the seconds of the first starts within 300 s
    ComponentState state;    ///< after them
    const char* detail;
};

const Row kRows[] = {
    {"lives", {1, {}}, {0}, ComponentState::Ready, "is ready"},
    {"dies at once", {{}, 0}, {0, 1, 3, 7, 15}, ComponentState::GivenUp, "is given up"},
    {"cannot be started", {{}, {}, false}, {0, 1, 3, 7, 15}, ComponentState::GivenUp, "no such file"},
    {"dies before it is ready", {{}, 5}, {0, 6, 13, 22, 35}, ComponentState::GivenUp, "exit code 1"},
    {"dies each 20 s",
     {1, 20},
     {0, 21, 43, 67, 95, 131, 167, 203, 239, 275},
     ComponentState::Waiting,
     "16 s"},
    {"is never ready", {{}, {}}, {0, 61, 123, 187, 255}, ComponentState::Starting, "was started"},
    {"dies after a long life", {1, 100}, {0, 101, 202}, ComponentState::Ready, "is ready"},
};

TEST(AComponent, IsStartedAgainWithGrowingPausesAtMostFiveTimesAMinute)
{
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        World world(row.life);
        world.supervisor.Start();
        world.timer.Pass(300s - 1ms);
        EXPECT_EQ(world.starts, row.starts);
        EXPECT_EQ(world.supervisor.State(), row.state) << world.detail;
        EXPECT_THAT(world.detail, HasSubstr(row.detail));
    }
}

TEST(AComponent, ThatIsEndedOnPurposeIsNotStartedAgain)
{
    for (const bool endsWhenAsked : {true, false}) {
        World world({1, {}, true, endsWhenAsked});
        world.supervisor.Start();
        world.timer.Pass(2s);
        world.supervisor.Stop();
        bool isOver = false;
        world.supervisor.Finish([&] { isOver = true; });
        world.supervisor.Start();
        EXPECT_FALSE(isOver);
        EXPECT_EQ(world.supervisor.State(), ComponentState::Stopped);
        world.timer.Pass(endsWhenAsked ? 1s : 4s);
        EXPECT_EQ(isOver, endsWhenAsked);
        world.timer.Pass(100s);
        EXPECT_TRUE(isOver);
        EXPECT_THAT(world.detail,
                    HasSubstr(endsWhenAsked ? "exit code 0" : "signal 9. It did not end in time"));
        EXPECT_THAT(world.starts, ElementsAre(0));
        EXPECT_EQ(world.asked, 1);
    }
}

TEST(AComponent, IsStartedAgainOnceItHasEndedWhenThatIsAskedFor)
{
    World world({1, {}});
    world.supervisor.Start();
    world.timer.Pass(10s);
    world.supervisor.Restart();
    world.supervisor.Restart();
    world.timer.Pass(10s);
    EXPECT_THAT(world.starts, ElementsAre(0, 11));
    EXPECT_EQ(world.supervisor.State(), ComponentState::Ready);
}

TEST(AComponent, ThatWasGivenUpIsStartedByAPersonWithFivePossibilitiesAnew)
{
    World world({{}, 0});
    world.supervisor.Start();
    world.timer.Pass(20s);
    ASSERT_EQ(world.supervisor.State(), ComponentState::GivenUp);
    world.supervisor.Start();
    world.timer.Pass(100s);
    EXPECT_EQ(world.starts.size(), 10u);
}

TEST(AComponent, IsNotStartedFromAPauseThatWasEnded)
{
    World world({{}, 0});
    world.supervisor.Start();
    world.timer.Pass(10s);
    ASSERT_EQ(world.supervisor.State(), ComponentState::Waiting);
    world.supervisor.Stop();
    world.timer.Pass(100s);
    EXPECT_EQ(world.starts.size(), 4u);
}

TEST(AComponent, ThatLeftTheChannelButRunsOnIsKilled)
{
    World world({1, {}});
    world.supervisor.Start();
    world.timer.Pass(2s);
    world.supervisor.OnLeft();
    world.timer.Pass(9s);
    EXPECT_TRUE(world.runs);
    world.timer.Pass(1s);
    EXPECT_FALSE(world.runs);
    EXPECT_EQ(world.supervisor.State(), ComponentState::Waiting);
}

TEST(AComponent, IsNotTakenForTheOneBeforeWhoseLinkIsClosedLate)
{
    World world({5, {}});
    world.supervisor.Start();
    world.timer.Pass(6s);
    world.supervisor.Restart();
    world.timer.Pass(1s);
    ASSERT_EQ(world.starts.size(), 2u);
    world.supervisor.OnReady();
    world.supervisor.OnLeft();
    EXPECT_EQ(world.supervisor.State(), ComponentState::Starting);
    world.timer.Pass(100s);
    EXPECT_EQ(world.starts.size(), 2u);
    EXPECT_EQ(world.supervisor.State(), ComponentState::Ready);
}

TEST(TheNewestValue, IsPassedOnOnceAPeriod)
{
    FakeTimer timer;
    std::vector<int> passed;
    framework::TNewestOnly<int> newest(timer, 50ms, [&](int value) { passed.push_back(value); });
    for (int value = 0; value < 100; ++value) {
        newest.Put(value);
        timer.Pass(1ms);
    }
    timer.Pass(1s);
    EXPECT_THAT(passed, ElementsAre(0, 49, 99));
    newest.Put(100);
    EXPECT_EQ(passed.back(), 100);
}

} // namespace
