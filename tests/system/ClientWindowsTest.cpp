#include "Base/FileUtil.h"
#include "support/WaitUntil.h"
#include "system/ClientRun.h"
#include "system/GalleryModel.h"

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>

using testing::HasSubstr;
using testing::IsEmpty;

namespace {

using Area = PointerAndKeys::Area;
using Manager = PrivateDisplay::WindowManager;
using Window = PointerAndKeys::Window;

const QString kGallery = QStringLiteral("ToolkitGallery");
const QString kMain = QStringLiteral("MainView");
const QStringList kLook = {"--skin", "BlackRedSkin", "--language", "1"};

/// The client with the widget gallery, a page of the component, in a tab.
class ClientTest
{
protected:
    explicit ClientTest(Manager manager, int dpi = 96) : client(manager, dpi) {}

    GalleryModel Gallery(Window page, int language = 1)
    {
        return GalleryModel(client.user.AreaOf(page).value_or(Area{0, 0, 1200, 700}), "BlackRedSkin",
                            language);
    }

    /// The page's counter of clicks shows another number after a click.
    void ExpectClicksCount(const GalleryModel& gallery)
    {
        const Area counter = gallery.Of("galleryClicks");
        const auto before = client.user.PictureOf(counter);
        client.Click(gallery.Of("galleryButton"));
        EXPECT_TRUE(WaitUntil([&] { return client.user.PictureOf(counter) != before; })) << "nothing counted";
    }

    /// Moves and resizes the client's window; returns when it has come to rest. A title bar may shift it.
    void Place(Window page, const Area& place)
    {
        const auto before = client.user.AreaOf(page);
        client.user.Place(client.TopLevel(), place);
        ASSERT_TRUE(WaitUntil([&] {
            const auto now = client.user.AreaOf(page);
            const Area content = client.Item("content");
            return now && !(now == before) && std::abs(now->x - content.x) <= 2 &&
                   std::abs(now->y - content.y) <= 2 && std::abs(now->width - content.width) <= 1 &&
                   std::abs(now->height - content.height) <= 1;
        })) << Text(client.user.AreaOf(page));
    }

    void ExpectPopupBeside(const Area& widget, bool rightToLeft = false)
    {
        client.Click(widget);
        ASSERT_TRUE(WaitUntil([&] { return client.user.Popups().size() == 1; })) << "no popup";
        const auto popup = client.user.AreaOf(client.user.Popups().front());
        EXPECT_TRUE(IsBeside(popup, widget, rightToLeft))
            << "popup at " << Text(popup) << ", widget at " << Text(widget);
        client.user.Press(PointerAndKeys::Escape);
        EXPECT_TRUE(WaitUntil([&] { return client.user.Popups().empty(); }));
    }

    ClientRun client;
};

class Client : public ClientTest, public testing::TestWithParam<Manager>
{
protected:
    Client() : ClientTest(GetParam()) {}
};

class BareClient : public ClientTest, public testing::Test
{
protected:
    BareClient() : ClientTest(Manager::None) {}

    /// A program that is to be started instead of the component.
    QString Script(const std::string& text) const
    {
        const std::string path = client.component.Path() + "component.sh";
        std::ofstream(path) << "#!/bin/sh\n" << text << '\n';
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        return QString::fromStdString(path);
    }

    /// The colour that most of the picture has.
    std::uint32_t Ground(const Area& area) const
    {
        std::map<std::uint32_t, int> counts;
        for (const std::uint32_t pixel : client.user.PictureOf(area))
            ++counts[pixel & RGB_MASK];
        const auto most = std::max_element(counts.begin(), counts.end(),
                                           [](auto& one, auto& other) { return one.second < other.second; });
        return most == counts.end() ? 0 : most->first;
    }

