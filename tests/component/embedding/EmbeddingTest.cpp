#include "PartnerProcess.h"
#include "support/PointerAndKeys.h"
#include "support/PrivateDisplay.h"
#include "support/TestDataRoot.h"
#include "support/WaitUntil.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using Area = PointerAndKeys::Area;
using Window = PointerAndKeys::Window;

/// One of the worlds that everything has to work in.
struct Surroundings
{
    const char* name;
    PrivateDisplay::WindowManager manager;
    const char* scale;
};

void PrintTo(const Surroundings& surroundings, std::ostream* out)
{
    *out << surroundings.name;
}

/// A guest program's window in a host program's tab, both real, on a display of their own.
class Embedding : public testing::TestWithParam<Surroundings>
{
protected:
    Embedding()
    {
        m_hostWindow = m_host.AwaitWindow();
        m_guestWindow = m_guest.AwaitWindow();
        EXPECT_TRUE(WaitUntil([&] { return m_user.IsViewable(m_hostWindow); }));
        EmbedAndShow(m_host, m_guest, m_guestWindow);
    }

    ~Embedding() override
    {
        EXPECT_EQ(m_host.Complaints(), "");
        EXPECT_EQ(m_guest.Complaints(), "");
    }

    /// Returns when both programs know where the guest is on the screen: only then are there places to click.
    void EmbedAndShow(PartnerProcess& host, PartnerProcess& guest, Window window)
    {
        host.Tell(QString("embed %1").arg(window));
        EXPECT_EQ(host.Await("embedded "), "1");
        guest.Tell("show");
        EXPECT_TRUE(WaitUntil([&] { return Fits(host, guest, window); }))
            << "viewable " << m_user.IsViewable(window) << ", at " << Text(m_user.AreaOf(window)) << " in "
            << Text(m_user.AreaOf(m_user.HolderOf(window))) << ", container at "
            << Text(PlaceOf(host, "container")) << ", guest knows " << Text(PlaceOf(guest, "page"));
    }

    /// The guest is seen and covers exactly the window around it, and this the container; and its program
    /// knows.
    bool Fits(PartnerProcess& host, PartnerProcess& guest, Window window)
    {
        const auto area = m_user.AreaOf(window);
        const Window holder = m_user.HolderOf(window);
        return holder != 0 && m_user.IsViewable(window) && area && area == m_user.AreaOf(holder) &&
               Near(area, PlaceOf(host, "container")) && Near(area, PlaceOf(guest, "page"));
    }

    bool Fits() { return Fits(m_host, m_guest, m_guestWindow); }

    /// Scaled lengths are rounded, and Qt is a pixel wrong about a native child's place in tabs.
    static bool Near(const std::optional<Area>& one, const std::optional<Area>& other)
    {
        return one && other && std::abs(one->x - other->x) <= 2 && std::abs(one->y - other->y) <= 2 &&
               std::abs(one->width - other->width) <= 1 && std::abs(one->height - other->height) <= 1;
    }

    /// Where a program believes that its widget is on the screen.
    static std::optional<Area> PlaceOf(PartnerProcess& program, const QString& widget)
    {
        program.Tell("place " + widget);
        const QStringList numbers = program.Await("place ").split(' ');
        if (numbers.size() != 4)
            return std::nullopt;
        return Area{numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt()};
    }

    void ClickOn(PartnerProcess& program, const QString& widget)
    {
        const auto place = PlaceOf(program, widget);
        ASSERT_TRUE(place);
        m_user.Click(place->x + place->width / 2, place->y + place->height / 2);
    }

    void ClickInGuest(const QString& widget) { ClickOn(m_guest, widget); }

    /// The widget that a program shows as focused.
    static QString FocusOf(PartnerProcess& program)
    {
        program.Tell("focus");
        return program.Await("focus ");
    }
    static bool HasFocusedLine(PartnerProcess& program) { return FocusOf(program) == "edit"; }

    /// Returns when the program has seen the click and has the keyboard: a window manager passes clicks on
    /// later than keys.
    void ClickInLine(PartnerProcess& program, Window top)
    {
        ClickOn(program, "edit");
        program.Await("pressed");
        EXPECT_TRUE(WaitUntil([&] { return m_user.Focused() == top; }));
    }

    /// Types into the guest's line, after a click there.
    void ExpectGuestTakesKeys(const std::string& text)
    {
        ClickInLine(m_guest, m_guestWindow);
        m_user.Type(text);
        m_guest.Await("text " + QString::fromStdString(text));
    }

