#include "DeviceStructures/layouts/Shared.h"

namespace devices {

QXNET_LAYOUT(tagNET_IPC_PIR_ALARMCFG, "Alarm of the body-heat sensor",
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(reserved),
    QXNET_FIELD(name),
    QXNET_FIELD(handling))

QXNET_LAYOUT(tagNET_IPC_PIR_ALARMCFG_EX, "The same with its sensitivity and holidays",
    QXNET_FIELD(alarm),
    QXNET_FIELD(sensitivity).Range(1, 100).Default(50),
    QXNET_FIELD(reserved),
    QXNET_FIELD(holiday).Note("when it counts on holidays"))

QXNET_LAYOUT(QxNetCallHelpAlarm, "The button for help; it counts at any time",
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(reserved),
    QXNET_FIELD(name),
    QXNET_FIELD(actions))

QXNET_LAYOUT(QxNetWirelessAlarm, "Alarm of a wireless sensor",
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(reserved),
    QXNET_FIELD(sensor).Note("its own number; 0: none is paired"),
    QXNET_FIELD(name),
    QXNET_FIELD(handling))

QXNET_LAYOUT(tagNET_IPC_AUX_ALARMCFG, "Alarms of sensors that belong to a camera",
    QXNET_FIELD(size),
    QXNET_FIELD(pir),
    QXNET_FIELD(callHelp),
    QXNET_FIELD(wireless),
    QXNET_FIELD(reserved))

std::vector<ConfigCommand> AuxAlarmCommands()
{
    return {Parameter<tagNET_IPC_AUX_ALARMCFG>("aux-alarms", Scope::Channel, QXNET_GET_AUX_ALARMS,
                                               QXNET_SET_AUX_ALARMS)};
}

} // namespace devices
