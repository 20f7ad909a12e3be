#include "component/framework/CoreWorld.h"

#include "Base/FileUtil.h"
#include "ChildProcess/ChildProcess.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <thread>

namespace {

/// A core that starts fake_component through a script which writes its process number to the file "pid".
class Component : public CoreTest
{
protected:
    Component()
    {
        std::ofstream(Script()) << "#!/bin/sh\necho $$ > '" << root.Path() << "new'\nmv '" << root.Path()
                                << "new' '" << root.Path() << "pid'\nexec '" << FAKE_COMPONENT
                                << "' \"$@\"\n";
        std::filesystem::permissions(Script(), std::filesystem::perms(0700));
    }

    std::string Script() const { return root.Path() + "component"; }

    pid_t Pid() const
    {
        std::string text;
        EXPECT_TRUE(Base::FileUtil::ReadFile(root.Path() + "pid", text));
        return std::stoi(text);
    }

    static bool IsGone(pid_t process)
    {
        // A process that nobody has reaped yet is still listed, but runs no program.
        std::error_code error;
        (void)std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", error);
        return static_cast<bool>(error);
    }

    static bool Eventually(const std::function<bool()>& condition)
    {
        for (int tries = 0; tries < 6000; ++tries) {
            if (condition())
                return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return false;
    }
};

TEST_F(Component, GetsTheChoicesAndEndsInOrder)
{
    StartCore(Script());
    framework::FrameworkChoices choices = core->Settings().Get();
    choices.skin = "BlueSkin";
    choices.language = 34;
    core->Settings().Set(choices);
    core->StartComponent();
    ASSERT_TRUE(events.texts.Take("state ready"));
    std::string output;
    ASSERT_TRUE(Base::FileUtil::ReadFile(root.Path() + "output", output));
    EXPECT_THAT(output, testing::HasSubstr("argument 3 [BlueSkin 34 0 0 0 0]\n"));
    core->RestartComponent();
    ASSERT_TRUE(events.texts.Take("state stopped: The component ended with exit code 0."));
    ASSERT_TRUE(events.texts.Take("state ready"));
    const pid_t last = Pid();
    core->Stop();
    EXPECT_TRUE(IsGone(last));
}

TEST_F(Component, IsStartedAgainAfterItWasKilled)
{
    StartCore(Script());
    core->StartComponent();
    ASSERT_TRUE(events.texts.Take("state ready"));
    const pid_t first = Pid();
    kill(first, SIGKILL);
    ASSERT_TRUE(events.texts.Take(
        "state waiting: The component ended with signal 9 (SIGKILL). It is started again in 1 s."));
    ASSERT_TRUE(events.texts.Take("state ready"));
    EXPECT_NE(Pid(), first);
    EXPECT_EQ(core->Notices().Entries().back().kind, "component");
}

TEST_F(Component, ThatDoesNotEndWhenItIsAskedToIsKilled)
{
    setenv("FAKE_COMPONENT_WAY", "stubborn", 1);
    endLimit = std::chrono::milliseconds(100);
    StartCore(Script());
    core->StartComponent();
    ASSERT_TRUE(events.texts.Take("state ready"));
    core->StopComponent();
    EXPECT_TRUE(events.texts.Take(
        "state stopped: The component ended with signal 9 (SIGKILL). It did not end in time."));
}

TEST_F(Component, IsNotKeptOutByAClientThatHasItsName)
{
    StartCore(Script());
    TestClient other(lpc::kVideoComponentName);
    other.Notify("initFinish");
    other.Request("GET", "/none", ""); // answered when all before it has arrived
    core->StartComponent();
    ASSERT_TRUE(events.texts.Take("state ready"));
    EXPECT_EQ(other.Request("GET", "/fake/echo", "x").body, "x");
    core->StopComponent();
    EXPECT_TRUE(events.texts.Take("state stopped: The component ended with exit code 0."));
}

TEST_F(Component, IsAskedThroughTheFramework)
{
    StartCore(Script());
    {
        TestClient other("somebody");
        EXPECT_EQ(other.Request("GET", "/fake/echo", "x").status, "503");
    }
    core->StartComponent();
    ASSERT_TRUE(events.texts.Take("state ready"));
    TestClient other("somebody");
    const auto answer = other.Request("GET", "/fake/echo", "{\"n\":1}");
    EXPECT_EQ(answer.body, "{\"n\":1}");
    EXPECT_EQ(other.Request("GET", "/fake/unknown").status, "404");
}

TEST_F(Component, DoesNotOutliveAFrameworkThatIsKilled)
{
    setenv("FAKE_COMPONENT_WAY", "stubborn", 1);
    CChildProcess helper;
    std::string error;
    ASSERT_TRUE(helper.Start({FRAMEWORK_HELPER, Folder(), Script()}, "", error)) << error;
    ASSERT_TRUE(Eventually([&] { return std::filesystem::exists(root.Path() + "pid"); }));
    const pid_t component = Pid();
    ASSERT_FALSE(IsGone(component));
    helper.Signal(SIGKILL);
    EXPECT_TRUE(Eventually([&] { return IsGone(component); }));
}

TEST_F(Component, HasOneFrameworkOnly)
{
    StartCore();
    framework::CFrameworkCore second(events, {Folder(), {}, {}});
    std::string error;
    EXPECT_FALSE(second.Start(error));
    EXPECT_THAT(error, testing::HasSubstr("Another framework"));
}

} // namespace
