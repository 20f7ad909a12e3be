#include "DeviceStructures/layouts/Shared.h"

namespace devices {

QXNET_LAYOUT(QxNetMotionArea, "A region where motion is looked for",
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(sensitivity).Range(0, 100).Default(50),
    QXNET_FIELD(objectSize).Range(0, 100).Default(5).In("%").Note("of the area must move"),
    QXNET_FIELD(reserved),
    QXNET_FIELD(region))

QXNET_LAYOUT(QxNetMotionScene, "What is watched while the camera looks in one direction",
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(sensitivity).Range(0, 100).Default(50).Note("of the grid"),
    QXNET_FIELD(preset).Range(0, 300).Note("at which the scene counts; 0: at any"),
    QXNET_FIELD(name),
    QXNET_FIELD(grid).Range(0, 1).Note("64 rows of 96 cells from the top left; 1: watched"),
    QXNET_FIELD(areas).Note("for the mode areas"))

QXNET_LAYOUT(NET_DVR_MOTION_V40, "Motion detection of a channel",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(highlight).Flag().Note("what moves is marked in the picture"),
    QXNET_FIELD(mode).Named("grid|areas"),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(handling),
    QXNET_FIELD(holiday).Note("when motion counts on holidays"),
    QXNET_FIELD(scenes),
    QXNET_FIELD(reserved2))

std::vector<ConfigCommand> MotionCommands()
{
    return {Parameter<NET_DVR_MOTION_V40>("motion", Scope::Channel, QXNET_GET_MOTION, QXNET_SET_MOTION)};
}

} // namespace devices
