#include "PlaybackLogical/PlaybackLogical.h"
#include "PreviewLogical/PreviewLogical.h"
#include "UiDataController/DeviceUserIDManager.h"
#include "UiDataController/HighDPIMgr.h"
#include "UiDataController/LocalLogManager.h"
#include "UiDataController/ScreenGuard.h"
#include "UiDataController/SystemStatusMonitor.h"
#include "VantorGUIToolkit/UiSingleton.h"
#include "support/CapturedLog.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QEventLoop>
#include <QPointer>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>

using namespace UiDataController;

namespace {

template<typename Work>
void OnThreads(int count, Work work)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
        threads.emplace_back([&work, i] { work(i); });
    for (std::thread& thread : threads)
        thread.join();
}

std::atomic<int> g_made{0};
struct Counted
{
    Counted() { ++g_made; }
};

class Recorder : public ILocalLogger
{
public:
    ~Recorder() override { m_alive = false; }
    void write(const OperationLogStruct& line) override
    {
        EXPECT_TRUE(m_alive);
        lines.push_back(line);
    }
    std::vector<OperationLogStruct> lines;

private:
    std::atomic<bool> m_alive{true};
};

struct ResourceTree : vantor::IResourceTreeManager
{
    UiDataController::IElementSource& Elements() override { std::abort(); }
};
struct GroupList : vantor::IGroupManager
{
    std::vector<UiDataController::ElementInfo> Groups() const override { return {}; }
};
struct LocalData : vantor::ILocalDataManager
{
    vantor::ILocalFile& LocalFile() override { std::abort(); }
    vantor::ILocalDataPath& LocalDataPath() override { std::abort(); }
    vantor::IVideoSystemConfig& SystemConfig() override { std::abort(); }
    void Release() override {}
};

/// Starts, refuses others and lets go, the same for both logics.
template<typename Logic, typename Manager, typename Getter>
void CheckStartAndEnd(Logic& logic, Manager& manager, Manager& other, Getter getter)
{
    LocalData data;
    logic.UnInit();
    EXPECT_FALSE(logic.isInit());
    EXPECT_TRUE(logic.init(&manager, &data));
    EXPECT_TRUE(logic.init(&manager, &data));
    EXPECT_FALSE(logic.init(&other, &data));
    EXPECT_TRUE(logic.isInit());
    EXPECT_EQ((logic.*getter)(), &manager);
    EXPECT_EQ(logic.LocalDataManager(), &data);
    for (int i = 0; i < 2; ++i) {
        logic.UnInit();
        EXPECT_FALSE(logic.isInit());
        EXPECT_EQ((logic.*getter)(), nullptr);
        EXPECT_EQ(logic.LocalDataManager(), nullptr);
    }
    EXPECT_TRUE(logic.init(nullptr, nullptr)) << "an application may serve none of them";
    EXPECT_TRUE(logic.isInit());
    logic.UnInit();
}

} // namespace

TEST(UiSingletons, ManyThreadsGetTheOneObject)
{
    std::atomic<Counted*> seen[8] = {};
    OnThreads(8, [&](int i) { seen[i] = &VantorGUIToolkit::CUiSingleton<Counted>::Instance(); });
    EXPECT_EQ(g_made, 1);
    for (auto& object : seen)
        EXPECT_EQ(object.load(), seen[0].load());
}

TEST(UiSingletons, AnObjectLivesOnTheGuiThreadWhoeverAsksFirst)
{
    using Singleton = VantorGUIToolkit::CObjectSingleton<QObject>;
    OnThreads(4, [](int) { Singleton::Instance(); });
    const QPointer<QObject> object = &Singleton::Instance();
    EXPECT_EQ(object->thread(), qApp->thread());
    Singleton::DeleteInstance();
    EXPECT_TRUE(object.isNull());
    Singleton::DeleteInstance();
    const QPointer<QObject> next = &Singleton::Instance();
    EXPECT_FALSE(next.isNull());
    Singleton::DeleteInstance();
}

