#include "device/Commands.h"
#include "device/Output.h"
#include "device/Tool.h"

#include "Base/StringUtil.h"
#include "DeviceStructures/Json.h"
#include "DeviceStructures/MemberPath.h"
#include "DeviceStructures/Text.h"
#include "QxNetSDK/Structures.h"

#include <cstring>
#include <ostream>

namespace devicetool {

namespace {

/// All channels of the device, page after page.
bool ReadChannels(CDevice& device, std::vector<QxNetChannelState>& channels)
{
    const auto& command = *devices::FindCommand(QXNET_GET_CHANNEL_PAGE);
    QxNetChannelPage page{};
    do {
        devices::Octets octets;
        if (!device.Get(command, static_cast<std::int32_t>(channels.size() + 1), octets))
            return false;
        std::memcpy(&page, octets.data(), sizeof(page));
        channels.insert(channels.end(), page.channels, page.channels + page.count);
    } while (page.count > 0 && channels.size() < page.total);
    return true;
}

std::string StateName(std::uint32_t state)
{
    static const devices::Field* const field = devices::FindLayout("QxNetChannelState")->Find("state");
    const auto name = devices::ValueName(*field, state);
    return name.empty() ? std::to_string(state) : std::string(name);
}

} // namespace

int RunInfo(Context& context)
{
    const auto& command = *devices::FindCommand(QXNET_GET_DEVICE_INFO);
    devices::Octets info;
    if (!context.device.Get(command, 0, info))
        return context.Failed("info");
    Show(context, command.layout(), info);
    return kGood;
}

int RunChannels(Context& context)
{
    std::vector<QxNetChannelState> channels;
    if (!ReadChannels(context.device, channels))
        return context.Failed("channels");
    if (!context.Json()) {
        std::vector<Row> rows{{"channel", "state", "name"}};
        for (const QxNetChannelState& channel : channels)
            rows.push_back(
                {std::to_string(channel.channel), StateName(channel.state), devices::Visible(channel.name)});
        context.out << Columns(rows);
        return kGood;
    }
    std::vector<std::string> pieces;
    for (const QxNetChannelState& channel : channels)
        pieces.push_back(devices::ToJson(*devices::FindLayout("QxNetChannelState"),
                                         reinterpret_cast<const std::uint8_t*>(&channel)));
    context.out << JsonList(pieces) << "\n";
    return kGood;
}

int RunCommands(Context& context)
{
    const auto number = [](std::uint32_t command) { return command ? std::to_string(command) : "-"; };
    std::vector<Row> rows{{"parameter", "get", "set", "of", "structure", "bytes"}};
    std::vector<std::string> pieces;
    for (const devices::ConfigCommand& command : devices::ConfigCommands()) {
        const devices::Layout& layout = command.layout();
        const char* scope = devices::ScopeName(command.scope);
        rows.push_back({command.parameter, number(command.get), number(command.set), scope, layout.name,
                        std::to_string(layout.size)});
        pieces.push_back(Base::StringUtil::Format(
            R"({"parameter":"%s","get":%u,"set":%u,"of":"%s","structure":"%s","bytes":%u})",
            command.parameter, command.get, command.set, scope, layout.name, layout.size));
    }
    context.out << (context.Json() ? JsonList(pieces) + "\n" : Columns(rows));
    return kGood;
}

} // namespace devicetool
