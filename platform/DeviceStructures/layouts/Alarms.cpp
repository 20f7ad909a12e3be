#include "DeviceStructures/layouts/Shared.h"

namespace devices {

static constexpr char kContacts[] = "normally-open|normally-closed";

QXNET_LAYOUT(QxNetAlarmInput, "An alarm input of the device",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(contact).Named(kContacts),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(name),
    QXNET_FIELD(handling),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(QxNetAlarmOutput, "An alarm output of the device",
    QXNET_FIELD(size),
    QXNET_FIELD(contact).Named(kContacts),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(holdTime).Range(0, 3600).Default(5).In("s").Note("after an alarm; 0: until it is switched off"),
    QXNET_FIELD(name),
    QXNET_FIELD(armed).Note("when alarms may switch it"),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(QxNetAlarmStates, "All alarm inputs and outputs at once",
    QXNET_FIELD(size),
    QXNET_FIELD(inputCount).Range(0, 512),
    QXNET_FIELD(outputCount).Range(0, 512),
    QXNET_FIELD(inputs).Numbers().Note("that are in alarm"),
    QXNET_FIELD(outputs).Numbers().Note("that are on"),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(QxNetOutputSwitch, "Switches an alarm output",
    QXNET_FIELD(size),
    QXNET_FIELD(on).Flag(),
    QXNET_FIELD(reserved))

std::vector<ConfigCommand> AlarmCommands()
{
    return {
        Parameter<QxNetAlarmInput>("alarm-input", Scope::AlarmInput, QXNET_GET_ALARM_INPUT, QXNET_SET_ALARM_INPUT),
        Parameter<QxNetAlarmOutput>("alarm-output", Scope::AlarmOutput, QXNET_GET_ALARM_OUTPUT,
                                    QXNET_SET_ALARM_OUTPUT),
        Parameter<QxNetAlarmStates>("alarm-states", Scope::Device, QXNET_GET_ALARM_STATES, 0),
        Parameter<QxNetOutputSwitch>("output-switch", Scope::AlarmOutput, 0, QXNET_SWITCH_ALARM_OUTPUT),
    };
}

} // namespace devices
