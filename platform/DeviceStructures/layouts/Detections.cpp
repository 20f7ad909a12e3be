#include "DeviceStructures/layouts/Shared.h"

namespace devices {

static constexpr char kDirections[] = "both|to-right|to-left";
static constexpr char kTargets[] = "they are framed in the picture";

QXNET_LAYOUT(QxNetDetectionRule, "A rule of smart detection",
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(kind).Named("none|enter|leave|stay|left|taken|crowd|fast|cross"),
    QXNET_FIELD(sensitivity).Range(1, 100).Default(50),
    QXNET_FIELD(direction).Named(kDirections).Note("across the line of the region's first two points"),
    QXNET_FIELD(name),
    QXNET_FIELD(duration).Range(0, 3600).In("s").Note("that it must last"),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(minWidth).Range(0, 1000).In("1/1000").Note("of the object"),
    QXNET_FIELD(minHeight).Range(0, 1000).In("1/1000"),
    QXNET_FIELD(maxWidth).Range(0, 1000).Default(1000).In("1/1000"),
    QXNET_FIELD(maxHeight).Range(0, 1000).Default(1000).In("1/1000"),
    QXNET_FIELD(region),
    QXNET_FIELD(handling),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(tagNET_DVR_VCA_DETECTION_CFG_V40, "The rules of a channel's smart detection",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(showRule).Flag().Note("regions are drawn into the picture"),
    QXNET_FIELD(showTarget).Flag().Note(kTargets),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(rules),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(tagNET_DVR_DETECT_FACE, "Detection of faces",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(sensitivity).Range(1, 100).Default(50),
    QXNET_FIELD(showTarget).Flag().Note(kTargets),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(region),
    QXNET_FIELD(handling),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(tagNET_DVR_SCENECHANGE_DETECTION, "Somebody turned or moved the camera",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(sensitivity).Range(1, 100).Default(50),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(handling),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(QxNetLine, "A line that is watched",
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(direction).Named(kDirections).Note("seen from start to end"),
    QXNET_FIELD(sensitivity).Range(1, 100).Default(50),
    QXNET_FIELD(reserved),
    QXNET_FIELD(start),
    QXNET_FIELD(end))

QXNET_LAYOUT(tagNET_VCA_TRAVERSE_PLANEPARAM, "Something crosses a line",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(showTarget).Flag().Note(kTargets),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(lines),
    QXNET_FIELD(handling),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(QxNetField, "A field that is watched",
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(sensitivity).Range(1, 100).Default(50),
    QXNET_FIELD(duration).Range(0, 100).In("s").Note("that it must last"),
    QXNET_FIELD(share).Range(0, 100).Default(50).In("%").Note("of the target that must be inside"),
    QXNET_FIELD(region))

QXNET_LAYOUT(tagNET_VCA_FIELDDETECION, "Something is where nothing may be",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(showTarget).Flag().Note(kTargets),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(fields),
    QXNET_FIELD(handling),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(tagNET_VCA_DEFOCUSPARAM, "The picture lost its focus",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(sensitivity).Range(1, 100).Default(50),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(handling),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(tagNET_DVR_AUDIO_EXCEPTION, "Sound that is missing, or suddenly louder or quieter",
    QXNET_FIELD(size),
    QXNET_FIELD(enabled).Flag(),
    QXNET_FIELD(inputLost).Flag().Default(1).Note("alarm when there is no sound at all"),
    QXNET_FIELD(rise).Flag().Note("alarm when it is suddenly louder"),
    QXNET_FIELD(riseSensitivity).Range(1, 100).Default(50),
    QXNET_FIELD(riseThreshold).Range(0, 100).Default(50).In("%"),
    QXNET_FIELD(fall).Flag().Note("alarm when it is suddenly quieter"),
    QXNET_FIELD(fallSensitivity).Range(1, 100).Default(50),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(handling),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(tagNET_DVR_CHANNEL_GROUP, "Which item of a batch",
    QXNET_FIELD(size),
    QXNET_FIELD(channel).Range(1, 512),
    QXNET_FIELD(group).Range(0, 255).Note("of detections, where a channel has several"),
    QXNET_FIELD(reserved))

const Layout& ChannelGroupLayout()
{
    return LayoutOf<tagNET_DVR_CHANNEL_GROUP>();
}

std::vector<ConfigCommand> DetectionCommands()
{
    return {
        Parameter<tagNET_DVR_VCA_DETECTION_CFG_V40>("vca-detection", Scope::Channel, QXNET_GET_VCA_DETECTION,
                                                    QXNET_SET_VCA_DETECTION),
        Parameter<tagNET_DVR_DETECT_FACE>("face-detection", Scope::Item, QXNET_GET_FACE_DETECTION,
                                          QXNET_SET_FACE_DETECTION),
        Parameter<tagNET_DVR_SCENECHANGE_DETECTION>("scene-change", Scope::Item, QXNET_GET_SCENE_CHANGE,
                                                    QXNET_SET_SCENE_CHANGE),
        Parameter<tagNET_VCA_TRAVERSE_PLANEPARAM>("traverse-plane", Scope::Item, QXNET_GET_TRAVERSE_PLANE,
                                                  QXNET_SET_TRAVERSE_PLANE),
        Parameter<tagNET_VCA_FIELDDETECION>("field-detection", Scope::Item, QXNET_GET_FIELD_DETECTION,
                                            QXNET_SET_FIELD_DETECTION),
        Parameter<tagNET_VCA_DEFOCUSPARAM>("defocus", Scope::Item, QXNET_GET_DEFOCUS, QXNET_SET_DEFOCUS),
        Parameter<tagNET_DVR_AUDIO_EXCEPTION>("audio-exception", Scope::Item, QXNET_GET_AUDIO_EXCEPTION,
                                              QXNET_SET_AUDIO_EXCEPTION),
    };
}

} // namespace devices
