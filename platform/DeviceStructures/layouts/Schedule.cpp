#include "DeviceStructures/layouts/Shared.h"

namespace devices {

static constexpr char kOccasions[] = "continuous|event|motion|alarm-input|detection|motion-and-alarm|command";

QXNET_LAYOUT(QxNetSegment, "From start to before end, on one day; empty where both are equal",
    QXNET_FIELD(startHour).Range(0, 24).In("h"),
    QXNET_FIELD(startMinute).Range(0, 59).In("min"),
    QXNET_FIELD(endHour).Range(0, 24).In("h").Note("24:00 is the end of the day"),
    QXNET_FIELD(endMinute).Range(0, 59).In("min"),
    QXNET_FIELD(type).Named(kOccasions).Note("0 where a schedule only says when"),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(QxNetDay, "One day of a schedule",
    QXNET_FIELD(allDay).Flag().Default(1).Note("from 00:00 to 24:00 with the day's type, besides the segments"),
    QXNET_FIELD(type).Named(kOccasions).Note("of the whole day"),
    QXNET_FIELD(reserved),
    QXNET_FIELD(segments))

QXNET_LAYOUT(QxNetWeek, "A schedule", QXNET_FIELD(days).Note("Monday first"))

QXNET_LAYOUT(QxNetPoint, "A point of a picture",
    QXNET_FIELD(x).Range(0, 1000).In("1/1000").Note("of the width, from the left"),
    QXNET_FIELD(y).Range(0, 1000).In("1/1000").Note("of the height, from the top"))

QXNET_LAYOUT(QxNetRegion, "A polygon in a picture",
    QXNET_FIELD(count).Range(0, 10).Note("of points; 0: the whole picture"),
    QXNET_FIELD(reserved),
    QXNET_FIELD(points))

QXNET_LAYOUT(QxNetAlarmActions, "What follows an alarm",
    QXNET_FIELD(notify).Flag().Default(1).Note("clients are told"),
    QXNET_FIELD(sound).Flag().Note("the device's buzzer"),
    QXNET_FIELD(mail).Flag().Note("the device sends a mail"),
    QXNET_FIELD(reserved),
    QXNET_FIELD(recordChannels).Numbers().Note("cameras that are recorded"),
    QXNET_FIELD(outputs).Numbers().Note("alarm outputs that are switched on"))

QXNET_LAYOUT(QxNetAlarmHandling, "When an alarm counts, and what follows it",
    QXNET_FIELD(armed),
    QXNET_FIELD(actions))

} // namespace devices
