#include "device/Commands.h"
#include "device/Output.h"
#include "device/Tool.h"

#include "QxNetSDK/QxNetSDK.h"

#include <ostream>

namespace devicetool {

namespace {

constexpr struct Ability
{
    const char* name;
    std::uint32_t kind;
} kAbilities[] = {{"input", QXNET_ABILITY_CHANNEL_INPUT},
                  {"basic", QXNET_ABILITY_BASIC},
                  {"record", QXNET_ABILITY_RECORD},
                  {"picture", QXNET_ABILITY_JPEG_CAPTURE},
                  {"detection", QXNET_ABILITY_VCA}};

/// Documents as they came, one behind the other; as JSON an object by name.
void ShowDocuments(Context& context, const std::vector<std::pair<std::string, std::string>>& documents)
{
    std::string json;
    for (const auto& [name, document] : documents) {
        if (!context.Json())
            context.out << document << (document.empty() || document.back() != '\n' ? "\n" : "");
        json += (json.empty() ? "" : ",") + JsonString(name) + ":" + JsonString(document);
    }
    if (context.Json())
        context.out << "{" << json << "}\n";
}

} // namespace

int RunAbilities(Context& context)
{
    const auto& words = context.invocation.words;
    const auto channel = context.invocation.Has("--channel")
                             ? ParseNumber(context.invocation.Value("--channel"), 0, 512)
                             : std::uint32_t{1};
    if (!channel)
        return context.WrongUse("--channel must be a whole number from 0 to 512");
    std::vector<std::pair<std::string, std::string>> documents;
    bool known = words.empty();
    for (const Ability& ability : kAbilities) {
        if (!words.empty() && words[0] != ability.name)
            continue;
        known = true;
        std::string document;
        if (context.device.Ability(ability.kind, static_cast<std::int32_t>(*channel), document))
            documents.emplace_back(ability.name, document);
        else if (!words.empty() || context.device.LastFailure().error != QXNET_ERROR_NOT_SUPPORTED)
            return context.Failed(std::string("ability ") + ability.name);
    }
    if (!known)
        return context.WrongUse("there is no ability " + words[0]);
    ShowDocuments(context, documents);
    return kGood;
}

} // namespace devicetool
