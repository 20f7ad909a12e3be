#include "logical/System/SystemConfigRoutes.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "Base/StringUtil.h"
#include "Protocol/JSONStruct/HTTP/HTTPCommonJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/SystemJSONStruct.h"
#include "Protocol/JSONStruct/LoggableText.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"
#include "logical/Communication/LPCNames.h"

#include <utility>
#include <vector>

namespace video {
namespace {

using protocol::json::ReadError;
using Record = VideoSystemConfigStruct;
using Changes = std::vector<std::function<void(Record&)>>;

constexpr const char* kGet = "GET";
constexpr int kBadRequest = 400;
constexpr std::size_t kShownName = 64; ///< bytes of an unknown name that the answer shows

struct FolderField
{
    const char* name;
    std::string Record::*member;
};
constexpr FolderField kFolders[] = {{"videoSaveFolder", &Record::videoSaveFolder},
                                    {"captureSaveFolder", &Record::captureSaveFolder}};

/// "1, 6 to 45 or 100".
std::string TextOf(const std::array<ValueSpan, 3>& spans)
{
    std::string text;
    for (std::size_t i = 0; i < spans.size(); ++i) {
        if (i > 0 && spans[i].least == spans[i - 1].least)
            break;
        const bool last = i + 1 == spans.size() || spans[i + 1].least == spans[i].least;
        text += i == 0 ? "" : last ? " or " : ", ";
        text += std::to_string(spans[i].least);
        if (spans[i].greatest != spans[i].least)
            text += " to " + std::to_string(spans[i].greatest);
    }
    return text;
}

bool ReadSetting(const SettingField<std::int32_t>& field, const cJSON* item, std::int32_t& value,
                 ReadError& error)
{
    return (protocol::json::Kind<std::int32_t>::Read(item, value, error) && field.Takes(value)) ||
           protocol::json::Refuse(error, "expected an integer: " + TextOf(field.take));
}

bool ReadSetting(const SettingField<bool>&, const cJSON* item, bool& value, ReadError& error)
{
    const bool number = cJSON_IsNumber(item) && (item->valuedouble == 0 || item->valuedouble == 1);
    if (!cJSON_IsBool(item) && !number)
        return protocol::json::Refuse(error, "expected true or false");
    value = number ? item->valuedouble == 1 : cJSON_IsTrue(item) != 0;
    return true;
}

/// Adds the change that the named value is, if the field is the one of the name. False: it refuses the value.
template<typename M>
bool ReadIf(const SettingField<M>& field, const std::string& name, const cJSON* item, Changes& changes,
            ReadError& error)
{
    if (name != field.name)
        return true;
    M value{};
    if (!ReadSetting(field, item, value, error))
        return false;
    changes.push_back([member = field.member, value](Record& record) { record.*member = value; });
    return true;
}

bool ReadIf(const FolderField& field, const std::string& name, const cJSON* item, Changes& changes,
            ReadError& error)
{
    if (name != field.name)
        return true;
    std::string folder;
    if (!protocol::json::ReadText(item, folder, error))
        return false;
    if (folder.empty() || folder.size() > CSystemConfig::kFolderBytes)
        return protocol::json::Refuse(error, "expected 1 to " + std::to_string(CSystemConfig::kFolderBytes) +
                                                 " bytes");
    changes.push_back([member = field.member, folder](Record& record) { record.*member = folder; });
    return true;
}

bool ReadChange(const std::string& name, const std::string& text, Changes& changes, ReadError& error)
{
    const std::size_t before = changes.size();
    const protocol::json::Tree item = protocol::json::ParseText(text, error.reason);
    bool good = item != nullptr;
    const auto read = [&](const auto& field) {
        good = good && ReadIf(field, name, item.get(), changes, error);
    };
    ForEachSetting(read);
    for (const FolderField& folder : kFolders)
        read(folder);
    if (good && changes.size() == before)
        good = protocol::json::Refuse(error, "there is no such setting");
    return good || protocol::json::RefuseUnder(Base::StringUtil::CutUtf8(name, kShownName).c_str(), error);
}

bool ReadChanges(const protocol::NamedValues& values, Changes& changes, ReadError& error)
{
    for (const auto& [name, value] : values)
        if (!ReadChange(name, value.text, changes, error))
            return false;
    return true;
}

template<typename M>
protocol::RawJSON JSONOf(const M& value)
{
    return {protocol::json::PrintText(protocol::json::Kind<M>::Write(value).get())};
}

RouteAnswer Whole(const Record& record)
{
    protocol::SystemConfigsData data;
    ForEachSetting([&](const auto& field) { data.settings[field.name] = JSONOf(record.*field.member); });
    for (const FolderField& folder : kFolders)
        data.settings[folder.name] = JSONOf(record.*folder.member);
    return {protocol::WriteJSONStr(data)};
}

RouteAnswer Refused(const ReadError& error)
{
    const std::string message = error.path + ": " + error.reason;
    BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "Refused to set the settings. Error info: [%s].",
                 protocol::LoggableText(message).c_str());
    protocol::CommonResponseData response;
    response.result.errorCode = lpc::kInvalidArgument;
    response.message = message;
    return {protocol::WriteJSONStr(response), kBadRequest, lpc::kInvalidArgument};
}

RouteAnswer Set(CSystemConfig& settings, const protocol::NamedValues& values)
{
    Changes changes;
    ReadError error;
    if (!ReadChanges(values, changes, error))
        return Refused(error);
    if (!changes.empty())
        settings.SetTogether([&](Record& record) {
            for (const auto& change : changes)
                change(record);
        });
    return Whole(settings.Settings());
}

} // namespace

void ServeSystemConfigs(CRouteTable& http, SystemConfigSource settings, AnswerCall answer)
{
    http.Bind(route::kSystemConfigs, [settings = std::move(settings),
                                      answer = std::move(answer)](const lpcclient::LPCCallBackData& call) {
        protocol::SystemConfigsData asked;
        const bool reads = call.body.empty() || call.Header(kMethodHeader) == kGet;
        if (reads || protocol::TParseJSONStr(asked, call.body))
            answer(call, Set(settings(), asked.settings));
    });
}

} // namespace video
