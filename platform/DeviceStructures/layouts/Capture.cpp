#include "DeviceStructures/layouts/Shared.h"

namespace devices {

QXNET_LAYOUT(tagNET_DVR_SCHED_CAPTURECFG, "When a channel takes pictures",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(week),
    QXNET_FIELD(holiday).Note("where the device knows holidays"),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(QxNetCaptureGroup, "How pictures are taken on one occasion",
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(resolution).Note("index of the channel's picture ability"),
    QXNET_FIELD(quality).Named("best|better|normal"),
    QXNET_FIELD(intervalUnit).Named("seconds|hours"),
    QXNET_FIELD(interval).Range(1, 604800).Default(5).Note("between two pictures, in the unit above"),
    QXNET_FIELD(count).Range(1, 120).Default(4).Note("pictures an occasion; no meaning for continuous pictures"),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(tagNET_DVR_JPEG_CAPTURE_CFG, "How a channel takes pictures",
    QXNET_FIELD(size),
    QXNET_FIELD(continuous),
    QXNET_FIELD(event),
    QXNET_FIELD(reserved))

std::vector<ConfigCommand> CaptureCommands()
{
    return {
        Parameter<tagNET_DVR_SCHED_CAPTURECFG>("capture-schedule", Scope::Channel, QXNET_GET_CAPTURE_SCHEDULE,
                                               QXNET_SET_CAPTURE_SCHEDULE),
        Parameter<tagNET_DVR_JPEG_CAPTURE_CFG>("jpeg-capture", Scope::Channel, QXNET_GET_JPEG_CAPTURE,
                                               QXNET_SET_JPEG_CAPTURE),
    };
}

} // namespace devices
