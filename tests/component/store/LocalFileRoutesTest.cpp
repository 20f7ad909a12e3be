#include "logical/Local/LocalFileRoutes.h"
#include "RecordsWorld.h"
#include "logical/Communication/LPCNames.h"

#include <gtest/gtest.h>

using namespace video::route;

namespace {

class LocalFileRoutes : public testing::Test, protected store::Catalogue
{
protected:
    LocalFileRoutes()
    {
        EXPECT_EQ(failure, "");
        video::ServeLocalFiles(
            m_http, [this]() -> vantor::ILocalFile& { return files; },
            [this](const lpcclient::LPCCallBackData&, const video::RouteAnswer& answer) {
                m_answers.push_back(answer.status == 200 ? answer.body : std::to_string(answer.status));
                return true;
            });
    }

    /// The answer; "none" when there was none.
    std::string Call(const char* url, const std::string& body)
    {
        m_answers.clear();
        lpcclient::LPCCallBackData call;
        call.requestId = 7;
        call.body = body;
        EXPECT_EQ(m_http.Serve(url, call), video::CRouteTable::Result::Served);
        EXPECT_LE(m_answers.size(), 1u);
        return m_answers.empty() ? "none" : m_answers.front();
    }

    std::string Clips() { return Ask("SELECT ID FROM VideoFile"); }
    std::string Pictures() { return Ask("SELECT ID FROM PictureFile"); }

    video::CRouteTable m_http;
    std::vector<std::string> m_answers;
};

const std::string kPicture =
    R"({"type":0,"cameraGuid":"c","fileName":"n","picFilePath":"/p.jpg","timeOccur":9})";
const std::string kClip =
    R"({"type":1,"cameraGuid":"c","groupGuid":"g","fileName":"n","videoFilePath":"/v.mp4",)"
    R"("picFilePath":"/v.jpg","timeOccur":9,"timeBegin":8,"timeEnd":10})";

} // namespace

TEST_F(LocalFileRoutes, StoreUnderEitherNameOnEitherRoute)
{
    for (const char* url : {kLocalFile, kVideoFileNotify}) {
        for (const std::string key : {"localFileNotify", "localFile"}) {
            SCOPED_TRACE(url + key);
            const std::string clip = Call(url, "{\"" + key + "\":" + kClip + "}");
            EXPECT_EQ(clip, R"({"fileNotifyResult":{"guid":")" + Clips() + "\"}}");
            EXPECT_EQ(Call(url, R"({"localFile":{"type":1,"guid":")" + Clips() + "\"}}"),
                      R"({"localFileResult":{"path":"/v.mp4"}})");
            const std::string picture = Call(url, "{\"" + key + "\":" + kPicture + "}");
            EXPECT_EQ(picture, R"({"fileNotifyResult":{"guid":")" + Pictures() + "\"}}");
            EXPECT_EQ(Call(url, R"({"localFile":{"type":0,"guid":")" + Pictures() + "\"}}"),
                      R"({"localFileResult":{"path":"/p.jpg"}})");
            EXPECT_EQ(Call(url, R"({"localFile":{"type":1,"guid":")" + Pictures() + "\"}}"),
                      R"({"localFileResult":{"path":""}})");
            connection.Execute("DELETE FROM VideoFile");
            connection.Execute("DELETE FROM PictureFile");
        }
    }
}

TEST_F(LocalFileRoutes, ListPicturesAndClipsByCameraAndByGroup)
{
    Call(kLocalFile, "{\"localFileNotify\":" + kClip + "}");
    Call(kLocalFile, "{\"localFileNotify\":" + kPicture + "}");
    const std::string picture =
        R"({"type":0,"fileGuid":")" + Pictures() +
        R"(","cameraGuid":"c","groupGuid":"","fileName":"n","videoFilePath":"",)"
        R"("picFilePath":"/p.jpg","timeOccur":9,"timeBegin":0,"timeEnd":0,"filSize":0})";
    const std::string clip =
        R"({"type":1,"fileGuid":")" + Clips() +
        R"(","cameraGuid":"c","groupGuid":"g","fileName":"n","videoFilePath":"/v.mp4",)"
        R"("picFilePath":"/v.jpg","timeOccur":9,"timeBegin":8,"timeEnd":10,"filSize":0})";
    const struct
    {
        const char* query;
        std::string items;
    } rows[] = {
        {R"("type":0,"contition":0,"guid":"c","timeBegin":9,"timeEnd":9)", picture},
        {R"("type":1,"contition":0,"guid":"c","timeBegin":"1970-01-01 00:00:09","timeEnd":9)", clip},
        {R"("type":1,"contition":1,"guid":"g","timeBegin":0,"timeEnd":99)", clip},
        {R"("type":1,"contition":0,"guid":"x') OR ('1' = '1","timeBegin":0,"timeEnd":99)", ""},
        {R"("type":1,"contition":1,"guid":"x' OR '1' = '1","timeBegin":0,"timeEnd":99)", ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Call(kLocalFileQuery, std::string("{\"localFileQuery\":{") + row.query + "}}"),
                  "{\"localFileQueryResult\":[" + row.items + "]}");
}

