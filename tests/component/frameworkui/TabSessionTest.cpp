#include "framework/ui/shell/TabSession.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace framework;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A component and a view that write down in one list what is asked of them.
struct TabWorld : IComponentWindows, ITabView
{
    std::vector<std::string> calls;
    std::vector<Answer> questions;
    ComponentState state = ComponentState::Ready;
    bool embeds = true;
    CTabSession session{"MainView", *this, *this};

    void Ask(const QString&, Answer onAnswer) override
    {
        calls.push_back("ask");
        questions.push_back(std::move(onAnswer));
    }
    void Show(const QString& name) override { calls.push_back("show " + name.toStdString()); }
    void Removed(const QString& name) override { calls.push_back("removed " + name.toStdString()); }
    void Start() override { calls.push_back("start"); }
    ComponentState State() const override { return state; }

    bool Embed(quint64 wnd) override
    {
        calls.push_back("embed " + std::to_string(wnd));
        return embeds;
    }
    void Release() override { calls.push_back("release"); }
    void ShowState(TabState) override {}

    void Enter(ComponentState next)
    {
        state = next;
        session.OnComponentState(next);
    }
    void AnswerLast(std::optional<ComponentWindow> window) { questions.back()(window); }
    void OpenAndEmbed(quint64 wnd)
    {
        session.Open();
        AnswerLast(ComponentWindow{wnd});
        calls.clear();
    }
};

TEST(TabSession, EmbedsBeforeItShows)
{
    TabWorld world;
    world.session.Open();
    world.AnswerLast(ComponentWindow{7, false});
    EXPECT_THAT(world.calls, ElementsAre("ask", "embed 7", "show MainView"));
    EXPECT_EQ(world.session.State(), TabState::Embedded);
    EXPECT_FALSE(world.session.IsAvailable());
}

TEST(TabSession, GivesTheWindowBackBeforeItTellsTheComponent)
{
    TabWorld world;
    world.OpenAndEmbed(7);
    world.session.Close();
    world.session.Close();
    EXPECT_THAT(world.calls, ElementsAre("release", "removed MainView"));
}

TEST(TabSession, ComesBackAfterTheComponentWasRestarted)
{
    TabWorld world;
    world.OpenAndEmbed(7);
    world.Enter(ComponentState::Waiting);
    EXPECT_EQ(world.session.State(), TabState::Ended);
    world.Enter(ComponentState::Starting);
    EXPECT_EQ(world.session.State(), TabState::Ended);
    world.Enter(ComponentState::Ready);
    world.AnswerLast(ComponentWindow{8});
    EXPECT_THAT(world.calls, ElementsAre("release", "ask", "embed 8", "show MainView"));
}

TEST(TabSession, AsksOnceWhenTheNewsOfTheReadyComponentComesAfterTheTabWasOpened)
{
    TabWorld world;
    world.session.Open();
    world.Enter(ComponentState::Ready);
    EXPECT_THAT(world.calls, ElementsAre("ask"));
}

TEST(TabSession, WaitsForAComponentThatIsAboutToStart)
{
    TabWorld world;
    world.OpenAndEmbed(7);
    world.Enter(ComponentState::Stopped);
    EXPECT_EQ(world.session.State(), TabState::Loading);
    world.Enter(ComponentState::Starting);
    world.Enter(ComponentState::Ready);
    EXPECT_THAT(world.calls, ElementsAre("release", "release", "ask"));
}

TEST(TabSession, IgnoresAnswersThatComeTooLate)
{
    TabWorld world;
    world.session.Open();
    world.Enter(ComponentState::Waiting);
    world.Enter(ComponentState::Ready);
    world.calls.clear();
    world.questions[0](ComponentWindow{7});
    EXPECT_THAT(world.calls, IsEmpty());
    world.session.Close();
    world.calls.clear();
    world.questions[1](ComponentWindow{8});
    EXPECT_THAT(world.calls, IsEmpty());
}

TEST(TabSession, AnAnswerAfterItsEndIsHarmless)
{
    IComponentWindows::Answer answer;
    {
        TabWorld world;
        world.session.Open();
        answer = world.questions[0];
    }
    answer(ComponentWindow{7});
}

TEST(TabSession, OffersAnotherTryWhereThereIsNoWindow)
{
    struct Row
    {
        const char* what;
        std::optional<ComponentWindow> window;
        bool embeds;
    };
    for (const Row& row :
         {Row{"no answer", std::nullopt, true}, Row{"not embedded", ComponentWindow{7}, false}}) {
        SCOPED_TRACE(row.what);
        TabWorld world;
        world.embeds = row.embeds;
        world.session.Open();
        world.AnswerLast(row.window);
        EXPECT_EQ(world.session.State(), TabState::NoWindow);
        world.embeds = true;
        world.session.Retry();
        world.AnswerLast(ComponentWindow{9});
        EXPECT_EQ(world.session.State(), TabState::Embedded);
    }
}

TEST(TabSession, StartsTheComponentThatWasGivenUpWhenTheUserWants)
{
    TabWorld world;
    world.OpenAndEmbed(7);
    world.Enter(ComponentState::GivenUp);
    EXPECT_EQ(world.session.State(), TabState::GivenUp);
    world.session.Retry();
    EXPECT_THAT(world.calls, ElementsAre("release", "start"));
    EXPECT_EQ(world.session.State(), TabState::Loading);
}

TEST(TabSession, AsksAnewWhenTheComponentDestroyedItsWindow)
{
    TabWorld world;
    world.OpenAndEmbed(7);
    world.session.OnGuestLost();
    EXPECT_THAT(world.calls, ElementsAre("release", "ask"));
}

} // namespace
