#include "SettingsWorld.h"

using namespace settings;
using video::VideoSystemConfigSession;
using video::VideoSystemConfigStruct;

namespace {

std::string Rows(const Database& database, const std::string& column)
{
    return database.Ask("SELECT " + column + " FROM VideoSystemConfigTable");
}

} // namespace

TEST(SettingsTable, GetsTheFixedInsert)
{
    EXPECT_EQ(
        VideoSystemConfigSession::InsertText(VideoSystemConfigStruct()),
        "INSERT INTO VideoSystemConfigTable (DisplayScale, InstantPlaybackTime, PlayPerformance, "
        "EnableToolBar, "
        "PlaybackPriority, EnableResumePreview, EnableAutoChangeStreamType, SnapshotPicType, "
        "EnableHighlightShow, "
        "EnableATMOSD, EnableRuleShow, EnableDisconnectMultiStreams, PlaybackDefaultStreamType, "
        "EnableWheelControlZoom, OnlyPlayVCAInVCAPlayBack, EnableHardDecode, DownloadFileMode, StreamOffset, "
        "SearchFileCameraMode, EnablePlayBackFrameExtraction, EnableTransactionInfor,EnableTargetPattern,"
        "EnableRenderingEffect, VideoFileFormat,EnableDenoise,ClockedPreviewToolBar,ShowRecordAndAlarmState,"
        "SearchCloudP2PRecordFileMode) VALUES (0, 180, 6, 1, 1, 1, 0, 1, 0, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 1, "
        "0, "
        "0, 0, 0, 1, 0, 1, 0)");
}

TEST(EverySetting, IsSavedUnderItsNameLoadedAndCompared)
{
    Database database;
    VideoSystemConfigSession session(database.connection);
    video::ForEachSetting([&](const auto& field) {
        SCOPED_TRACE(field.name);
        VideoSystemConfigStruct record;
        record.*field.member = OtherValue(field);
        ASSERT_TRUE(field.Takes(record.*field.member));
        EXPECT_EQ(video::SameSettings(record, VideoSystemConfigStruct()),
                  std::string(field.name) == "EnableTransactionInfor");
        ASSERT_TRUE(session.Save(record));
        EXPECT_EQ(Rows(database, field.name), std::to_string(record.*field.member)) << "in the one row";
        VideoSystemConfigStruct loaded;
        ASSERT_TRUE(session.Load(loaded));
        video::ForEachSetting(
            [&](const auto& other) { EXPECT_EQ(loaded.*other.member, record.*other.member) << other.name; });
    });
}

TEST(SettingsTable, GivesWhatTheFirstRowHoldsAndNothingWhenItIsEmpty)
{
    Database database;
    VideoSystemConfigSession session(database.connection);
    VideoSystemConfigStruct record;
    record.PlayPerformance = 15;
    EXPECT_FALSE(session.Load(record));
    EXPECT_EQ(record.PlayPerformance, 15);
    database.Run("INSERT INTO VideoSystemConfigTable (DisplayScale, PlayPerformance, EnableToolBar, "
                 "EnableHardDecode, StreamOffset) VALUES (99, 3, 5, 2, 'damaged')");
    database.Run("INSERT INTO VideoSystemConfigTable (DisplayScale) VALUES (1)");
    const CapturedLog log;
    EXPECT_TRUE(session.Load(record));
    EXPECT_EQ(record.DisplayScale, 99);
    EXPECT_EQ(record.PlayPerformance, 3);
    EXPECT_EQ(record.EnableHardDecode, 2);
    EXPECT_TRUE(record.EnableToolBar);
    EXPECT_EQ(record.StreamOffset, 0);
    EXPECT_EQ(log.Messages(Base::LogLevel::Warn),
              std::vector<std::string>{"The settings hold values that nobody can have set: [DisplayScale=99, "
                                       "InstantPlaybackTime=0, PlayPerformance=3]."});
}

TEST(ASaveThatFails, NeverLosesTheRow)
{
    struct Row
    {
        const char* refused;
        bool bracketed;
        const char* left;
    };
    for (const Row& row : {Row{"DELETE", false, "1 2"}, Row{"INSERT", false, "1"}, Row{"DELETE", true, "1"},
                           Row{"INSERT", true, "1"}}) {
        SCOPED_TRACE(std::string(row.refused) + (row.bracketed ? " in a bracket" : ""));
        Database database;
        VideoSystemConfigSession session(database.connection);
        VideoSystemConfigStruct record;
        record.DisplayScale = 1;
        ASSERT_TRUE(session.Save(record));
        database.Refuse(row.refused, "VideoSystemConfigTable");
        record.DisplayScale = 2;
        ASSERT_EQ(row.bracketed && session.Begin(), row.bracketed);
        EXPECT_FALSE(session.Save(record));
        EXPECT_FALSE(row.bracketed && session.Commit());
        EXPECT_EQ(Rows(database, "DisplayScale"), row.left);
        ASSERT_TRUE(session.Load(record));
        EXPECT_EQ(record.DisplayScale, 1);
    }
}