TEST_F(LocalFileRoutes, RefuseAListThatNeedsTooMuchMemory)
{
    connection.Execute("DROP VIEW PictureFile");
    connection.Execute(
        "CREATE VIEW PictureFile AS WITH RECURSIVE row(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM row WHERE "
        "n < 300) SELECT zeroblob(1000000) AS ID, 'c' AS CameraID, 'c' AS GroupID, '2020' AS OccurTime FROM "
        "row");
    for (const std::string condition : {"0", "1"})
        EXPECT_EQ(Call(kLocalFileQuery, R"({"localFileQuery":{"type":0,"contition":)" + condition +
                                            R"(,"guid":"c","timeBegin":0,"timeEnd":4000000000}})"),
                  "413");
}

TEST_F(LocalFileRoutes, AnswerAnEmptyIdentifierWhenNothingWasStored)
{
    const std::string empty = R"({"fileNotifyResult":{"guid":""}})";
    const std::string rows[] = {
        R"({"type":0,"cameraGuid":"c","fileName":"n","videoFilePath":"/v","timeOccur":9})",
        R"({"type":1,"cameraGuid":"c","fileName":"n","picFilePath":"/p","timeOccur":9})",
        R"({"type":1,"cameraGuid":"c","fileName":")" + std::string(1000, 'x') +
            R"(","videoFilePath":"/v","timeOccur":9})"};
    for (const std::string& row : rows)
        EXPECT_EQ(Call(kVideoFileNotify, "{\"localFileNotify\":" + row + "}"), empty);
    EXPECT_EQ(Clips() + Pictures(), "");
}

TEST_F(LocalFileRoutes, DropBadBodiesAfterOneLine)
{
    const std::string rows[] = {
        "no JSON",
        "[]",
        "{}",
        R"({"other":{}})",
        R"({"localFile":5})",
        R"({"localFileNotify":{}})",
        R"({"localFile":{"type":1}})",
        R"({"localFile":{"type":2,"guid":"g"}})",
        R"({"localFile":{"type":1,"guid":"g","timeBegin":5}})",
        R"({"localFileNotify":{"type":1,"guid":"g"}})",
        R"({"localFile":{"type":0,"cameraGuid":"c","fileName":"a\u0000b","picFilePath":"/p","timeOccur":9}})",
        R"({"localFile":{"type":0,"cameraGuid":"c","fileName":"n","picFilePath":"/p","timeOccur":1e99}})"};
    for (const std::string& body : rows) {
        for (const char* url : {kLocalFile, kVideoFileNotify, kLocalFileQuery}) {
            const CapturedLog log;
            EXPECT_EQ(Call(url, body), "none") << body;
            EXPECT_EQ(log.Lines().size(), 1u) << url << body;
        }
    }
    EXPECT_EQ(Clips() + Pictures(), "");
}

TEST_F(LocalFileRoutes, TakeNoTextForAStatement)
{
    const std::string text = "'), ('2','2','2','2','2','2','2','2','2',2); DROP VIEW VideoFile; --";
    for (const char* field : {"cameraGuid", "groupGuid", "fileName", "videoFilePath", "picFilePath"}) {
        std::string body = kClip;
        const std::string name = std::string("\"") + field + "\":\"";
        body.insert(body.find(name) + name.size(), text);
        const std::string answer = Call(kLocalFile, "{\"localFile\":" + body + "}");
        EXPECT_EQ(answer, R"({"fileNotifyResult":{"guid":")" + Clips() + "\"}}");
        EXPECT_EQ(Ask("SELECT count(*) FROM VideoFile"), "1") << body;
        connection.Execute("DELETE FROM VideoFile");
    }
}