    void ExpectSkin(const QString& skin)
    {
        const Window page = client.OpenTab(kGallery);
        const GalleryModel gallery(*client.user.AreaOf(page), skin);
        Area top = *client.user.AreaOf(page);
        top.height = gallery.Of("galleryButton").y - top.y - 64;
        EXPECT_EQ(Ground(top), gallery.Colour("surface")) << skin.toStdString();
        EXPECT_EQ(Ground(client.Item("ui:navigation")), gallery.Colour("bar")) << skin.toStdString();
        ExpectClicksCount(gallery);
    }
};

TEST_P(Client, TakesClicksAndKeysWhereTheyAreMeant)
{
    client.Start(kLook);
    const Window page = client.OpenTab(kGallery);
    {
        const GalleryModel gallery = Gallery(page);
        ExpectClicksCount(gallery);
        ExpectClicksCount(gallery);
        client.Write(gallery.Of("galleryNameEdit"), page, "guest");
    }
    client.Click("nav:Devices");
    const Area search = client.Item("ui:resourceSearch");
    client.Write(search, client.TopLevel(), "host");
    client.ExpectText(search, client.TopLevel(), "host");

    client.Click("tab:" + kGallery);
    client.AwaitSeen(page);
    client.ExpectText(Gallery(page).Of("galleryNameEdit"), page, "guest");
}

TEST_P(Client, KeepsAPageWhileItsTabIsBehindOrClosed)
{
    client.Start(kLook);
    const Window page = client.OpenTab(kGallery);
    const Window main = client.OpenTab(kMain);
    EXPECT_NE(page, main);
    EXPECT_FALSE(client.user.IsViewable(page));
    client.Click("tab:" + kGallery);
    client.AwaitSeen(page);
    ExpectClicksCount(Gallery(page));

    client.Click(Gallery(page).Of("galleryMenuButton"));
    ASSERT_TRUE(WaitUntil([&] { return !client.user.Popups().empty(); }));
    client.Click("tab:" + kMain);
    EXPECT_TRUE(WaitUntil([&] { return client.user.Popups().empty(); }));
    // An open menu takes the first click for itself.
    client.Click("tab:" + kMain);
    client.AwaitSeen(main);

    client.Click("close:" + kGallery);
    client.Await({{"event", "tab"}, {"name", kGallery}, {"state", "closed"}});
    EXPECT_TRUE(client.component.WaitForLog("Hide Wnd[ToolkitGallery] Success", 10));
    EXPECT_TRUE(client.user.Exists(page));
    EXPECT_EQ(client.OpenTab(kGallery), page);
    ExpectClicksCount(Gallery(page));
}

TEST_P(Client, BringsTheTabsBackWhenTheComponentDies)
{
    client.Start(kLook);
    client.OpenTab(kMain);
    client.OpenTab(kGallery);
    const int first = client.component.ProcessId();
    ::kill(first, SIGKILL);
    const Window page = client.AwaitEmbedded(kGallery, 2);
    client.AwaitSeen(page);
    EXPECT_NE(client.component.ProcessId(), first);
    ExpectClicksCount(Gallery(page));
    EXPECT_THAT(client.component.MissingInOrder({"APP Init Success", "APP Init Success"}), IsEmpty());
    const Window main = client.AwaitEmbedded(kMain, 2);
    client.Click("tab:" + kMain);
    client.AwaitSeen(main);
    EXPECT_FALSE(client.user.IsViewable(page));
}

TEST_P(Client, LeavesNothingBehindWhenKilledAndComesBackAsItWas)
{
    client.Start(kLook);
    client.OpenTab(kMain);
    client.OpenTab(kGallery);
    const auto remembers = [&] {
        std::ifstream file(client.component.Path() + "Framework.C/window.json");
        const std::string text(std::istreambuf_iterator<char>(file), {});
        return text.find("\"currentTab\":\"ToolkitGallery\"") != std::string::npos;
    };
    EXPECT_TRUE(WaitUntil(remembers));
    client.Kill();
    EXPECT_TRUE(client.component.WaitUntilEnded(5));

    client.Start();
    client.AwaitEmbedded(kMain);
    const Window page = client.AwaitEmbedded(kGallery);
    client.AwaitSeen(page);
    ExpectClicksCount(Gallery(page));
}

TEST_P(Client, SwitchesToAUserWhoMaySeeLess)
{
    client.Start(kLook);
    const Window main = client.OpenTab(kMain);
    client.OpenTab(kGallery);
    client.Click("ui:userButton");
    client.Click("menu:actionSwitchUser");
    client.Click("ui:switchUserName");
    ASSERT_TRUE(WaitUntil([&] { return client.user.Popups().size() == 1; }));
    client.user.Type("guest");
    client.user.Press(PointerAndKeys::Return);
    EXPECT_TRUE(WaitUntil([&] { return client.user.Popups().empty(); }));
    client.Click("ui:apply");
    client.Await({{"event", "user"}, {"name", "guest"}});
    client.Await({{"event", "tab"}, {"name", kGallery}, {"state", "closed"}});
    client.AwaitSeen(main);
    EXPECT_TRUE(client.component.WaitForLog("The user is [guest] now, with 1 permissions.", 10));
    EXPECT_THAT(client.component.MissingInOrder({"The user [admin] leaves: the pages stop working.",
                                                 "The user is [guest] now, with 1 permissions."}),
                IsEmpty());
    EXPECT_TRUE(WaitUntil([&] { return !client.HasItem("nav:" + kGallery); }));
    EXPECT_TRUE(client.HasItem("nav:" + kMain));
}

TEST_P(Client, IsMirroredForLanguagesWrittenFromTheRight)
{
    constexpr int kArabic = 34;
    client.Start({"--skin", "BlackRedSkin", "--language", QString::number(kArabic)});
    const Window page = client.OpenTab(kGallery);
    const Area content = *client.user.AreaOf(page);
    EXPECT_GE(client.Item("nav:" + kGallery).x, content.x + content.width);
    const GalleryModel gallery = Gallery(page, kArabic);
    const Area button = gallery.Of("galleryButton");
    EXPECT_GT(button.x, content.x + content.width / 2);
    ExpectClicksCount(gallery);
    ExpectPopupBeside(gallery.Of("galleryMenuButton"), true);
}

// A window manager's Alt+F4 means the window that it manages: the whole client.
TEST_P(Client, ClosesNoPageFromOutside)
{
    client.Start(kLook);
    const Window page = client.OpenTab(kGallery);
    {
        const GalleryModel gallery = Gallery(page);
        client.user.AskToClose(page);
        ExpectClicksCount(gallery);
        client.ClickForKeys(gallery.Of("galleryNameEdit"), page);
        client.user.PressWith(PointerAndKeys::Alt, PointerAndKeys::F4);
        if (GetParam() == Manager::None)
            return ExpectClicksCount(gallery);
    }
    EXPECT_EQ(client.AwaitExit(15), 0);
    EXPECT_TRUE(client.component.WaitUntilEnded(0));
    EXPECT_THAT(client.component.MissingInOrder({"UNInitVantorApplication success"}), IsEmpty());
}

class ScaledClient : public ClientTest, public testing::Test
{
protected:
    ScaledClient() : ClientTest(Manager::Openbox, 144) {}
};

TEST_F(ScaledClient, IsLargerAndTakesClicksWhereItShowsItsWidgets)
{
    client.Start(kLook);
    const Window page = client.OpenTab(kGallery);
    for (const Area& place : {Area{200, 100, 1600, 1050}, {20, 40, 1700, 1000}}) {
        Place(page, place);
        const GalleryModel gallery(*client.user.AreaOf(page), "BlackRedSkin", 1, 1.5);
        ExpectClicksCount(gallery);
        ExpectPopupBeside(gallery.Of("galleryMenuButton"));
    }
}

INSTANTIATE_TEST_SUITE_P(Displays, Client, testing::Values(Manager::None, Manager::Openbox));

TEST_F(BareClient, GivesAComponentUpThatKeepsDyingUntilTheUserStartsIt)
{
    const std::string broken = client.component.Path() + "broken";
    std::ofstream(broken) << "yes";
    const QString program =
        Script("[ ! -e " + broken + " ] || exit 7\nexec " + client.component.Program() + " \"$@\"");
    client.Start(kLook + QStringList{"--component", program, "--open", kGallery});
    client.Await({{"event", "tab"}, {"name", kGallery}, {"state", "given up"}});
    EXPECT_EQ(client.Count({{"event", "component"}, {"state", "starting"}}), 5);
    std::filesystem::remove(broken);
    client.Click("ui:emptyAction");
    const Window page = client.AwaitEmbedded(kGallery);
    client.AwaitSeen(page);
    ExpectClicksCount(Gallery(page));
}

TEST_F(BareClient, WearsEachSkinInBothPrograms)
{
    for (const char* skin : {"GreyRedSkin", "BlueSkin", "NeutralSkin", "BlackRedSkin"}) {
        client.Start({"--skin", skin, "--language", "1"});
        ExpectSkin(skin);
        client.End();
    }
    const auto messages = client.component.LogMessages();
    EXPECT_EQ(std::count(messages.begin(), messages.end(), "success to load VantorGUIToolKitBlackRedSkin."),
              4);
    EXPECT_EQ(std::count(messages.begin(), messages.end(), "success to load ClientCommSkin."), 4);
}

TEST_F(BareClient, StartsWithoutSkinsStyleAndTranslations)
{
    namespace fs = std::filesystem;
    const std::string bin = client.component.Path() + "product/bin/";
    const std::string built = Base::FileUtil::GetCurExeDir();
    fs::create_directories(bin);
    for (const char* part :
         {"Vantor.Framework", "Vantor.Video.C", "libQxNetSDK.so", "maintain", "WidgetLayout"})
        fs::copy(built + part, bin + part, fs::copy_options::recursive);
    client.Start({"--language", "3"}, bin);
    const Window page = client.OpenTab(kGallery);
    EXPECT_THAT(client.component.MissingInOrder(
                    {"fail to load VantorGUIToolKitBlackRedSkin.", "Failed to load ClientCommSkin."}),
                IsEmpty());
    client.Click("tab:Home");
    EXPECT_TRUE(WaitUntil([&] { return !client.user.IsViewable(page); }));
    client.Click("tab:" + kGallery);
    client.AwaitSeen(page);
}

TEST_F(BareClient, WalksThroughEveryTab)
{
    const std::string folder = client.component.Path() + "tour";
    client.Start(kLook + QStringList{"--demonstration", "--tour", QString::fromStdString(folder)});
    EXPECT_EQ(client.AwaitExit(100), 0) << client.component.Output();
    EXPECT_THAT(client.component.Output(), HasSubstr(" steps, 0 failed."));
    const auto pictures = std::distance(std::filesystem::directory_iterator(folder), {});
    EXPECT_GT(pictures, 22) << "tabs alone";
}

TEST_F(BareClient, FailsTheTourSoonWithoutAComponent)
{
    const std::string folder = client.component.Path() + "tour";
    client.Start(kLook +
                 QStringList{"--tour", QString::fromStdString(folder), "--component", "/no/such/program"});
    EXPECT_EQ(client.AwaitExit(40), 1);
    EXPECT_THAT(client.component.Output(), HasSubstr("FAILED  MainView"));
}

} // namespace
