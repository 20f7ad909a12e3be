#include "RecordsWorld.h"

#include <gtest/gtest.h>

#include <functional>
#include <future>

using vantor::PictureFileRecord;
using vantor::VideoFileRecord;
using video::PictureFileSession;
using video::VideoFileSession;

namespace {

class LocalFiles : public testing::Test, protected store::Catalogue
{
protected:
    LocalFiles() { EXPECT_EQ(failure, ""); }

    std::string AddClip(const std::string& camera, const std::string& path, vantor::TimeValue time,
                        const std::string& name = "clip", const std::string& picture = "cover")
    {
        return files.AddVideo(camera, "group", name, path, picture, time, time - 5, time + 5);
    }
    std::string AddPicture(const std::string& camera, const std::string& path, vantor::TimeValue time)
    {
        return files.AddPicture(camera, "group", "picture", path, time);
    }
    std::string ClipsOf(const std::string& camera, vantor::TimeValue begin, vantor::TimeValue end)
    {
        std::vector<VideoFileRecord> records(1); // what stood there goes
        EXPECT_TRUE(files.QueryVideosOfCamera(camera, begin, end, records));
        return store::Paths(records);
    }
};

/// Every text is in the record as it was given, under the key it was given.
const char* const kTexts[] = {
    "O'Hara''s '); DROP VIEW VideoFile; --",
    "100 %s %n %d %%",
    R"(C:\clips\gate\)",
    "line\nand\ttab",
    "\xD8\xA8\xD9\x88\xD8\xA7\xD8\xA8\xD8\xA9 \xE2\x80\x8F\xD7\xA9\xD7\xA2\xD7\xA8",
    "\xF0\x9F\x8E\xA5 \xE5\xBD\x95\xE5\x83\x8F",
    "' OR '1' = '1",
    "\"double\" ; ?1 :name /* */",
};

} // namespace

TEST_F(LocalFiles, KeepEveryTextButZeroBytesAsItIs)
{
    for (const std::string text : kTexts) {
        SCOPED_TRACE(text);
        const std::string id = files.AddVideo(text, text, text, text, text, 20, 10, 30);
        const std::string picture = files.AddPicture(text, text, text, text, 40);
        const VideoFileRecord clip = files.GetVideoById(id);
        for (const std::string& kept : {clip.CameraID, clip.GroupID, clip.FileName, clip.FilePath,
                                        clip.PicturePath, files.GetPictureByPath(text).GroupID})
            EXPECT_EQ(kept, text);
        EXPECT_EQ(files.GetVideoByPath(text).ID, id);
        EXPECT_EQ(files.GetPictureByPath(text).ID, picture);
        EXPECT_EQ(ClipsOf(text, 20, 20), text);
        std::vector<PictureFileRecord> pictures;
        EXPECT_TRUE(files.QueryPicturesOfGroup(text, 40, 40, pictures));
        EXPECT_EQ(store::Paths(pictures), text);
    }
    for (const std::string text : kTexts)
        files.DeleteVideoByPath(text);
    EXPECT_EQ(Ask("SELECT count(*) FROM VideoFile"), "0");
    // No statement can hold a zero byte.
    EXPECT_EQ(files.GetPictureById(AddPicture(std::string("a\0b", 3), "/p", 1)).CameraID, "a\xEF\xBF\xBD"
                                                                                          "b");
}

TEST_F(LocalFiles, AreFoundFromBeginToEndBothIncluded)
{
    AddClip("c", "/10", 10);
    AddClip("c", "/20", 20);
    AddClip("other", "/15", 15);
    const struct
    {
        vantor::TimeValue begin, end;
        const char* paths;
    } rows[] = {{10, 20, "/10 /20"}, {10, 10, "/10"}, {11, 20, "/20"}, {11, 19, ""}, {20, 10, ""}};
    for (const auto& row : rows)
        EXPECT_EQ(ClipsOf("c", row.begin, row.end), row.paths) << row.begin << " to " << row.end;
    EXPECT_EQ(ClipsOf("nobody", 0, 100), "");
    std::vector<VideoFileRecord> ofGroup;
    EXPECT_TRUE(files.QueryVideosOfGroup("group", 10, 15, ofGroup));
    EXPECT_EQ(store::Paths(ofGroup), "/10 /15");
    EXPECT_EQ(ofGroup.at(0).BeginTime, 5);
    EXPECT_EQ(ofGroup.at(0).EndTime, 15);
}

TEST_F(LocalFiles, OfAKnownPathUpdateEveryClipOfTheCamera)
{
    const std::string first = AddClip("c", "/a", 10);
    const std::string second = AddClip("c", "/b", 20);
    AddClip("other", "/o", 30);
    EXPECT_EQ(AddClip("c", "/a", 40, "later"), first);
    for (const std::string& id : {first, second}) {
        const VideoFileRecord clip = files.GetVideoById(id);
        EXPECT_EQ(clip.FilePath + " " + clip.FileName, "/a later");
        EXPECT_EQ(clip.OccurTime, 40);
    }
    EXPECT_EQ(Ask("SELECT FilePath || FileName FROM VideoFile WHERE CameraID = 'other'"), "/oclip");
    EXPECT_EQ(Ask("SELECT count(*) FROM VideoFile"), "3");
}

