#include "DeviceStructures/layouts/Shared.h"

namespace devices {

static constexpr char kPreRecord[] = "none|5s|10s|15s|20s|25s|30s|unlimited";
static constexpr char kPostRecord[] = "5s|10s|30s|1min|2min|5min|10min";
static constexpr char kStreams[] = "main|sub|main-and-sub|stream3|stream4|stream5|virtual";
static constexpr char kInsteadOfDay[] = "0: holidays are days like any other";

QXNET_LAYOUT(NET_DVR_RECORD_V30, "Recording of a channel, on older devices",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag().Default(1),
    QXNET_FIELD(redundant).Flag().Note("on a second disk too"),
    QXNET_FIELD(audio).Flag().Default(1),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(week),
    QXNET_FIELD(preRecordTime).Named(kPreRecord).Default(1),
    QXNET_FIELD(postRecordTime).Named(kPostRecord),
    QXNET_FIELD(duration).Range(0, 3650).In("d").Note("0: until the disk is full"),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(NET_DVR_RECORD_V40, "Recording of a channel",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag().Default(1),
    QXNET_FIELD(redundant).Flag().Note("on a second disk too"),
    QXNET_FIELD(audio).Flag().Default(1),
    QXNET_FIELD(streamType).Named(kStreams),
    QXNET_FIELD(week),
    QXNET_FIELD(preRecordTime).Named(kPreRecord).Default(1),
    QXNET_FIELD(postRecordTime).Named(kPostRecord),
    QXNET_FIELD(duration).Range(0, 3650).In("d").Note("0: until the disk is full"),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(tagNET_DVR_HOLIDAY_RECORD, "What is recorded on every holiday, instead of the week's day",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag().Note(kInsteadOfDay),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(day),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(tagNET_DVR_HOLIDAY_HANDLE, "When an alarm counts on holidays, and what follows it",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag().Note(kInsteadOfDay),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(armed),
    QXNET_FIELD(actions),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(QxNetHoliday, "Days of every year",
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(startMonth).Range(0, 12).Note("0 in an unused entry; so are those below"),
    QXNET_FIELD(startDay).Range(0, 31),
    QXNET_FIELD(endMonth).Range(0, 12),
    QXNET_FIELD(endDay).Range(0, 31).Note("belongs to the holiday"),
    QXNET_FIELD(reserved),
    QXNET_FIELD(name))

QXNET_LAYOUT(QxNetHolidayCalendar, "Which days are holidays",
    QXNET_FIELD(size),
    QXNET_FIELD(holidays),
    QXNET_FIELD(reserved))

std::vector<ConfigCommand> RecordingCommands()
{
    return {
        Parameter<NET_DVR_RECORD_V30>("record-v30", Scope::Channel, QXNET_GET_RECORD_V30, QXNET_SET_RECORD_V30),
        Parameter<NET_DVR_RECORD_V40>("record-v40", Scope::Channel, QXNET_GET_RECORD_V40, QXNET_SET_RECORD_V40),
        Parameter<tagNET_DVR_HOLIDAY_RECORD>("holiday-record", Scope::Channel, QXNET_GET_HOLIDAY_RECORD,
                                             QXNET_SET_HOLIDAY_RECORD),
        Parameter<QxNetHolidayCalendar>("holiday-calendar", Scope::Channel, QXNET_GET_HOLIDAY_CALENDAR, 0),
        Parameter<tagNET_DVR_HOLIDAY_HANDLE>("motion-holiday", Scope::Channel, QXNET_GET_MOTION_HOLIDAY,
                                             QXNET_SET_MOTION_HOLIDAY),
        Parameter<tagNET_DVR_HOLIDAY_HANDLE>("detection-holiday", Scope::Channel, QXNET_GET_DETECTION_HOLIDAY,
                                             QXNET_SET_DETECTION_HOLIDAY),
        Parameter<tagNET_DVR_HOLIDAY_HANDLE>("alarm-input-holiday", Scope::AlarmInput,
                                             QXNET_GET_ALARM_INPUT_HOLIDAY, QXNET_SET_ALARM_INPUT_HOLIDAY),
    };
}

} // namespace devices
