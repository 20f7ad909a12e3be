#include "device/Commands.h"
#include "device/Output.h"
#include "device/Tool.h"

#include "Base/StringUtil.h"
#include "DeviceStructures/Text.h"
#include "QxNetSDK/Structures.h"

#include <cstring>
#include <ostream>

namespace devicetool {

namespace {

struct AlarmOutput
{
    std::string name;
    bool on;
};

bool ReadOutputs(CDevice& device, std::vector<AlarmOutput>& outputs)
{
    devices::Octets octets;
    if (!device.Get(*devices::FindCommand(QXNET_GET_ALARM_STATES), 0, octets))
        return false;
    QxNetAlarmStates states{};
    std::memcpy(&states, octets.data(), sizeof(states));
    for (std::int32_t number = 1; number <= states.outputCount; ++number) {
        if (!device.Get(*devices::FindCommand(QXNET_GET_ALARM_OUTPUT), number, octets))
            return false;
        QxNetAlarmOutput output{};
        std::memcpy(&output, octets.data(), sizeof(output));
        outputs.push_back({output.name, (states.outputs[(number - 1) / 8] >> ((number - 1) % 8) & 1) != 0});
    }
    return true;
}

int ListOutputs(Context& context)
{
    std::vector<AlarmOutput> outputs;
    if (!ReadOutputs(context.device, outputs))
        return context.Failed("outputs");
    std::vector<Row> rows{{"output", "state", "name"}};
    std::vector<std::string> pieces;
    for (const AlarmOutput& output : outputs) {
        rows.push_back(
            {std::to_string(rows.size()), output.on ? "on" : "off", devices::Visible(output.name)});
        pieces.push_back(Base::StringUtil::Format("{\"output\":%zu,\"on\":%s,\"name\":", pieces.size() + 1,
                                                  output.on ? "true" : "false") +
                         JsonString(output.name) + "}");
    }
    context.out << (context.Json() ? JsonList(pieces) + "\n" : Columns(rows));
    return kGood;
}

} // namespace

int RunOutputs(Context& context)
{
    const auto& words = context.invocation.words;
    if (words.empty())
        return ListOutputs(context);
    const auto number = words.size() == 2 ? ParseNumber(words[1], 1, 512) : std::nullopt;
    if (!number || (words[0] != "on" && words[0] != "off"))
        return context.WrongUse("outputs takes on or off and a number from 1 to 512");
    const auto& command = *devices::FindCommand(QXNET_SWITCH_ALARM_OUTPUT);
    devices::Octets order = devices::Defaults(command.layout());
    const devices::Field* on = command.layout().Find("on");
    devices::WriteNumber(*on, &order[on->offset], words[0] == "on");
    return context.device.Set(command, static_cast<std::int32_t>(*number), order) ? kGood
                                                                                  : context.Failed("outputs");
}

} // namespace devicetool
