#include "framework/ui/shell/TabSession.h"

#include <gmock/gmock.h>

using namespace framework;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A component and a view that write down in one list what is asked of them.
struct TabSession : testing::Test, IComponentWindows, ITabView
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
    void OpenAndEmbed(quint64 wnd = 7)
    {
        session.Open();
        AnswerLast(ComponentWindow{wnd});
        calls.clear();
    }
};

TEST_F(TabSession, EmbedsBeforeItShows)
{
    session.Open();
    AnswerLast(ComponentWindow{7, false});
    EXPECT_THAT(calls, ElementsAre("ask", "embed 7", "show MainView"));
    EXPECT_EQ(session.State(), TabState::Embedded);
    EXPECT_FALSE(session.IsAvailable());
}

TEST_F(TabSession, GivesTheWindowBackBeforeItTellsTheComponent)
{
    OpenAndEmbed();
    session.Close();
    session.Close();
    EXPECT_THAT(calls, ElementsAre("release", "removed MainView"));
}

TEST_F(TabSession, ComesBackAfterTheComponentWasRestarted)
{
    OpenAndEmbed();
    Enter(ComponentState::Waiting);
    EXPECT_EQ(session.State(), TabState::Ended);
    Enter(ComponentState::Starting);
    EXPECT_EQ(session.State(), TabState::Ended);
    Enter(ComponentState::Ready);
    AnswerLast(ComponentWindow{8});
    EXPECT_THAT(calls, ElementsAre("release", "ask", "embed 8", "show MainView"));
}

TEST_F(TabSession, AsksOnceWhenTheNewsOfTheReadyComponentComesAfterTheTabWasOpened)
{
    session.Open();
    Enter(ComponentState::Ready);
    EXPECT_THAT(calls, ElementsAre("ask"));
}

TEST_F(TabSession, WaitsForAComponentThatIsAboutToStart)
{
    OpenAndEmbed();
    Enter(ComponentState::Stopped);
    EXPECT_EQ(session.State(), TabState::Loading);
    Enter(ComponentState::Starting);
    Enter(ComponentState::Ready);
    EXPECT_THAT(calls, ElementsAre("release", "release", "ask"));
}

TEST_F(TabSession, IgnoresAnswersThatComeTooLate)
{
    session.Open();
    Enter(ComponentState::Waiting);
    Enter(ComponentState::Ready);
    calls.clear();
    questions[0](ComponentWindow{7});
    EXPECT_THAT(calls, IsEmpty());
    session.Close();
    calls.clear();
    questions[1](ComponentWindow{8});
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(TabSession, AnAnswerAfterItsEndIsHarmless)
{
    {
        CTabSession brief("MainView", *this, *this);
        brief.Open();
    }
    AnswerLast(ComponentWindow{7});
    EXPECT_THAT(calls, ElementsAre("ask"));
}

TEST_F(TabSession, OffersAnotherTryWhereThereIsNoWindow)
{
    embeds = false;
    session.Open();
    for (const auto& window : {std::optional<ComponentWindow>(), std::optional(ComponentWindow{7})}) {
        AnswerLast(window);
        EXPECT_EQ(session.State(), TabState::NoWindow);
        session.Retry();
    }
    embeds = true;
    AnswerLast(ComponentWindow{9});
    EXPECT_EQ(session.State(), TabState::Embedded);
}

TEST_F(TabSession, StartsTheComponentThatWasGivenUpWhenTheUserWants)
{
    OpenAndEmbed();
    Enter(ComponentState::GivenUp);
    EXPECT_EQ(session.State(), TabState::GivenUp);
    session.Retry();
    EXPECT_THAT(calls, ElementsAre("release", "start"));
    EXPECT_EQ(session.State(), TabState::Loading);
}

TEST_F(TabSession, AsksAnewWhenTheComponentDestroyedItsWindow)
{
    OpenAndEmbed();
    session.OnGuestLost();
    EXPECT_THAT(calls, ElementsAre("release", "ask"));
}

} // namespace
