#include "logical/System/VideoSystemManager.h"
#include "SettingsWorld.h"

#include <stdexcept>

using namespace settings;
using video::CVideoSystemManager;

namespace {

struct Stores : Database
{
    Base::CMessageLoop loop{"notify"};

    CVideoSystemManager::Parts Parts()
    {
        return {connection, loop, {"/video", "/capture"}, root.Path() + "SaveFolders.json", [] {}};
    }
};

TEST(TheStores, AreWaitedForAndStayAfterTheEnd)
{
    Stores stores;
    CVideoSystemManager manager;
    auto early = std::async(std::launch::async, [&] { return &manager.SystemConfig(); });
    manager.Init(stores.Parts());
    EXPECT_EQ(early.get(), &manager.SystemConfig());
    EXPECT_EQ(&manager.LocalDataManager().SystemConfig(), &manager.SystemConfig());
    EXPECT_EQ(&manager.LocalDataManager().LocalFile(), &manager.LocalFile());
    EXPECT_EQ(manager.SystemConfig().VideoSaveFolder(), "/video");
    manager.UnInit();
    EXPECT_EQ(manager.ToolbarConfig().Layout(), vantor::ToolbarStruct());
}

TEST(TheStores, AreNotWaitedForWhenTheyDoNotCome)
{
    CVideoSystemManager ended(std::chrono::hours(1));
    auto waiting = std::async(std::launch::async, [&] { ended.LocalDataManager().LocalFile(); });
    ended.UnInit();
    EXPECT_THROW(waiting.get(), std::runtime_error);
    CVideoSystemManager slow(std::chrono::milliseconds(1));
    EXPECT_THROW(slow.SystemConfig(), std::runtime_error);
}

} // namespace