    /// A modal dialog; it has the keyboard.
    Window OpenDialogInGuest(const char* parent)
    {
        m_guest.Tell(QString("dialog ") + parent);
        const Window dialog = m_guest.AwaitWindow();
        EXPECT_TRUE(WaitUntil([&] { return m_user.Focused() == dialog && FocusOf(m_guest) == "answer"; }));
        return dialog;
    }

    void ExpectPopupAt(const QString& widget)
    {
        const auto place = PlaceOf(m_guest, widget);
        ClickInGuest(widget);
        ASSERT_TRUE(WaitUntil([&] { return m_user.Popups().size() == 1; }));
        const Window popup = m_user.Popups().front();
        EXPECT_TRUE(WaitUntil([&] { return place && IsBeside(m_user.AreaOf(popup), *place); }))
            << GetParam().name << ": popup of " << widget.toStdString() << " at "
            << Text(m_user.AreaOf(popup)) << ", not at " << Text(place);
        m_user.Press(PointerAndKeys::Escape);
        EXPECT_TRUE(WaitUntil([&] { return m_user.Popups().empty(); }));
    }

    TestDataRoot m_root;
    PrivateDisplay m_display{GetParam().manager};
    PointerAndKeys m_user{m_display.Name()};
    PartnerProcess m_host{"host", GetParam().scale};
    PartnerProcess m_guest{"guest", GetParam().scale};
    Window m_hostWindow = 0;
    Window m_guestWindow = 0;
};

TEST_P(Embedding, KeysGoWhereTheUserClicked)
{
    ClickInGuest("button");
    m_guest.Await("clicked");
    ExpectGuestTakesKeys("guest");

    ClickInLine(m_host, m_hostWindow);
    m_user.Type("host");
    m_host.Await("text host");

    ClickInLine(m_guest, m_guestWindow);
    m_user.Type("2");
    EXPECT_TRUE(m_guest.Await("text ").endsWith('2'));
    EXPECT_EQ(m_host.Count("text "), 4);
    EXPECT_EQ(m_guest.Count("text "), 6);
}

TEST_P(Embedding, OnlyTheClickedOneLooksFocused)
{
    for (int round = 0; round < 2; ++round) {
        ClickInLine(m_host, m_hostWindow);
        EXPECT_TRUE(WaitUntil([&] { return HasFocusedLine(m_host) && !HasFocusedLine(m_guest); }));
        ClickInLine(m_guest, m_guestWindow);
        EXPECT_TRUE(WaitUntil([&] { return HasFocusedLine(m_guest) && !HasFocusedLine(m_host); }));
    }
}

TEST_P(Embedding, KeysMeantForTheHostReachItWithThePointerOverTheGuest)
{
    ClickInLine(m_host, m_hostWindow);
    const auto guest = m_user.AreaOf(m_guestWindow);
    m_user.MoveTo(guest->x + guest->width / 2, guest->y + guest->height / 2);
    m_user.Type("host");
    m_host.Await("text host");
    EXPECT_EQ(m_guest.Count("text "), 0);
}

TEST_P(Embedding, PopupsOpenAtTheirWidgetsWhereverTheHostIs)
{
    ExpectPopupAt("combo");
    const auto before = m_user.AreaOf(m_guestWindow);
    m_host.Tell("move 230 170");
    ASSERT_TRUE(WaitUntil([&] { return m_user.AreaOf(m_guestWindow)->x > before->x && Fits(); }));
    ExpectPopupAt("combo");
    ExpectPopupAt("menu");
    m_host.Tell("tab 1");
    m_host.Tell("move 20 40");
    ASSERT_TRUE(WaitUntil([&] { return !m_user.IsViewable(m_guestWindow); }));
    m_host.Tell("tab 0");
    ASSERT_TRUE(WaitUntil([&] { return Fits(); }));
    ExpectPopupAt("menu");
}

TEST_P(Embedding, ADialogOfTheGuestStaysAboveTheHostAndGivesTheKeyboardBack)
{
    for (const char* parent : {"page", "none"}) {
        ExpectGuestTakesKeys("a");
        const Window dialog = OpenDialogInGuest(parent);
        m_user.Press(PointerAndKeys::Escape);
        ASSERT_TRUE(WaitUntil([&] { return !m_user.IsViewable(dialog); }));
        EXPECT_TRUE(WaitUntil([&] { return m_user.Focused() == m_guestWindow; })) << parent;
        m_user.Press(PointerAndKeys::BackSpace);
        m_guest.Await("text ");

        const Window covered = OpenDialogInGuest(parent);
        ClickOn(m_host, "edit");
        m_host.Await("pressed");
        EXPECT_TRUE(m_user.IsAbove(covered, m_hostWindow)) << parent;
        m_guest.Tell("close");
        ASSERT_TRUE(WaitUntil([&] { return !m_user.IsViewable(covered); }));
    }
}

