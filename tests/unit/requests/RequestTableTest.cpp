#include "Base/Error.h"
#include "CommunicationLayer/CommunicationLayer.h"
#include "CommunicationLayer/DeviceRequests.h"
#include "CommunicationLayer/FrameworkRequests.h"
#include "logical/Communication/LPCRequest/DeviceRequest.h"
#include "logical/Communication/LPCRequest/ToolRequest.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace protocol;
using Lines = std::vector<std::string>;

/// Keeps the requests and gives each the same answer.
class FakeTransport : public commlayer::ITransport
{
public:
    explicit FakeTransport(std::string body = {}, bool good = true) : m_body(std::move(body)), m_good(good) {}

    bool request(commlayer::RspInfos& answer, const commlayer::RequestParams& params, bool) override
    {
        requests.push_back(params);
        answer.status = 200;
        answer.body = m_body;
        return m_good;
    }

    std::vector<commlayer::RequestParams> requests;

private:
    std::string m_body;
    bool m_good;
};

template<typename Answer>
std::function<bool(commlayer::ITransport&)> Query(bool (*request)(Answer&, commlayer::ITransport&))
{
    return [request](commlayer::ITransport& transport) {
        Answer answer;
        return request(answer, transport);
    };
}

template<typename Answer>
std::function<bool(commlayer::ITransport&)> OfDevice(bool (*request)(const std::string&, Answer&,
                                                                     commlayer::ITransport&))
{
    return [request](commlayer::ITransport& transport) {
        Answer answer;
        return request("dev 1/2", answer, transport);
    };
}

bool OutputsOf(commlayer::ITransport& transport, const std::string& device)
{
    AlarmOutputInfoData outputs;
    return video::CAlarmoutputComm(transport).RequestSingleDeviceAlarmoutput(device, outputs);
}

bool Switch(commlayer::ITransport& transport, const std::string& device, const std::string& output)
{
    AlarmOutputControlData control;
    control.active = true;
    CommonResponseData result;
    return video::CAlarmoutputComm(transport).RequestControl(device, output, control, result);
}

struct Row
{
    const char* name;
    std::function<bool(commlayer::ITransport&)> request;
    const char* method;
    const char* url;
    const char* body;
    const char* answer;      ///< a good one
    const char* failureText; ///< of the request itself, beside the transport's; nullptr: none
};

constexpr const char* kGood = R"({"response":{"result":{"errorCode":0}}})";
constexpr const char* kEmptyDevice =
    R"({"device":{"guid":"d","name":"n","typeCode":1,"address":"a","port":80}})";

