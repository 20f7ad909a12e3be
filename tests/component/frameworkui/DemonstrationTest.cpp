#include "framework/ui/demonstration/Demonstration.h"

#include "Protocol/JSONStruct/ParseJSONUtil.h"
#include "component/framework/CoreWorld.h"
#include "support/FakeDevices.h"

#include <QFileInfo>
#include <QImage>

#include <atomic>
#include <set>

using framework::CSimulatedDevices;

namespace {

/// A catalogue in this process that loses one answer.
class Demonstration : public CoreTest
{
protected:
    Demonstration()
    {
        connectDevices = true;
        StartCore();
        fakedevices::Device device = fakedevices::Make(3);
        device.password = CSimulatedDevices::kPassword;
        fakedevices::Set("127.0.0.1", device);
    }
    ~Demonstration() override
    {
        core.reset();
        fakedevices::Clear();
    }

    void Serve(const lpc::CallBackData& call)
    {
        std::string answer = R"({"fileNotifyResult":{"guid":"new"}})";
        if (call.Header("url") == "/vantor/v1/internal/video/localFileQuery")
            answer = protocol::WriteJSONStr(known);
        else if (!Store(call.body))
            answer.clear();
        EXPECT_TRUE(lpcclient::Reply({call.requestId, {}, answer}));
    }

    bool Store(const std::string& body)
    {
        protocol::LocalFileNotify record;
        EXPECT_TRUE(protocol::ParseJSONStr(record, body));
        records.push_back(record);
        protocol::LocalFileQueryItem item;
        item.type = record.type;
        item.fileGuid = "new";
        item.cameraGuid = record.cameraGuid;
        item.fileName = record.fileName;
        known.files = {item};
        return records.size() != kLost;
    }

    /// The whole of a run, if there is anything to do.
    void Run()
    {
        framework::CDemonstration demonstration(
            *core, Folder(), [this] { ++reports; }, kFiles);
        if (demonstration.WantsDevices())
            demonstration.TakeDevices({"admin", {{"East", port}, {"West", port + 1}}});
        demonstration.Run();
    }

    std::int32_t port = 4000;
    static constexpr int kFiles = 12;
    static constexpr std::size_t kLost = 6; ///< the first clip is among those before
    protocol::LocalFileQueryResult known;   ///< the latest record
    std::vector<protocol::LocalFileNotify> records;
    std::atomic<int> reports{0};
};

TEST_F(Demonstration, GoesOnWhereItEndedAndMakesEachFileOnce)
{
    TestClient component(lpc::kVideoComponentName);
    component.onRequest = [this](const lpc::CallBackData& call) { Serve(call); };
    component.BecomeReady();
    Run();
    EXPECT_EQ(records.size(), kLost);
    port = 5000;
    for (int again = 0; again < 2; ++again)
        Run();
    ASSERT_EQ(core->Resources().Devices().size(), 2u);
    EXPECT_EQ(core->Resources().Devices()[1].port, 5001);
    EXPECT_EQ(reports, 2);
    ASSERT_EQ(records.size(), std::size_t(kFiles));

    std::set<std::string> paths;
    int clips = 0;
    for (const protocol::LocalFileNotify& record : records) {
        const QString picture = QString::fromStdString(record.picFilePath);
        EXPECT_EQ(QImage(picture).size(), QSize(640, 360)) << record.picFilePath;
        paths.insert(record.picFilePath);
        if (record.type == protocol::LocalFileType::Picture)
            continue;
        ++clips;
        const std::int64_t frames = 5 * (record.timeEnd.count - record.timeBegin.count);
        EXPECT_GT(QFileInfo(QString::fromStdString(record.videoFilePath)).size(),
                  frames * QFileInfo(picture).size() / 2);
    }
    EXPECT_EQ(paths.size(), records.size());
    EXPECT_EQ(clips, kFiles / 3);
}

TEST_F(Demonstration, LeavesADataRootWithDevicesAlone)
{
    TestClient component(lpc::kVideoComponentName);
    component.onRequest = [this](const lpc::CallBackData& call) { Serve(call); };
    component.BecomeReady();
    const std::string own = AddDevice("Yard");
    Run();
    ASSERT_TRUE(core->Resources().Remove(own));
    Run();
    EXPECT_EQ(core->Resources().Devices().size() + records.size(), 0u);
}

} // namespace
