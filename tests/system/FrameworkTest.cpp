#include "framework/core/FrameworkCore.h"
#include "system/ComponentRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <signal.h>

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <future>
#include <mutex>
#include <optional>

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr std::chrono::seconds kPatience{30};

/// Counts how often the component was ready.
class Readiness : public framework::IFrameworkEvents
{
public:
    bool WaitFor(int times)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, kPatience, [&] { return m_times >= times; });
    }

    void OnComponentState(framework::ComponentState state, const std::string&) override
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_times += state == framework::ComponentState::Ready ? 1 : 0;
        m_changed.notify_all();
    }
    void OnResourcesChanged() override {}
    void OnUsersChanged() override {}
    void OnNotice(const framework::JournalEntry&) override {}
    void OnOperation(const framework::JournalEntry&) override {}
    void OnFrameResize(const std::string&, int, int) override {}

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_times = 0;
};

std::optional<std::uint64_t> Window(framework::CFrameworkCore& core, const std::string& name)
{
    std::promise<std::optional<std::uint64_t>> answer;
    core.GetWndHandle(name, [&](std::optional<std::uint64_t> wnd) { answer.set_value(wnd); });
    return answer.get_future().get();
}

TEST(TheFramework, ShowsItsHelpWithoutADisplay)
{
    ComponentRun run;
    const std::string program = std::filesystem::path(run.Program()).replace_filename("Vantor.Framework");
    EXPECT_EQ(run.Shell("env -u DISPLAY " + program + " --help"), 0);
    EXPECT_THAT(run.Output(), HasSubstr("--skin <NAME>"));
}

TEST(TheFramework, RunsTheComponentAndStartsItAgainWhenItDies)
{
    ComponentRun run;
    Readiness events;
    framework::CFrameworkCore core(events,
                                   {run.Path() + "Framework.C", run.Program(), run.Path() + "output"});
    std::string error;
    ASSERT_TRUE(core.Start(error)) << error;
    core.StartComponent();
    ASSERT_TRUE(events.WaitFor(1)) << run.Output();
    EXPECT_TRUE(Window(core, "MainView"));
    EXPECT_TRUE(run.WaitForLog("Register alarm success.", 20));

    const int first = run.ProcessId();
    ASSERT_NE(first, 0);
    ::kill(first, SIGKILL);
    ASSERT_TRUE(events.WaitFor(2)) << run.Output();
    EXPECT_TRUE(Window(core, "MainView"));
    core.Stop();
    EXPECT_EQ(run.ProcessId(), 0);
    EXPECT_THAT(
        run.MissingInOrder({"APP Init Success", "APP Init Success", "UNInitVantorApplication success"}),
        IsEmpty());
    EXPECT_EQ(core.Operations().Entries().back().text, "The component ended with exit code 0.");
}

} // namespace
