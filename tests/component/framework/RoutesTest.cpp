#include "component/framework/CoreWorld.h"

#include "Base/Encrypt.h"
#include "Base/StringUtil.h"
#include "CommonMethod/DataEncryptionConfig.h"
#include "CommonMethod/DecryptionComm.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"
#include "support/FakeDevices.h"
#include "support/WaitUntil.h"

#include <cstring>
#include <future>

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::string kInternal = "/vantor/v1/internal/";
const std::string kManagement = "/vantor/v1/deviceManagement/";
const std::string kDevices = kManagement + "devices";

struct Row
{
    std::string method;
    std::string url; ///< "$device", "$output", "$camera", "$off" stand for identifiers
    std::string body;
    std::string status;
    std::string part; ///< of the answer's body
};

const std::vector<Row> kRows = {
    {"GET", kInternal + "framework/components", "", "200", R"("componentId":"Video.C")"},
    {"GET", kInternal + "framework/system/filepath", "", "200", "/Video/"},
    {"GET", kInternal + "framework/system/dateTimeFormat", "", "200", R"("timeFormat":"HH:mm:ss")"},
    {"PUT", kInternal + "framework/system/frameResize",
     R"({"frameResize":{"type":"MainView","width":800,"height":600}})", "200", "response"},
    {"PUT", kInternal + "framework/system/frameResize",
     R"({"frameResize":{"type":"MainView","width":0,"height":600}})", "400", "pixels"},
    {"POST", kInternal + "alarmCenter/register", R"({"alarmRegister":{"componentId":"Video.C"}})", "200", ""},
    {"POST", kInternal + "alarmCenter/register", R"({"alarmRegister":{}})", "400", "alarmRegister"},
    {"POST", kInternal + "alarmCenter/register", "", "400", "alarmRegister"},
    {"POST", kInternal + "framework/register", R"({"componentRegisterInfo":{"supportUrlList":1}})", "400",
     ""},
    {"GET", kDevices, "", "200", R"("name":"Yard")"},
    {"GET", kDevices + "/$device", "", "200", R"({"device":{"guid":"$device")"},
    {"GET", kDevices + "/nothing%20such", "", "404", R"(\"nothing such\")"},
    {"GET", kDevices + "/$device/channels/", "", "200", R"("deviceGuid":"$device")"},
    {"GET", kDevices + "/$device/channels", "", "404", "route"},
    {"GET", kDevices + "/other/channels/", "", "404", "other"},
    {"GET", kDevices + "/%zz/channels/", "", "404", "route"},
    {"GET", kDevices + "/$device/alarmInputs/", "", "200", "Input 2"},
    {"GET", kDevices + "/$device/alarmOutputs", "", "200", "Output 2"},
    {"GET", kDevices + "/alarmOutputs", "", "200", R"("guid":"$output")"},
    {"PUT", kDevices + "/$device/alarmOutputs/$output/controls", R"({"alarmOutputControl":{"active":true}})",
     "200", R"("errorCode":0)"},
    {"GET", kDevices + "/$device/alarmOutputs", "", "200", R"("number":1,"active":true)"},
    {"PUT", kDevices + "/$device/alarmOutputs/x/controls", R"({"alarmOutputControl":{"active":true}})", "404",
     "output"},
    {"PUT", kDevices + "/$off/alarmOutputs/$offOutput/controls", R"({"alarmOutputControl":{"active":true}})",
     "503", "offline"},
    {"PUT", kDevices + "/$device/alarmOutputs/$output/controls", "{", "400", "alarmOutputControl"},
    {"PUT", kManagement + "groups", R"({"modifyGroupCondition":{"allSmartRule":1}})", "200",
     R"({"groupList":[{"guid")"},
    {"PUT", kManagement + "groups", R"({"modifyGroupCondition":{"allSmartRule":1}})", "200",
     R"({"groupList":[]})"},
    {"GET", kManagement + "groups", "", "200", R"("channelGuids":["$camera")"},
    {"POST", kManagement + "batchTimeSynchronization", R"({"deviceGuidList":["$device","x","$off"]})", "200",
     R"("errorCode":0,"errorModuleCode":0}},{"deviceGuid":"x","result":{"errorCode":404,)"},
    {"POST", kManagement + "wipers", R"({"wiperControl":{"channelGuids":["$camera","x"],"action":2}})", "200",
     R"({"channelGuid":"x","result":{"errorCode":404)"},
    {"POST", kManagement + "wipers", R"({"wiperControl":{"channelGuids":[],"action":3}})", "400", "wiper"},
    {"POST", kManagement + "wipers", std::string(10000, '['), "400", "wiper"},
    {"POST", kManagement + "wipers", "{\"wiperControl\":\"\xFF\"}", "400", "wiper"},
    {"DELETE", kDevices, "", "405", "method"},
    {"GET", "/vantor/v1/nothing", "", "404", "route"},
};

class Routes : public CoreTest
{
protected:
    Routes()
    {
        connectDevices = true;
        StartCore();
        fakedevices::Device played = fakedevices::Make(2);
        played.password = kPassword;
        device = Reach("Yard", "yard.example", played);
        off = Reach("Off", "off.example", played);
        played.error = QXNET_ERROR_UNREACHABLE;
        fakedevices::Set("off.example", played);
        EXPECT_TRUE(WaitUntil([&] { return !core->Resources().Devices()[1].online; }));
    }
    ~Routes() override
    {
        core.reset();
        fakedevices::Clear();
    }

