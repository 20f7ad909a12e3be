#include "DeviceStructures/layouts/Shared.h"

namespace devices {

QXNET_LAYOUT(tagNET_DVR_STREAM_CABAC, "Entropy coding of the main stream",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag().Default(1).Note("yes: CABAC, no: CAVLC"),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(tagNET_DVR_PTZ_LOCKCFG, "Keeps pan, tilt and zoom for one user",
    QXNET_FIELD(size),
    QXNET_FIELD(locked).Flag(),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(holdTime).Range(0, 86400).Default(60).In("s").Note("without a movement, then the lock ends; 0: never"),
    QXNET_FIELD(owner),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(QxNetWiper, "The wiper of a camera",
    QXNET_FIELD(size),
    QXNET_FIELD(mode).Named("off|once|interval").Note("once: it wipes when this is set, and is off again"),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(interval).Range(5, 3600).Default(60).In("s"),
    QXNET_FIELD(reserved2))

std::vector<ConfigCommand> CameraCommands()
{
    return {
        Parameter<tagNET_DVR_STREAM_CABAC>("cabac", Scope::Channel, QXNET_GET_CABAC, QXNET_SET_CABAC),
        Parameter<tagNET_DVR_PTZ_LOCKCFG>("ptz-lock", Scope::Channel, QXNET_GET_PTZ_LOCK, QXNET_SET_PTZ_LOCK),
        Parameter<QxNetWiper>("wiper", Scope::Channel, QXNET_GET_WIPER, QXNET_SET_WIPER),
    };
}

} // namespace devices
