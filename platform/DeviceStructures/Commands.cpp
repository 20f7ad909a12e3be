#include "DeviceStructures/Commands.h"

#include <algorithm>

namespace devices {

namespace {

std::vector<ConfigCommand> Collect()
{
    std::vector<ConfigCommand> all;
    for (auto family :
         {DeviceCommands, RecordingCommands, CaptureCommands, StorageCommands, CameraCommands, MotionCommands,
          DetectionCommands, AuxAlarmCommands, NetworkCommands, AlarmCommands}) {
        const std::vector<ConfigCommand> rows = family();
        all.insert(all.end(), rows.begin(), rows.end());
    }
    return all;
}

void AddWithInner(const Layout& layout, std::vector<const Layout*>& all)
{
    if (std::find(all.begin(), all.end(), &layout) != all.end())
        return;
    for (const Field& field : layout)
        if (field.nested)
            AddWithInner(field.nested(), all);
    all.push_back(&layout);
}

template<typename Test>
const ConfigCommand* FindIf(Test test)
{
    const auto& all = ConfigCommands();
    const auto found = std::find_if(all.begin(), all.end(), test);
    return found == all.end() ? nullptr : &*found;
}

} // namespace

const std::vector<ConfigCommand>& ConfigCommands()
{
    static const std::vector<ConfigCommand> all = Collect();
    return all;
}

const ConfigCommand* FindParameter(std::string_view name)
{
    return FindIf([&](const ConfigCommand& command) { return name == command.parameter; });
}

const ConfigCommand* FindCommand(std::uint32_t number)
{
    if (number == 0)
        return nullptr;
    return FindIf(
        [&](const ConfigCommand& command) { return command.get == number || command.set == number; });
}

std::vector<const Layout*> AllLayouts()
{
    std::vector<const Layout*> all;
    for (const ConfigCommand& command : ConfigCommands())
        AddWithInner(command.layout(), all);
    AddWithInner(ChannelGroupLayout(), all);
    return all;
}

const Layout* FindLayout(std::string_view name)
{
    for (const Layout* layout : AllLayouts())
        if (name == layout->name)
            return layout;
    return nullptr;
}

const char* ScopeName(Scope scope)
{
    switch (scope) {
    case Scope::Channel:
        return "channel";
    case Scope::AlarmInput:
        return "alarm input";
    case Scope::AlarmOutput:
        return "alarm output";
    case Scope::Item:
        return "batch item";
    default:
        return "device";
    }
}

} // namespace devices