TEST_F(LocalFiles, HaveTheirSizeInWholeKiB)
{
    const struct
    {
        const char* name;
        std::int64_t bytes; ///< -1: there is no such file
        std::int32_t size;
    } rows[] = {{"missing", -1, 0}, {"1023", 1023, 0}, {"1024", 1024, 1}, {"5GiB", 5LL << 30, 5 << 20}};
    for (const auto& row : rows) {
        const std::string path = root.Path() + row.name;
        if (row.bytes >= 0) {
            store::WriteAll(path, "");
            std::filesystem::resize_file(path, static_cast<std::uintmax_t>(row.bytes));
        }
        EXPECT_EQ(files.GetPictureById(AddPicture("c", path, 1)).FileSize, row.size) << row.name;
        EXPECT_EQ(files.GetVideoById(AddClip("c" + path, path, 1)).FileSize, row.size) << row.name;
    }
}

TEST_F(LocalFiles, ThatDoNotFitTheirStatementAreNotStoredAndTouchNothing)
{
    AddClip("c", "/a", 10);
    AddPicture("c", "/a", 10);
    const auto everything = [&] {
        return Ask("SELECT group_concat(ID || CameraID || FileName || FilePath || OccurTime) FROM "
                   "VideoFile") +
               Ask("SELECT group_concat(ID || CameraID || FileName || FilePath || OccurTime) FROM "
                   "PictureFile");
    };
    const std::string before = everything();
    const std::string quotes(400, '\'');
    const std::string longText(1000, 'x');
    const struct
    {
        const char* what;
        std::function<std::string()> add;
    } rows[] = {
        {"an insert", [&] { return AddClip("c", "/new", 20, longText); }},
        {"an insert whose quotes double", [&] { return AddClip("c", "/new", 20, quotes, quotes); }},
        {"an update that would lose its WHERE",
         [&] { return AddClip("c", "/a", 20, std::string(790, 'x')); }},
        {"an update that would lose the end of it",
         [&] { return AddClip(std::string(800, 'c'), "/a", 20, "n", ""); }},
        {"the look-up", [&] { return AddClip("c", "/" + std::string(460, 'p'), 20); }},
        {"a picture", [&] { return AddPicture("c", longText, 20); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const CapturedLog log;
        EXPECT_EQ(row.add(), "");
        EXPECT_EQ(log.Messages(Base::LogLevel::Fatal),
                  std::vector<std::string>{
                      "data base error, error code: 21, error message: the text holds no statement"});
        EXPECT_EQ(everything(), before);
    }
    files.DeleteVideoByPath(longText);
    files.DeleteVideoById(longText);
    VideoFileRecord record = files.GetVideoByPath("/a");
    record.FileName = longText;
    files.UpdateVideo(record);
    EXPECT_EQ(everything(), before);
    EXPECT_EQ(files.GetVideoById(longText).ID, "");
}

TEST_F(LocalFiles, OfAnyNumberOfCamerasAreListed)
{
    PictureFileSession pictures(connection);
    std::vector<std::string> cameras;
    ASSERT_TRUE(pictures.Begin());
    for (int i = 0; i < 2600; ++i) {
        cameras.push_back("camera" + std::to_string(i));
        if (i % 100 == 0)
            AddPicture(cameras.back(), "/p" + std::to_string(i), i);
    }
    AddPicture("another", "/another", 1);
    ASSERT_TRUE(pictures.Commit());
    cameras.push_back(cameras.front());
    const CapturedLog log;
    std::vector<PictureFileRecord> records;
    EXPECT_TRUE(pictures.QueryCameras(cameras, records));
    EXPECT_EQ(records.size(), 26u);
    EXPECT_TRUE(pictures.QueryCameras({}, records));
    EXPECT_TRUE(records.empty());
    EXPECT_TRUE(log.Lines().empty());
}

TEST_F(LocalFiles, AreAddedAndListedByManyThreadsAtOnce)
{
    std::vector<std::future<void>> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.push_back(std::async(std::launch::async, [this, thread] {
            for (int i = 0; i < 50; ++i) {
                const std::string path = "/" + std::to_string(i); // of all threads
                const std::string id = AddClip("c" + std::to_string(i), path, thread);
                EXPECT_EQ(files.GetVideoById(id).FilePath, path);
                EXPECT_NE(ClipsOf("c" + std::to_string(i), 0, 4), "");
                EXPECT_NE(AddPicture("c", path, thread), "");
            }
        }));
    threads.clear(); // waits
    EXPECT_EQ(Ask("SELECT count(*) FROM VideoFile"), "50") << "one record a path";
    EXPECT_EQ(Ask("SELECT count(DISTINCT ID) FROM PictureFile"), "200");
}