const Row kRows[] = {
    {"RegisterComponent",
     [](auto& transport) {
         return commlayer::CRegisterComponent::request({"/a", "b"}, transport);
     },
     "POST", "/vantor/v1/internal/framework/register",
     R"({"componentRegisterInfo":{"supportUrlList":["/a","b"]}})", kGood, nullptr},
    {"Components", Query(&commlayer::CGetComponents::request), "GET",
     "/vantor/v1/internal/framework/components", "", R"({"componentList":[]})", nullptr},
    {"RegisterAlarm", [](auto& transport) { return commlayer::CRegisterAlarm::request(transport); }, "POST",
     "/vantor/v1/internal/alarmCenter/register",
     R"({"alarmRegister":{"componentId":"Video.C","alarmTypes":[]}})", kGood, nullptr},
    {"DateTimeFormat", Query(&commlayer::CGetDateTimeFormat::request), "GET",
     "/vantor/v1/internal/framework/system/dateTimeFormat", "",
     R"({"dateTimeFormat":{"dateFormat":"d","timeFormat":"t"}})", nullptr},
    {"FilePath", Query(&commlayer::CGetDefaultFilePath::request), "GET",
     "/vantor/v1/internal/framework/system/filepath", "",
     R"({"filepath":{"videoPath":"v","picturePath":"p"}})", nullptr},
    {"FrameResize",
     [](auto& transport) {
         FrameResizeData size;
         size.type = "MainView";
         size.width = 800;
         size.height = 600;
         return commlayer::CFrameResize::request(size, transport);
     },
     "PUT", "/vantor/v1/internal/framework/system/frameResize",
     R"({"frameResize":{"type":"MainView","width":800,"height":600}})", "", nullptr},
    {"ModifyAllGroups",
     [](auto& transport) {
         ModifyGroupCondition condition;
         condition.allSmartRule = 1;
         GroupListData groups;
         return commlayer::CModifyAllGroupsComm::request(groups, condition, transport);
     },
     "PUT", "/vantor/v1/deviceManagement/groups", R"({"modifyGroupCondition":{"allSmartRule":1}})",
     R"({"groupList":[]})", nullptr},
    {"Devices", Query(&commlayer::CGetDevices::request), "GET", "/vantor/v1/deviceManagement/devices", "",
     R"({"deviceList":[]})", nullptr},
    {"Device", OfDevice(&commlayer::CGetDevice::request), "GET",
     "/vantor/v1/deviceManagement/devices/dev%201%2F2", "", kEmptyDevice, nullptr},
    {"Channels", OfDevice(&commlayer::CGetDeviceChannels::request), "GET",
     "/vantor/v1/deviceManagement/devices/dev%201%2F2/channels/", "", R"({"channelList":[]})", nullptr},
    {"Groups", Query(&commlayer::CGetGroups::request), "GET", "/vantor/v1/deviceManagement/groups", "",
     R"({"groupList":[]})", nullptr},
    {"AlarmInputs", OfDevice(&commlayer::CGetDeviceAlarmInputs::request), "GET",
     "/vantor/v1/deviceManagement/devices/dev%201%2F2/alarmInputs/", "", R"({"alarmInputList":[]})", nullptr},
    {"TimeSync",
     [](auto& transport) {
         DeviceList devices;
         devices.deviceGuids = {"a", "b"};
         TimeSyncResultListData results;
         return video::CTimeSyncComm(transport).Request(devices, results);
     },
     "POST", "/vantor/v1/deviceManagement/batchTimeSynchronization", R"({"deviceGuidList":["a","b"]})",
     R"({"timeSyncResultList":[]})", "Failed to LPCSendData. msg:[ requestAlarmControl ]"},
    {"Wiper",
     [](auto& transport) {
         WiperControlData control;
         control.channelGuids = {"c"};
         control.action = WiperAction::Start;
         WiperControlResultListData results;
         return video::CWiperComm(transport).Request(results, control);
     },
     "POST", "/vantor/v1/deviceManagement/wipers", R"({"wiperControl":{"channelGuids":["c"],"action":1}})",
     R"({"wiperControlResultList":[]})", "Failed to LPCSendData. msg:[ wiperequest ]"},
    {"AllAlarmOutputs",
     [](auto& transport) {
         AlarmOutputInfoData outputs;
         return video::CAlarmoutputComm(transport).RequestAllDeviceAlarmoutput(outputs);
     },
     "GET", "/vantor/v1/deviceManagement/devices/alarmOutputs", "", R"({"alarmOutputList":[]})",
     "Failed to LPCSendData. msg:[ wiperequest ]"},
    {"AlarmOutputsOfADevice", [](auto& transport) { return OutputsOf(transport, "d?x=1"); }, "GET",
     "/vantor/v1/deviceManagement/devices/d%3Fx%3D1/alarmOutputs", "", R"({"alarmOutputList":[]})",
     "Failed to LPCSendData. msg:[ requestAlarm ]"},
    {"AlarmOutputControl", [](auto& transport) { return Switch(transport, "d/..", "o%/\xC3\xA9"); }, "PUT",
     "/vantor/v1/deviceManagement/devices/d%2F../alarmOutputs/o%25%2F%C3%A9/controls",
     R"({"alarmOutputControl":{"active":true}})", kGood,
     "Failed to LPCSendData. msg:[ requestAlarmControl ]"},
};

class EveryRequest : public ::testing::TestWithParam<Row>
{};
INSTANTIATE_TEST_SUITE_P(Rows, EveryRequest, ::testing::ValuesIn(kRows),
                         [](const auto& info) { return info.param.name; });

TEST_P(EveryRequest, GoesToItsRouteWithItsBody)
{
    FakeTransport transport(GetParam().answer);
    const CapturedLog log;
    EXPECT_TRUE(GetParam().request(transport));
    EXPECT_TRUE(log.Lines().empty());
    ASSERT_EQ(transport.requests.size(), 1u);
    EXPECT_EQ(transport.requests[0].method, GetParam().method);
    EXPECT_EQ(transport.requests[0].url, GetParam().url);
    EXPECT_EQ(transport.requests[0].body, GetParam().body);
    EXPECT_GT(transport.requests[0].timeoutMs, 0u);
}

TEST_P(EveryRequest, FailsWithItsOwnTextWhenTheTransportFails)
{
    FakeTransport transport({}, false);
    const CapturedLog log;
    EXPECT_FALSE(GetParam().request(transport));
    EXPECT_EQ(log.Errors(), GetParam().failureText ? Lines{GetParam().failureText} : Lines{});
}

TEST_P(EveryRequest, FailsWhenTheAnswerIsOfAnotherForm)
{
    FakeTransport transport(R"({"response":5,"other":{}})");
    Base::Error::SetLastError(0);
    const CapturedLog log;
    EXPECT_FALSE(GetParam().request(transport));
    EXPECT_EQ(Base::Error::GetLastError(), commlayer::kBadAnswer);
    EXPECT_EQ(log.Lines().size(), GetParam().failureText ? 2u : 1u);
}

