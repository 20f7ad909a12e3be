#include "device/Commands.h"
#include "device/Output.h"
#include "device/Tool.h"

#include "Base/FileUtil.h"
#include "DeviceStructures/Json.h"
#include "DeviceStructures/MemberPath.h"
#include "DeviceStructures/Text.h"

#include <istream>
#include <iterator>
#include <ostream>

namespace devicetool {

namespace {

using devices::ConfigCommand;
using devices::Octets;

constexpr std::uint32_t kLastChannel = 512;
constexpr std::size_t kLongestBatch = 256;

/// The parameter that the first word names; null after a complaint.
const ConfigCommand* NamedParameter(Context& context)
{
    const auto& words = context.invocation.words;
    if (words.empty()) {
        context.WrongUse(context.invocation.command + " needs a parameter");
        return nullptr;
    }
    const auto number = ParseNumber(words[0], 1, 0xFFFFFFFF);
    const ConfigCommand* command = number ? devices::FindCommand(*number) : devices::FindParameter(words[0]);
    if (!command)
        context.WrongUse("there is no parameter " + words[0] + " (vantor-device commands lists them)");
    return command;
}

/// The channel that the parameter is asked for; none after a complaint.
std::optional<std::int32_t> NamedChannel(Context& context, const ConfigCommand& command)
{
    const bool given = context.invocation.Has("--channel");
    if (command.scope == devices::Scope::Device) {
        if (!given)
            return 0;
        context.WrongUse(std::string(command.parameter) + " is of the device, not of a channel");
        return std::nullopt;
    }
    if (!given)
        return 1;
    const auto channel = ParseNumber(context.invocation.Value("--channel"), 0, kLastChannel);
    if (channel)
        return static_cast<std::int32_t>(*channel);
    context.WrongUse("--channel must be a whole number from 0 to 512");
    return std::nullopt;
}

/// Changes a structure as the words MEMBER=VALUE behind the parameter say; false after a complaint.
bool ChangeMembers(Context& context, const devices::Layout& layout, Octets& structure)
{
    const auto& words = context.invocation.words;
    for (std::size_t i = 1; i < words.size(); ++i) {
        const auto equals = words[i].find('=');
        if (equals == std::string::npos) {
            context.WrongUse(words[i] + " is not of the form MEMBER=VALUE");
            return false;
        }
        const std::string value = words[i].substr(equals + 1);
        if (const auto fault = devices::SetMember(layout, structure, words[i].substr(0, equals), value)) {
            context.WrongUse(*fault);
            return false;
        }
    }
    return true;
}

/// A whole structure from JSON; false after a complaint.
bool ReadFrom(Context& context, const devices::Layout& layout, Octets& structure)
{
    const std::string file = context.invocation.Value("--from");
    std::string text;
    if (file == "-") {
        text.assign(std::istreambuf_iterator<char>(context.in), {});
    } else if (!Base::FileUtil::ReadFile(file, text)) {
        context.WrongUse(file + " cannot be read");
        return false;
    }
    structure = devices::Defaults(layout);
    const auto fault = devices::FromJson(layout, text, structure);
    if (fault)
        context.WrongUse(file + ": " + *fault);
    return !fault;
}

/// Batches show their channels by a heading, or as objects with channel, error and value. Text tells of a
/// change only where it failed.
void ShowItems(Context& context, const devices::Layout& layout, const std::vector<CDevice::Item>& items,
               bool changed)
{
    std::vector<std::string> pieces;
    for (const CDevice::Item& item : items) {
        const bool good = item.failure.error == 0;
        const std::string channel = std::to_string(item.channel);
        if (context.Json())
            pieces.push_back(
                "{\"channel\":" + channel + ",\"error\":" + std::to_string(item.failure.error) +
                ",\"value\":" + (good ? devices::ToJson(layout, item.structure.data()) : "null") + "}");
        else if (good && !changed)
            context.out << "channel " << channel << "\n"
                        << devices::ToText(layout, item.structure.data()) << "\n";
        else if (!good)
            context.err << "vantor-device: channel " << channel << ": " << ErrorText(item.failure) << "\n";
    }
    if (context.Json())
        context.out << JsonList(pieces) << "\n";
}

bool AnyFailed(const std::vector<CDevice::Item>& items)
{
    for (const CDevice::Item& item : items)
        if (item.failure.error)
            return true;
    return false;
}

/// Writes those that could be read; the others keep their failures.
bool WriteRead(CDevice& device, const ConfigCommand& command, std::vector<CDevice::Item>& items)
{
    std::vector<CDevice::Item> good;
    for (const CDevice::Item& item : items)
        if (!item.failure.error)
            good.push_back(item);
    if (!good.empty() && !device.SetMany(command, good))
        return false;
    std::size_t next = 0;
    for (CDevice::Item& item : items)
        if (!item.failure.error)
            item.failure = good[next++].failure;
    return true;
}

/// Changes the members in every item that was read and writes it; kGood when all went well so far.
int ChangeItems(Context& context, const ConfigCommand& command, std::vector<CDevice::Item>& items)
{
    for (CDevice::Item& item : items)
        if (!item.failure.error && !ChangeMembers(context, command.layout(), item.structure))
            return kWrongUse;
    return WriteRead(context.device, command, items) ? kGood : context.Failed(command.parameter);
}

} // namespace

void Show(Context& context, const devices::Layout& layout, const Octets& structure)
{
    if (context.Json())
        context.out << devices::ToJson(layout, structure.data()) << "\n";
    else
        context.out << devices::ToText(layout, structure.data());
}

int CheckParameter(Context& context)
{
    const ConfigCommand* command = NamedParameter(context);
    return command && NamedChannel(context, *command) ? kGood : kWrongUse;
}

int CheckChange(Context& context)
{
    if (CheckParameter(context) != kGood)
        return kWrongUse;
    const ConfigCommand* command = NamedParameter(context);
    Octets fresh = devices::Defaults(command->layout());
    return ChangeMembers(context, command->layout(), fresh) ? kGood : kWrongUse;
}

int RunGet(Context& context)
{
    const ConfigCommand* command = NamedParameter(context);
    const auto channel = command ? NamedChannel(context, *command) : std::nullopt;
    if (!channel)
        return kWrongUse;
    if (!command->get)
        return context.WrongUse(std::string(command->parameter) + " can only be set");
    Octets structure;
    if (!context.device.Get(*command, *channel, structure))
        return context.Failed(command->parameter);
    Show(context, command->layout(), structure);
    return kGood;
}

int RunSet(Context& context)
{
    const ConfigCommand* command = NamedParameter(context);
    const auto channel = command ? NamedChannel(context, *command) : std::nullopt;
    if (!channel)
        return kWrongUse;
    const bool whole = context.invocation.Has("--from");
    const bool members = context.invocation.words.size() > 1;
    if (!command->set)
        return context.WrongUse(std::string(command->parameter) + " can only be read");
    if (whole == members && (whole || command->get))
        return context.WrongUse("set needs either MEMBER=VALUE or --from FILE");
    Octets structure = devices::Defaults(command->layout());
    if (whole && !ReadFrom(context, command->layout(), structure))
        return kWrongUse;
    if (members && command->get && !context.device.Get(*command, *channel, structure))
        return context.Failed(command->parameter);
    if (!ChangeMembers(context, command->layout(), structure))
        return kWrongUse;
    return context.device.Set(*command, *channel, structure) ? kGood : context.Failed(command->parameter);
}

int RunBatch(Context& context)
{
    const ConfigCommand* command = NamedParameter(context);
    if (!command)
        return kWrongUse;
    const auto channels = devices::ParseNumbers(context.invocation.Value("--channels"), kLastChannel);
    if (!channels || channels->empty() || channels->size() > kLongestBatch)
        return context.WrongUse("batch needs --channels with 1 to 256 numbers up to 512, such as 1-4,7");
    if (command->scope == devices::Scope::Device || !command->get)
        return context.WrongUse(std::string(command->parameter) + " is not read for many channels");
    const bool change = context.invocation.words.size() > 1;
    if (change && !command->set)
        return context.WrongUse(std::string(command->parameter) + " can only be read");
    std::vector<CDevice::Item> items;
    for (unsigned channel : *channels)
        items.push_back({channel, {}, {}});
    if (!context.device.GetMany(*command, items))
        return context.Failed(command->parameter);
    if (change)
        if (const int result = ChangeItems(context, *command, items); result != kGood)
            return result;
    ShowItems(context, command->layout(), items, change);
    return AnyFailed(items) ? kFailed : kGood;
}

} // namespace devicetool
