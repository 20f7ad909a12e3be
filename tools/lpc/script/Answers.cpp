#include "lpc/script/Answers.h"

#include "Base/FileUtil.h"
#include "Base/StringUtil.h"
#include "lpc/json/Matcher.h"

#include <algorithm>

namespace lpctool {

namespace {

constexpr const char* kDone = R"({"response":{"result":{"errorCode":0,"errorModuleCode":0},"message":""}})";

constexpr const char* kDeviceRecord =
    R"({"guid":"$device","name":"Encoder","typeCode":1,"subType":0,"address":"127.0.0.1","port":8000,)"
    R"("online":true})";
constexpr const char* kOutputRecord =
    R"({"guid":"output-1","deviceGuid":"$device","name":"Siren","number":1,"active":false})";

/// Bodies hold variables: "$device" is the device that the url names (at first "device-1"), "$videoPath" and
/// "$picturePath" lie in the user's data root, "$deviceRecord" and "$outputRecord" stand above, "$results"
/// has a good result for each identifier in the request. The first row that matches counts.
constexpr struct
{
    const char* url;
    const char* body;
} kDefaults[] = {
    {"/vantor/v1/internal/framework/register", kDone},
    {"/vantor/v1/internal/framework/components",
     R"({"componentList":[{"componentId":"Video.C","name":"Video","version":"3.0.0","loaded":true}]})"},
    {"/vantor/v1/internal/framework/system/filepath",
     R"({"filepath":{"videoPath":"$videoPath","picturePath":"$picturePath"}})"},
    {"/vantor/v1/internal/framework/system/dateTimeFormat",
     R"({"dateTimeFormat":{"dateFormat":"yyyy-MM-dd","timeFormat":"HH:mm:ss"}})"},
    {"/vantor/v1/internal/framework/system/frameResize", kDone},
    {"/vantor/v1/internal/alarmCenter/register", kDone},
    {"/vantor/v1/deviceManagement/groups", R"({"groupList": []})"},
    {"/vantor/v1/deviceManagement/batchTimeSynchronization", R"({"timeSyncResultList":"$results"})"},
    {"/vantor/v1/deviceManagement/wipers", R"({"wiperControlResultList":"$results"})"},
    {"/vantor/v1/deviceManagement/devices", R"({"deviceList":["$deviceRecord"]})"},
    {"/vantor/v1/deviceManagement/devices/alarmOutputs", R"({"alarmOutputList":["$outputRecord"]})"},
    {"/vantor/v1/deviceManagement/devices/*", R"({"device":"$deviceRecord"})"},
    {"/vantor/v1/deviceManagement/devices/*/channels/",
     R"({"channelList":[{"guid":"channel-1","deviceGuid":"$device","groupGuid":"group-1","name":"Entrance",)"
     R"("channelNo":1,"online":true},{"guid":"channel-2","deviceGuid":"$device","groupGuid":"group-1",)"
     R"("name":"Yard","channelNo":2,"online":true}]})"},
    {"/vantor/v1/deviceManagement/devices/*/alarmInputs/",
     R"({"alarmInputList":[{"guid":"input-1","deviceGuid":"$device","name":"Door","number":1}]})"},
    {"/vantor/v1/deviceManagement/devices/*/alarmOutputs", R"({"alarmOutputList":["$outputRecord"]})"},
    {"/vantor/v1/deviceManagement/devices/*/alarmOutputs/*/controls", kDone},
};

JsonValue TextValue(const std::string& text)
{
    return OwnJson(cJSON_CreateString(text.c_str()));
}

/// The segment behind ".../devices/" of a url that goes on after it.
std::string DeviceOf(const std::string& url)
{
    const auto segments = Base::StringUtil::Split(url, '/');
    const bool named = segments.size() > 5 && segments[4] == "devices" && segments[5] != "alarmOutputs";
    return named ? segments[5] : "device-1";
}

/// A good result for each identifier of the list, under the name that results have for it.
JsonValue GoodResults(const cJSON* identifiers, const char* name)
{
    cJSON* results = cJSON_CreateArray();
    const cJSON* identifier = nullptr;
    cJSON_ArrayForEach(identifier, identifiers)
    {
        cJSON* result = cJSON_CreateObject();
        cJSON_AddItemToObject(result, name, cJSON_Duplicate(identifier, true));
        cJSON_AddNumberToObject(cJSON_AddObjectToObject(result, "result"), "errorCode", 0);
        cJSON_AddItemToArray(results, result);
    }
    return OwnJson(results);
}

JsonValue ResultsFor(const std::string& body)
{
    const JsonValue request = ParseJson(body);
    if (const cJSON* wiper = Member(request.get(), "wiperControl"))
        return GoodResults(Member(wiper, "channelGuids"), "channelGuid");
    return GoodResults(Member(request.get(), "deviceGuidList"), "deviceGuid");
}

lpc::Message DefaultAnswer(const lpc::CallBackData& request)
{
    const std::string url = request.Header("url");
    const auto route = std::find_if(std::begin(kDefaults), std::end(kDefaults),
                                    [&](const auto& known) { return UrlMatches(known.url, url); });
    if (route == std::end(kDefaults))
        return MakeAnswer(404, 0, {});
    std::string unknown;
    const std::string root = Base::LocalToUTF8(Base::FileUtil::UserDataRoot());
    Variables variables = {{"device", TextValue(DeviceOf(url))},
                           {"videoPath", TextValue(root + "video/")},
                           {"picturePath", TextValue(root + "picture/")},
                           {"results", ResultsFor(request.body)}};
    variables["deviceRecord"] = Substitute(ParseJson(kDeviceRecord), variables, unknown);
    variables["outputRecord"] = Substitute(ParseJson(kOutputRecord), variables, unknown);
    return MakeAnswer(200, 0, BodyText(Substitute(ParseJson(route->body), variables, unknown)));
}

} // namespace

void CAnswers::Serve(const std::string& url, const std::string& method, Answer answer)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto same = [&](const Served& served) { return served.url == url && served.method == method; };
    m_served.erase(std::remove_if(m_served.begin(), m_served.end(), same), m_served.end());
    m_served.push_back({url, method, std::move(answer)});
}

CAnswers::Answer CAnswers::Find(const lpc::CallBackData& request) const
{
    const std::string url = request.Header("url");
    const std::string method = request.Header("method");
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = std::find_if(m_served.rbegin(), m_served.rend(), [&](const Served& served) {
        return (served.method.empty() || served.method == method) &&
               (served.url.empty() || UrlMatches(served.url, url));
    });
    return found != m_served.rend() ? found->answer : Answer{false, DefaultAnswer(request)};
}

} // namespace lpctool