TEST(EveryQuery, FailsWithOneLineWhenTheAnswerIsEmpty)
{
    FakeTransport transport;
    DateTimeFormatData format;
    const CapturedLog log;
    EXPECT_FALSE(commlayer::CGetDateTimeFormat::request(format, transport));
    EXPECT_EQ(log.Errors(),
              Lines{"Failed to request [url-/vantor/v1/internal/framework/system/dateTimeFormat]. The answer "
                    "is empty."});
}

TEST(EveryCommand, IsGoodWithoutACommonResponse)
{
    for (const char* body : {"", "{}", R"({"result":"fine"})", "[]"}) {
        FakeTransport transport(body);
        EXPECT_TRUE(commlayer::CRegisterAlarm::request(transport)) << body;
    }
}

TEST(EveryCommand, FailsWithTheErrorNumberOfTheCommonResponse)
{
    FakeTransport transport(R"({"response":{"result":{"errorCode":11,"errorModuleCode":22}}})");
    CommonResponseData result;
    const CapturedLog log;
    EXPECT_FALSE(video::CAlarmoutputComm(transport).RequestControl("d", "o", {}, result));
    EXPECT_EQ(result.result.errorCode, 11);
    EXPECT_EQ(result.result.errorModuleCode, 22);
    EXPECT_EQ(Base::Error::GetLastError(), 11);
    EXPECT_EQ(log.Errors(),
              (Lines{"Failed to request [url-/vantor/v1/deviceManagement/devices/d/alarmOutputs/o/controls]. "
                     "[error-11-22].",
                     "Failed to LPCSendData. msg:[ requestAlarmControl ]"}));
    for (const CapturedLog::Line& line : log.Lines())
        EXPECT_EQ(line.logger, "VideoLogger");
    FakeTransport good;
    EXPECT_TRUE(video::CAlarmoutputComm(good).RequestControl("d", "o", {}, result));
    EXPECT_EQ(result.result.errorCode, 0) << "left over from the call before";
}

TEST(Identifiers, ThatCannotStandInAUrlSendNothing)
{
    const std::string tooLong(257, 'x');
    for (const std::string& bad : {std::string(), std::string("."), std::string(".."), tooLong}) {
        FakeTransport transport(R"({"alarmOutputList":[]})");
        Base::Error::SetLastError(0);
        EXPECT_FALSE(OutputsOf(transport, bad)) << bad;
        EXPECT_EQ(Base::Error::GetLastError(), commlayer::kBadIdentifier) << bad;
        EXPECT_FALSE(Switch(transport, "d", bad)) << bad;
        EXPECT_FALSE(Switch(transport, bad, "o")) << bad;
        EXPECT_TRUE(transport.requests.empty()) << bad;
    }
}

TEST(Identifiers, KeepTheirPlaceInThePathWhateverTheyHold)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string segment = commlayer::PathSegment(std::string("a") + static_cast<char>(byte));
        EXPECT_EQ(segment.find_first_of("/?#&;: \r\n\\"), std::string::npos) << byte;
        EXPECT_TRUE(segment.size() == 2 || (segment.size() == 4 && segment[1] == '%')) << byte;
    }
}

TEST(DeviceRequests, GiveNoCredentialsThatDoNotOpen)
{
    FakeTransport transport(
        R"({"device":{"guid":"d","name":"n","typeCode":1,"address":"a","port":80,"userName":"x","password":"y"}})");
    DeviceResponseData device;
    Base::Error::SetLastError(0);
    const CapturedLog log;
    EXPECT_FALSE(video::CDeviceComm(transport).RequestDevice("d", device));
    EXPECT_EQ(device.guid, "d");
    EXPECT_EQ(device.userName + device.password, "");
    EXPECT_EQ(Base::Error::GetLastError(), commlayer::kBadAnswer);
    EXPECT_TRUE(log.Has("CDecryptionComm failed!"));
}

TEST(CommunicationLayer, FailsCleanlyWithoutTransport)
{
    const auto transport = std::make_shared<FakeTransport>(R"({"componentList":[]})");
    ComponentListData components;
    for (int round = 0; round < 2; ++round) {
        commlayer::CommunicationLayerInit(transport);
        EXPECT_TRUE(commlayer::CGetComponents::request(components));
        commlayer::CommunicationLayerUnInit();
        commlayer::CommunicationLayerUnInit();
        const CapturedLog log;
        EXPECT_FALSE(commlayer::CGetComponents::request(components));
        EXPECT_EQ(Base::Error::GetLastError(), commlayer::kNoTransport);
        EXPECT_EQ(log.Lines().size(), 1u);
    }
    EXPECT_EQ(transport->requests.size(), 2u);
    EXPECT_EQ(transport.use_count(), 1);
}

} // namespace
