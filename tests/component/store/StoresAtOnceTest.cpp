#include "RecordsWorld.h"

#include "Base/MessageLoop.h"
#include "logical/System/SystemConfig.h"

#include <array>
#include <atomic>
#include <functional>
#include <future>

namespace {

constexpr int kTurns = 150;
constexpr auto kPatience = std::chrono::seconds(50);
constexpr const char* kCamera = "camera";
constexpr const char* kGroup = "group";

class FixedFolders : public vantor::ILocalDataPath
{
public:
    vantor::SaveFolders Folders() const override { return {"/video", "/capture"}; }
    void SetFolders(const vantor::SaveFolders&) override {}
};

class CountingObserver : public vantor::IVideoSystemConfigObserver
{
public:
    void OnVideoSystemConfigChanged(const Param& param) override { ++ofType.at(param.type); }
    std::array<std::atomic<int>, 3> ofType{};
};

/// The catalogue and the settings on one connection, as in the component.
class StoresAtOnce : public testing::Test
{
protected:
    /// Runs it on a thread of its own, kTurns times.
    void Start(const std::function<void(int)>& turn)
    {
        m_threads.push_back(std::async(std::launch::async, [turn] {
            for (int i = 0; i < kTurns; ++i)
                turn(i);
        }));
    }

    void JoinAll()
    {
        for (std::future<void>& thread : m_threads)
            ASSERT_EQ(thread.wait_for(kPatience), std::future_status::ready) << "a thread hangs";
    }

    int CountOf(const std::string& table)
    {
        return std::stoi(catalogue.Ask("SELECT count(*) FROM " + table));
    }

    CapturedLog log;
    store::Catalogue catalogue;
    FixedFolders folders;
    Base::CMessageLoop loop{"notify"};
    std::atomic<int> announced{0};
    video::CSystemConfig settings{
        catalogue.connection, folders, loop, {"/video", "/capture"}, [this] { ++announced; }};

private:
    std::vector<std::future<void>> m_threads;
};

TEST_F(StoresAtOnce, KeepAddsSavesAndQueriesApart)
{
    ASSERT_EQ(catalogue.failure, "");
    settings.Load();
    CountingObserver observer;
    settings.AddObserver(&observer);
    std::atomic<std::size_t> seen{0};

    for (const char* writer : {"a", "b"})
        Start([&, writer](int i) {
            const std::string path = std::string("/") + writer + std::to_string(i);
            EXPECT_NE(catalogue.files.AddPicture(kCamera, kGroup, "it's", path, i), "");
            EXPECT_NE(catalogue.files.AddVideo(kCamera, kGroup, "it's", path, "", i, i, i), "");
        });
    Start([&](int i) { settings.Set(&video::VideoSystemConfigStruct::DisplayScale, i % 4); });
    Start([&](int i) {
        settings.SetTogether([i](video::VideoSystemConfigStruct& record) {
            record.EnableToolBar = i % 2 == 1;
            record.StreamOffset = i;
        });
    });
    Start([&](int) {
        std::vector<vantor::PictureFileRecord> pictures;
        std::vector<vantor::VideoFileRecord> videos;
        catalogue.files.QueryPicturesOfCamera(kCamera, 0, kTurns, pictures);
        catalogue.files.QueryVideosOfGroup(kGroup, 0, kTurns, videos);
        EXPECT_GE(pictures.size(), seen) << "a record was there and is gone";
        seen = pictures.size();
        EXPECT_EQ(settings.Settings().InstantPlaybackTime, 180);
    });
    JoinAll();
    std::promise<void> delivered;
    loop.PostTask([&] { delivered.set_value(); });
    EXPECT_EQ(delivered.get_future().wait_for(kPatience), std::future_status::ready);

    EXPECT_EQ(CountOf("PictureFile"), 2 * kTurns);
    EXPECT_EQ(CountOf("VideoFile"), 2 * kTurns);
    EXPECT_EQ(CountOf("VideoSystemConfigTable"), 1);
    EXPECT_EQ(catalogue.Ask("SELECT StreamOffset FROM VideoSystemConfigTable"), std::to_string(kTurns - 1));
    EXPECT_EQ(catalogue.Ask("SELECT DisplayScale FROM VideoSystemConfigTable"),
              std::to_string((kTurns - 1) % 4));
    EXPECT_EQ(catalogue.Ask("PRAGMA integrity_check"), "ok");
    EXPECT_GE(announced, kTurns);
    EXPECT_EQ(observer.ofType[0], kTurns - 1) << "each turn but the first changed DisplayScale";
    EXPECT_EQ(observer.ofType[1], kTurns) << "each turn changed EnableToolBar";
    EXPECT_TRUE(log.Messages(Base::LogLevel::Error).empty());
    EXPECT_TRUE(log.Messages(Base::LogLevel::Fatal).empty());
    settings.RemoveObserver(&observer);
}

} // namespace
