#include "SettingsWorld.h"

#include "support/WaitUntil.h"

#include <functional>
#include <map>

using namespace settings;
using video::CSystemConfig;
using video::CSystemConfigEdit;
using Record = video::VideoSystemConfigStruct;

namespace {

using Getter = std::function<int(const vantor::IVideoSystemConfig&)>;
// clang-format off
#define GETTER(name) {#name, [](const auto& config) { return static_cast<int>(config.name()); }}
const std::map<std::string, Getter> kGetters = {
    GETTER(DisplayScale), GETTER(InstantPlaybackTime), GETTER(PlayPerformance), GETTER(EnableToolBar),
    GETTER(ClockedPreviewToolBar), GETTER(PlaybackPriority), GETTER(EnableResumePreview),
    GETTER(EnableAutoChangeStreamType), GETTER(SnapshotPicType), GETTER(VideoFileFormat),
    GETTER(EnableHighlightShow), GETTER(EnableATMOSD), GETTER(EnableRuleShow), GETTER(EnableTargetPattern),
    GETTER(EnableRenderingEffect), GETTER(EnableDisconnectMultiStreams), GETTER(PlaybackDefaultStreamType),
    GETTER(EnableWheelControlZoom), GETTER(OnlyPlayVCAInVCAPlayBack), GETTER(EnableHardDecode),
    GETTER(EnablePlayBackFrameExtraction), GETTER(DownloadFileMode), GETTER(SearchFileCameraMode),
    GETTER(SearchCloudP2PRecordFileMode), GETTER(StreamOffset), GETTER(EnableDenoise),
    GETTER(ShowRecordAndAlarmState)};
// clang-format on

TEST(EverySetting, HasAGetterThatReadsItAloneAndASetterThatSaves)
{
    World world;
    video::ForEachSetting([&](const auto& field) {
        if (std::string(field.name) == "EnableTransactionInfor")
            return;
        SCOPED_TRACE(field.name);
        ASSERT_EQ(kGetters.count(field.name), 1u);
        std::map<std::string, int> before;
        for (const auto& [name, get] : kGetters)
            before[name] = get(world.config);
        world.config.Set(field.member, OtherValue(field));
        for (const auto& [name, get] : kGetters)
            EXPECT_EQ(get(world.config), name == field.name ? OtherValue(field) : before[name]) << name;
        EXPECT_EQ(world.Ask(std::string("SELECT ") + field.name + " FROM VideoSystemConfigTable"),
                  std::to_string(OtherValue(field)));
    });
    EXPECT_EQ(world.sent, 27);
    EXPECT_TRUE(world.config.IsDenoiseOn());
    world.config.Set(&Record::EnableDenoise, 0);
    EXPECT_FALSE(world.config.IsDenoiseOn());
    world.config.Set(&Record::EnableHardDecode, 2);
    EXPECT_TRUE(world.config.IsHardDecodeOn());
    EXPECT_EQ(world.config.ReservedText(), "");
}

/// What a change makes of settings in which EnableToolBar and ShowRecordAndAlarmState are off and
/// DisplayScale is 1.
struct Effect
{
    const char* name;
    std::function<void(CSystemConfig&)> change;
    std::string heard;
    int sent;
    std::string stored; ///< see kStored
};

const std::string kStored = "SELECT DisplayScale || '|' || EnableToolBar || '|' || EnableRuleShow || '|' || "
                            "SnapshotPicType || '|' || EnableTransactionInfor FROM VideoSystemConfigTable";

void ApplyEdit(CSystemConfig& config, const std::function<void(CSystemConfigEdit&)>& change)
{
    CSystemConfigEdit edit(config);
    change(edit);
    edit.Apply();
}

const Effect kEffects[] = {
    {"the same value", [](auto& config) { config.SetVideoFileFormat(0); }, "", 0, "1|0|1|1|0"},
    {"the format", [](auto& config) { config.SetVideoFileFormat(1); }, "", 1, "1|0|1|1|0"},
    {"transactions alone", [](auto& config) { config.Set(&Record::EnableTransactionInfor, true); }, "", 0,
     "1|0|1|1|0"},
    {"the scale", [](auto& config) { config.Set(&Record::DisplayScale, 3); }, "0", 1, "3|0|1|1|0"},
    {"a flag by its setter", [](auto& config) { config.Set(&Record::EnableToolBar, true); }, "", 1,
     "1|1|1|1|0"},
    {"a switch", [](auto& config) { config.SetEnableToolBar(true); }, "1", 1, "1|1|1|1|0"},
    {"a switch as it is", [](auto& config) { config.SetEnableToolBar(false); }, "", 0, "1|0|1|1|0"},
    {"the other switch", [](auto& config) { config.SetClockedPreviewToolBar(true); }, "2", 1, "1|0|1|1|0"},
    {"several together",
     [](auto& config) {
         config.SetTogether([](Record& record) {
             record.ClockedPreviewToolBar = record.ShowRecordAndAlarmState = record.EnableToolBar = true;
             record.DisplayScale = 2;
         });
     },
     "0 1 2 2", 1, "2|1|1|1|0"},
    {"an edit",
     [](auto& config) {
         ApplyEdit(config, [](auto& edit) {
             edit.Set(&Record::ClockedPreviewToolBar, true);
             edit.Set(&Record::DisplayScale, 2);
         });
     },
     "0 2", 1, "2|0|1|1|0"},
    {"an edit of transactions alone",
     [](auto& config) {
         ApplyEdit(config, [](auto& edit) { edit.Set(&Record::EnableTransactionInfor, true); });
     },
     "", 0, "1|0|1|1|1"},
    {"all defaults", [](auto& config) { config.RestoreDefaults(); }, "0 1 2", 1, "0|1|1|1|0"},
    {"the image page's", [](auto& config) { config.RestoreImageDefaults(); }, "", 0, "0|0|0|1|0"},
    {"the image page's, then another",
     [](auto& config) {
         config.RestoreImageDefaults();
         config.SetVideoFileFormat(0);
     },
     "0", 1, "0|0|0|1|0"},
    {"the playback page's, then another",
     [](auto& config) {
         config.RestorePlaybackAndFileDefaults();
         config.SetVideoFileFormat(0);
     },
     "", 0, "1|0|1|0|0"},
};

TEST(AChange, PostsSavesAndSendsWhatBelongsToIt)
{
    for (const Effect& effect : kEffects) {
        SCOPED_TRACE(effect.name);
        World world;
        world.config.SetTogether([](Record& record) {
            record.EnableToolBar = record.ShowRecordAndAlarmState = false;
            record.DisplayScale = 1;
        });
        Deliver(world.loop);
        world.observer.heard.clear();
        world.sent = 0;
        effect.change(world.config);
        Deliver(world.loop);
        EXPECT_EQ(world.observer.heard, effect.heard);
        EXPECT_EQ(world.sent, effect.sent);
        EXPECT_EQ(world.Ask(kStored), effect.stored);
    }
}

/// What the restore makes of the fields that it changes, be it from their defaults or from other values.
std::string ChangedBy(void (CSystemConfig::*restore)())
{
    World world;
    Record starts[2];
    Record left[2];
    video::ForEachSetting([&](const auto& field) { starts[1].*field.member = OtherValue(field); });
    for (int i = 0; i < 2; ++i) {
        world.config.SetTogether([&](Record& record) { record = starts[i]; });
        (world.config.*restore)();
        left[i] = world.config.Settings();
    }
    std::string changed;
    video::ForEachSetting([&](const auto& field) {
        if (left[0].*field.member != starts[0].*field.member ||
            left[1].*field.member != starts[1].*field.member)
            changed += std::string(field.name) + "=" + std::to_string(left[0].*field.member) + " ";
    });
    return changed;
}

TEST(APageRestore, ChangesThatPagesFieldsAlone)
{
    EXPECT_EQ(ChangedBy(&CSystemConfig::RestoreImageDefaults),
              "DisplayScale=0 PlayPerformance=6 EnableAutoChangeStreamType=1 EnableHighlightShow=0 "
              "EnableATMOSD=1 EnableRuleShow=0 EnableHardDecode=0 EnablePlayBackFrameExtraction=1 "
              "EnableTargetPattern=0 EnableRenderingEffect=0 EnableDenoise=1 ");
    EXPECT_EQ(ChangedBy(&CSystemConfig::RestorePlaybackAndFileDefaults),
              "PlaybackPriority=1 EnableResumePreview=1 SnapshotPicType=0 EnableDisconnectMultiStreams=0 "
              "EnableWheelControlZoom=0 OnlyPlayVCAInVCAPlayBack=0 DownloadFileMode=0 StreamOffset=0 "
              "SearchFileCameraMode=0 VideoFileFormat=0 SearchCloudP2PRecordFileMode=0 ");
}

TEST(AChange, IsPostedBeforeItIsSavedAndSavedBeforeItIsSent)
{
    World world;
    ASSERT_TRUE(world.connection.Begin());
    auto setter = std::async(std::launch::async, [&] { world.config.Set(&Record::DisplayScale, 2); });
    EXPECT_TRUE(WaitUntil([&] { return world.observer.count == 1; })) << "while nobody else may write";
    EXPECT_EQ(world.config.DisplayScale(), 2) << "getters do not wait for the disk";
    EXPECT_EQ(world.sent, 0);
    ASSERT_TRUE(world.connection.Commit());
    setter.get();
    EXPECT_EQ(world.scaleWhenSent, "2");
}

TEST(SaversAtOnce, LoseNoChangeAndTellOfEach)
{
    World world;
    for (int round = 0; round < 5; ++round) {
        std::atomic<int> entered{0};
        const auto start = [&](auto change) {
            return std::async(std::launch::async, [&entered, change] {
                ++entered;
                change();
            });
        };
        ASSERT_TRUE(world.connection.Begin());
        auto first = start([&] { world.config.Set(&Record::DisplayScale, 2); });
        ASSERT_TRUE(WaitUntil([&] { return world.observer.count == 2 * round + 1; })) << "about to write";
        auto silent = start([&] { world.config.RestorePlaybackAndFileDefaults(); });
        ASSERT_TRUE(WaitUntil([&] { return entered == 2; }));
        auto last = start([&] { world.config.Set(&Record::DisplayScale, 0); });
        ASSERT_TRUE(WaitUntil([&] { return entered == 3; }));
        ASSERT_TRUE(world.connection.Commit());
        for (auto* saver : {&first, &silent, &last})
            saver->get();
        Deliver(world.loop);
        ASSERT_EQ(world.Ask("SELECT DisplayScale FROM VideoSystemConfigTable"), "0") << round;
        ASSERT_EQ(world.observer.count, 2 * round + 2);
        ASSERT_EQ(world.sent, 2 * round + 2);
    }
}

TEST(ASwitch, IsKeptAlsoWhenTheTableWasEmpty)
{
    World world;
    world.config.SetClockedPreviewToolBar(true);
    EXPECT_EQ(world.Ask("SELECT ClockedPreviewToolBar FROM VideoSystemConfigTable"), "1");
}

TEST(AFailedSave, IsNotTriedAgain)
{
    World world;
    world.config.SetVideoFileFormat(1);
    world.Refuse("INSERT", "VideoSystemConfigTable");
    world.config.Set(&Record::DisplayScale, 2);
    EXPECT_EQ(world.sent, 2);
    world.config.Set(&Record::DisplayScale, 2);
    EXPECT_EQ(world.sent, 2);
    EXPECT_EQ(world.Ask("SELECT VideoFileFormat || DisplayScale FROM VideoSystemConfigTable"), "10");
}

TEST(SaveFolders, TakeOneTo260Bytes)
{
    const std::string longest(260, 'x');
    for (const bool video : {true, false}) {
        World world;
        const auto set = [&](const std::string& folder) {
            video ? world.config.SetVideoSaveFolder(folder) : world.config.SetCaptureSaveFolder(folder);
            return video ? world.folders.folders.video : world.folders.folders.capture;
        };
        EXPECT_EQ(set(""), video ? "/chosen/video" : "/chosen/capture");
        EXPECT_EQ(set(longest), longest);
        EXPECT_EQ(set(longest + "x"), longest);
        EXPECT_EQ(video ? world.config.VideoSaveFolder() : world.config.CaptureSaveFolder(), longest);
        EXPECT_EQ(video ? world.folders.folders.capture : world.folders.folders.video,
                  video ? "/chosen/capture" : "/chosen/video");
        EXPECT_EQ(world.sent, 0);
        world.config.RestoreDefaults();
        EXPECT_EQ(world.folders.folders.video + world.config.CaptureSaveFolder(),
                  "/default/video/default/capture");
    }
}

TEST(AnEdit, IsSeenByGettersAndSavedByNobodyElse)
{
    World world;
    {
        CSystemConfigEdit edit(world.config);
        edit.Set(&Record::DisplayScale, 3);
        EXPECT_EQ(world.config.DisplayScale(), 3);
        world.config.SetVideoFileFormat(1);
        EXPECT_EQ(world.Ask("SELECT VideoFileFormat || DisplayScale FROM VideoSystemConfigTable"), "10");
    }
    EXPECT_EQ(world.config.DisplayScale(), 0) << "an edit that was given up";
    EXPECT_EQ(world.config.VideoFileFormat(), 1);
}

TEST(Settings, StayWholeWhileThreadsSetSaveAndRead)
{
    World world;
    std::atomic<bool> done{false};
    auto reader = std::async(std::launch::async, [&] {
        int most = 0;
        while (!done)
            most = std::max(most, world.config.DisplayScale() + world.config.Settings().StreamOffset);
        return most;
    });
    std::vector<std::future<void>> writers;
    for (int thread = 0; thread < 3; ++thread)
        writers.push_back(std::async(std::launch::async, [&world, thread] {
            for (int i = 0; i < 30; ++i) {
                world.config.Set(&Record::DisplayScale, (i + thread) % 4);
                world.config.Set(&Record::StreamOffset, i);
                world.config.SetEnableToolBar(i % 2 == thread % 2);
            }
        }));
    for (auto& writer : writers)
        writer.get();
    done = true;
    EXPECT_LE(reader.get(), 32);
    EXPECT_EQ(world.Ask("SELECT DisplayScale || '|' || EnableToolBar FROM VideoSystemConfigTable"),
              std::to_string(world.config.DisplayScale()) + "|" +
                  std::to_string(world.config.EnableToolBar()));
}

} // namespace