TEST_P(Embedding, TheGuestIsAlwaysAsLargeAsItsContainer)
{
    for (const char* size : {"420 400", "560 330", "300 300"}) {
        const auto before = m_user.AreaOf(m_guestWindow);
        m_host.Tell(QString("resize ") + size);
        EXPECT_TRUE(WaitUntil([&] { return !(m_user.AreaOf(m_guestWindow) == before) && Fits(); })) << size;
    }
    m_host.Tell("tab 1");
    m_host.Tell("resize 520 400");
    m_host.Tell("tab 0");
    EXPECT_TRUE(WaitUntil([&] { return Fits(); }));
    ExpectPopupAt("combo");
}

TEST_P(Embedding, AGuestSurvivesHidingReleaseAndTheEndOfItsContainer)
{
    m_guest.Tell("hide");
    ASSERT_TRUE(WaitUntil([&] { return !m_user.IsViewable(m_guestWindow); }));
    m_guest.Tell("show");
    ASSERT_TRUE(WaitUntil([&] { return Fits(); }));
    ExpectGuestTakesKeys("a");

    m_host.Tell("release");
    ASSERT_TRUE(WaitUntil([&] { return m_user.HolderOf(m_guestWindow) == 0; }));
    EXPECT_FALSE(m_user.IsViewable(m_guestWindow));
    EmbedAndShow(m_host, m_guest, m_guestWindow);
    m_host.Tell("recreate");
    m_host.Await("recreated");
    EXPECT_FALSE(m_user.IsViewable(m_guestWindow));
    EmbedAndShow(m_host, m_guest, m_guestWindow);
    m_host.Tell("away");
    m_host.Await("back");
    ASSERT_TRUE(WaitUntil([&] { return Fits(); }));
    ClickInGuest("button");
    m_guest.Await("clicked");
    EXPECT_EQ(m_host.Count("guest lost"), 0);
}

TEST_P(Embedding, AGuestThatDiesLeavesItsPlaceToTheNext)
{
    ExpectGuestTakesKeys("a");
    m_guest.Kill();
    m_host.Await("guest lost");
    m_user.Type("host");
    ClickInLine(m_host, m_hostWindow);
    m_user.Type("b");
    m_host.Await("text ");

    PartnerProcess next("guest", GetParam().scale);
    const Window window = next.AwaitWindow();
    EmbedAndShow(m_host, next, window);
    ClickOn(next, "button");
    next.Await("clicked");
    EXPECT_EQ(m_host.Count("guest lost"), 1);
    EXPECT_EQ(next.Complaints(), "");
}

TEST_P(Embedding, AGuestWhoseHostDiesLivesOnAndCanBeEmbeddedAgain)
{
    m_host.Kill();
    m_guest.Await("lost");
    EXPECT_FALSE(m_user.Exists(m_guestWindow));
    m_guest.Tell("window");
    const Window again = m_guest.AwaitWindow();
    EXPECT_TRUE(m_user.Exists(again));
    EXPECT_FALSE(m_user.IsViewable(again));

    PartnerProcess next("host", GetParam().scale);
    const Window host = next.AwaitWindow();
    EmbedAndShow(next, m_guest, again);
    ClickOn(m_guest, "button");
    m_guest.Await("clicked");
    EXPECT_EQ(m_guest.Count("lost"), 1);
    EXPECT_NE(host, 0U);
    EXPECT_EQ(next.Complaints(), "");
}

TEST_P(Embedding, AWindowThatIsNotThereIsRefused)
{
    m_guest.Kill();
    m_host.Await("guest lost");
    for (const Window gone : {m_guestWindow, Window{0}, Window{12345}}) {
        m_host.Tell(QString("embed %1").arg(gone));
        EXPECT_EQ(m_host.Await("embedded "), "0");
    }
    EXPECT_EQ(m_host.Count("log There is no window"), 3);
    EXPECT_EQ(m_host.Count("guest lost"), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Displays, Embedding,
    testing::Values(Surroundings{"bare", PrivateDisplay::WindowManager::None, "1"},
                    Surroundings{"openbox", PrivateDisplay::WindowManager::Openbox, "1"},
                    Surroundings{"openbox, scaled", PrivateDisplay::WindowManager::Openbox, "1.5"},
                    Surroundings{"bare, scaled", PrivateDisplay::WindowManager::None, "2"}));

} // namespace
