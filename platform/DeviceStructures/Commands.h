#pragma once

#include "DeviceStructures/Layout.h"

#include <vector>

namespace devices {

/// What the channel of a command counts.
enum class Scope {
    Device,      ///< nothing; it is 0
    Channel,     ///< cameras, from 1
    AlarmInput,  ///< from 1
    AlarmOutput, ///< from 1
    Item,        ///< cameras; travels in batches, asked for with tagNET_DVR_CHANNEL_GROUP
};

/// A parameter of a device that can be read or written.
struct ConfigCommand
{
    const char* parameter; ///< its name, such as "record-v40"
    std::uint32_t get;     ///< command number; 0: it can't be read
    std::uint32_t set;     ///< command number; 0: it can't be written
    Scope scope;
    const Layout& (*layout)();
};

template<typename Structure>
ConfigCommand Parameter(const char* name, Scope scope, std::uint32_t get, std::uint32_t set)
{
    return {name, get, set, scope, &LayoutOf<Structure>};
}

/// All parameters, family by family.
const std::vector<ConfigCommand>& ConfigCommands();

/// The parameter of a name; null when there is none.
const ConfigCommand* FindParameter(std::string_view name);

/// The parameter that a command number gets or sets; null when there is none.
const ConfigCommand* FindCommand(std::uint32_t number);

/// Every structure that travels and every one within them, each once, the inner before the outer.
std::vector<const Layout*> AllLayouts();

/// The layout of a structure by its name in C; null when there is none.
const Layout* FindLayout(std::string_view name);

const char* ScopeName(Scope scope);

/// The rows of each family.
std::vector<ConfigCommand> DeviceCommands();
std::vector<ConfigCommand> RecordingCommands();
std::vector<ConfigCommand> CaptureCommands();
std::vector<ConfigCommand> StorageCommands();
std::vector<ConfigCommand> CameraCommands();
std::vector<ConfigCommand> MotionCommands();
std::vector<ConfigCommand> DetectionCommands();
std::vector<ConfigCommand> AuxAlarmCommands();
std::vector<ConfigCommand> NetworkCommands();
std::vector<ConfigCommand> AlarmCommands();

/// Of a record that has no command of its own.
const Layout& ChannelGroupLayout();

} // namespace devices