    std::string Reach(const std::string& name, const std::string& host, const fakedevices::Device& played)
    {
        fakedevices::Set(host, played);
        std::string error;
        const std::string guid =
            core->Resources().Add({name, host, 8000, kUserName, kPassword, false}, error);
        EXPECT_TRUE(WaitUntil([&] { return core->Resources().Devices().back().online; })) << error;
        return guid;
    }

    std::string Filled(std::string text) const
    {
        const framework::CResources& resources = core->Resources();
        const std::pair<std::string, std::string> values[] = {
            {"$device", device},
            {"$output", resources.AlarmOutputs(device)[0].guid},
            {"$camera", resources.Channels(device)[0].guid},
            {"$offOutput", resources.AlarmOutputs(off)[0].guid},
            {"$off", off}};
        for (const auto& [name, value] : values)
            text = Base::StringUtil::StringReplace(text, name, value);
        return text;
    }

    std::string device;
    std::string off;
};

TEST_F(Routes, AnswerTheComponentAndSayWhatIsWrongWithARequest)
{
    TestClient component(lpc::kVideoComponentName);
    for (const Row& row : kRows) {
        const CapturedLog log;
        const auto answer = component.Request(row.method, Filled(row.url), Filled(row.body));
        EXPECT_EQ(answer.status, row.status) << row.url << answer.body;
        EXPECT_THAT(answer.body, HasSubstr(Filled(row.part))) << row.url;
        EXPECT_EQ(log.Messages(Base::LogLevel::Error).size(), row.status == "400" ? 1u : 0u)
            << row.url << row.body;
    }
    EXPECT_TRUE(events.texts.Take("resize MainView 800x600"));
    QxNetOutputSwitch output{};
    const std::string written = fakedevices::Written("yard.example", QXNET_SWITCH_ALARM_OUTPUT, 1);
    ASSERT_EQ(written.size(), sizeof output);
    std::memcpy(&output, written.data(), sizeof output);
    EXPECT_EQ(output.on, 1);
    QxNetClock clock{};
    ASSERT_EQ(fakedevices::Written("yard.example", QXNET_SET_CLOCK, 0).size(), sizeof clock);
    std::memcpy(&clock, fakedevices::Written("yard.example", QXNET_SET_CLOCK, 0).data(), sizeof clock);
    EXPECT_GE(clock.year, 2025);
    EXPECT_EQ(fakedevices::Written("yard.example", QXNET_SET_WIPER, 1).size(), sizeof(QxNetWiper));
}

TEST_F(Routes, AskDevicesSideBySideWhileOtherRoutesAreServed)
{
    fakedevices::Device hanging = fakedevices::Make(2);
    hanging.error = QXNET_ERROR_ANSWER_TIMEOUT;
    fakedevices::Set("yard.example", hanging);
    TestClient component(lpc::kVideoComponentName);
    const auto batch = std::async(std::launch::async, [&] {
        return component.Request("POST", kManagement + "batchTimeSynchronization",
                                 Filled(R"({"deviceGuidList":["$device","$device","$device"]})"));
    });
    EXPECT_TRUE(WaitUntil([] { return fakedevices::Hanging() >= 3; }));
    EXPECT_EQ(component.Request("GET", kDevices).status, "200");
    EXPECT_EQ(batch.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
}

TEST_F(Routes, GiveCredentialsToTheComponentOnlyAndEnciphered)
{
    const auto setup = comm_method::CDataEncryptionConfig(Folder() + "DESetup.xml").Read();
    ASSERT_TRUE(setup);
    Base::Encrypt::SetAESParams(setup->Params());
    for (const std::string& url : {kDevices, kDevices + "/" + device}) {
        {
            TestClient other("somebody");
            const auto answer = other.Request("GET", url);
            EXPECT_THAT(answer.body, AllOf(HasSubstr(R"("userName":"","password":"")"), HasSubstr("Yard")));
        }
        TestClient component(lpc::kVideoComponentName);
        const auto answer = component.Request("GET", url);
        EXPECT_THAT(answer.body, AllOf(Not(HasSubstr(kUserName)), Not(HasSubstr(kPassword))));
        protocol::DeviceResponseListData list;
        if (url == kDevices)
            ASSERT_TRUE(protocol::TParseJSONStr(list, answer.body));
        else
            ASSERT_TRUE(protocol::TParseJSONStr(list.devices.emplace_back(), answer.body));
        ASSERT_TRUE(comm_method::decryptDeviceResponseList(list));
        EXPECT_EQ(list.devices[0].userName, kUserName);
        EXPECT_EQ(list.devices[0].password, kPassword);
    }
    Base::Encrypt::ClearAESParams();
}

TEST_F(Routes, TakeOnlyWhatFitsIntoMemory)
{
    TestClient other("somebody");
    const std::string url = kManagement + "batchTimeSynchronization";
    const std::string mebibyte = R"({"deviceGuidList":[]})" + std::string(1024 * 1024 - 21, ' ');
    EXPECT_EQ(other.Request("POST", url, mebibyte).status, "200");
    EXPECT_EQ(other.Request("POST", url, mebibyte + " ").status, "413");
}

TEST_F(Routes, LetNobodyButAComponentRegister)
{
    TestClient other("somebody");
    EXPECT_EQ(other
                  .Request("POST", kInternal + "framework/register",
                           R"({"componentRegisterInfo":{"supportUrlList":["/x"]}})")
                  .status,
              "403");
}

} // namespace