TEST(HighDPI, ThePolicyHoldsBeforeTheApplicationAndIsRefusedAfterwards)
{
    EXPECT_TRUE(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
    EXPECT_TRUE(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
    EXPECT_EQ(QGuiApplication::highDpiScaleFactorRoundingPolicy(),
              Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    CapturedLog log;
    EXPECT_FALSE(CHighDPIMgr::doHighDPI(0, nullptr));
    EXPECT_EQ(log.Errors().size(), 1U);
}

TEST(LocalLog, LinesGoToTheLoggerThatIsSetWhichMayEndWhileOthersWrite)
{
    CLocalLogManager& manager = CLocalLogManager::Instance();
    EXPECT_FALSE(manager.writeOtherLog(OperationLogStruct::ImageSettings));
    std::atomic<bool> stop{false};
    std::atomic<int> written{0};
    std::thread writer([&] {
        while (!stop)
            written += manager.writeOtherLog(OperationLogStruct::Broadcast, "Gate of a long name");
    });
    std::size_t recorded = 0;
    for (int round = 0; round < 500 || written == 0; ++round) {
        Recorder recorder;
        manager.setLogger(&recorder);
        std::this_thread::yield();
        manager.setLogger(nullptr);
        recorded += recorder.lines.size();
        for (const OperationLogStruct& line : recorder.lines) {
            EXPECT_EQ(static_cast<int>(line.type), 2000);
            EXPECT_EQ(line.objectName, "Gate of a long name");
        }
    }
    stop = true;
    writer.join();
    EXPECT_EQ(recorded, static_cast<std::size_t>(written));
    EXPECT_FALSE(manager.writeOtherLog(OperationLogStruct::ScheduleSave));
}

TEST(SystemStatus, TheShareOfAProcessorComesFromTwoReadings)
{
    const std::tuple<ProcessUsage, ProcessUsage, double> rows[] = {
        {{1000, 500, 0}, {2000, 1000, 0}, 50},
        {{1000, 500, 0}, {2000, 2500, 0}, 200},
        {{1000, 500, 0}, {1000, 600, 0}, 0},
        {{2000, 500, 0}, {1000, 600, 0}, 0},
    };
    for (const auto& [before, after, percent] : rows)
        EXPECT_DOUBLE_EQ(CpuPercent(before, after), percent);
}

TEST(SystemStatus, ReadingsFollowWhatTheProcessUses)
{
    const auto before = ReadProcessUsage();
    ASSERT_TRUE(before);
    constexpr std::size_t kBytes = 64 * 1024 * 1024;
    const std::vector<char> memory(kBytes, 'x');
    auto after = ReadProcessUsage();
    ASSERT_TRUE(after);
    EXPECT_GE(after->residentBytes - before->residentBytes, static_cast<std::int64_t>(kBytes) * 9 / 10);
    while (after->cpuMs < before->cpuMs + 20 && after->wallMs < before->wallMs + 30'000)
        after = ReadProcessUsage();
    EXPECT_GE(after->cpuMs, before->cpuMs + 20);
}

TEST(SystemStatus, TheWatchSamplesUntilItEndsAndIsDeletedTwice)
{
    CSystemStatusMonitor& monitor = CSystemStatusMonitor::Instance();
    const QPointer<QObject> object = &monitor;
    monitor.endWatch();
    monitor.beginWatch(1);
    EXPECT_EQ(monitor.status().samples, 1);
    EXPECT_GT(monitor.status().residentBytes, 1024 * 1024);
    QEventLoop loop;
    QTimer limit;
    QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    limit.start(20'000);
    QObject::connect(&monitor, &CSystemStatusMonitor::SignalStatus, &loop, [&](const SystemStatus& status) {
        if (status.samples >= 4)
            loop.quit();
    });
    loop.exec();
    EXPECT_GE(monitor.status().samples, 4);
    EXPECT_TRUE(monitor.isWatching());
    monitor.endWatch();
    monitor.endWatch();
    EXPECT_FALSE(monitor.isWatching());
    CSystemStatusMonitor::DeleteInstance();
    EXPECT_TRUE(object.isNull());
    CSystemStatusMonitor::DeleteInstance();
}

TEST(DeviceUserIDs, KeepsOneHandleForEachDevice)
{
    CDeviceUserIDManager ids;
    EXPECT_TRUE(ids.add("a", 0));
    EXPECT_TRUE(ids.add("b", 7));
    EXPECT_FALSE(ids.add("b", 8)) << "the handle there would be lost";
    EXPECT_FALSE(ids.add("", 1));
    EXPECT_FALSE(ids.add("c", -1));
    EXPECT_FALSE(ids.add("c", -999));
    EXPECT_EQ(ids.count(), 2U);
    EXPECT_EQ(ids.find("b"), 7);
    EXPECT_EQ(ids.find("c"), std::nullopt);
    EXPECT_EQ(ids.remove("b"), 7);
    EXPECT_EQ(ids.remove("b"), std::nullopt);
    ids.UnInit();
    ids.UnInit();
    EXPECT_EQ(ids.count(), 0U);
}

TEST(DeviceUserIDs, OfManyThreadsOneGetsEachDevice)
{
    CDeviceUserIDManager ids;
    std::atomic<int> added{0};
    std::atomic<int> removed{0};
    OnThreads(4, [&](int thread) {
        for (int device = 0; device < 500; ++device)
            added += ids.add(std::to_string(device), thread);
    });
    OnThreads(4, [&](int) {
        for (int device = 0; device < 500; ++device)
            removed += ids.remove(std::to_string(device)).has_value();
    });
    EXPECT_EQ(added, 500);
    EXPECT_EQ(removed, 500);
    EXPECT_EQ(ids.count(), 0U);
}

TEST(DeviceUserIDs, MakesTheLogFolderOrTellsThatItCannot)
{
    TestDataRoot root;
    CDeviceUserIDManager ids;
    const std::string path = root.Path() + "Video.C/log/";
    EXPECT_TRUE(ids.init(path));
    EXPECT_TRUE(ids.init(path));
    EXPECT_EQ(ids.logPath(), path);
    EXPECT_TRUE(std::filesystem::is_directory(path));
    CapturedLog log;
    EXPECT_FALSE(ids.init("/proc/none/log"));
    EXPECT_FALSE(ids.init(""));
    EXPECT_EQ(log.Errors().size(), 2U);
    EXPECT_TRUE(ids.add("a", 1)) << "handles are kept all the same";
}

TEST(Logic, StartsAndEndsAnyNumberOfTimes)
{
    ResourceTree tree, otherTree;
    CheckStartAndEnd(PreviewLogical::CPreviewLogical::Instance(), tree, otherTree,
                     &PreviewLogical::CPreviewLogical::ResourceTreeManager);
    GroupList groups, otherGroups;
    CheckStartAndEnd(PlaybackLogical::CPlaybackLogical::Instance(), groups, otherGroups,
                     &PlaybackLogical::CPlaybackLogical::GroupManager);
}

TEST(ScreenGuardDeathTest, EndsTheProcessInOrderOnlyWhereThereIsNoScreen)
{
    constexpr int kExitCode = 7;
    const auto fail = [](const char* text) {
        const CScreenGuard guard(kExitCode);
        qFatal("%s", text);
    };
    EXPECT_EXIT(fail("It failed because no Qt platform plugin could be initialized."),
                testing::ExitedWithCode(kExitCode), "No screen can be used: It failed");
    EXPECT_EXIT(fail("ASSERT: x"), testing::KilledBySignal(SIGABRT), "ASSERT: x");
}
