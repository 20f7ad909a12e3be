#pragma once

#include "Protocol/JSONStruct/JSONMessage.h"

#include <cstdint>
#include <string>

/// Messages about the framework's own settings and window.
namespace protocol {

/// How dates and times are shown, in the letters of QDateTime's formats.
struct DateTimeFormatData : CMessage<DateTimeFormatData, IInboundData>
{
    static constexpr const char* kKey = "dateTimeFormat";
    std::string dateFormat; ///< for example "yyyy-MM-dd"
    std::string timeFormat; ///< for example "HH:mm:ss"

    static constexpr auto Fields()
    {
        using T = DateTimeFormatData;
        return std::make_tuple(Must("dateFormat", &T::dateFormat), Must("timeFormat", &T::timeFormat));
    }
};

/// The folders in which clips and pictures are saved unless the user chose others; UTF-8.
struct DefaultFilePathData : CMessage<DefaultFilePathData, IInboundData>
{
    static constexpr const char* kKey = "filepath";
    std::string videoPath;
    std::string picturePath;

    static constexpr auto Fields()
    {
        using T = DefaultFilePathData;
        return std::make_tuple(Must("videoPath", &T::videoPath), Must("picturePath", &T::picturePath));
    }
};

/// The component's settings by their names, all or some of them: what they are called and which values they
/// take is told by the list of their fields, VideoSystemConfigStruct.
struct SystemConfigsData : CMessage<SystemConfigsData, IInboundData>
{
    static constexpr const char* kKey = "systemConfigs";
    NamedValues settings;

    static constexpr auto Fields() { return Whole(&SystemConfigsData::settings); }
};

/// Asks the framework to give an embedded window another size.
struct FrameResizeData : CMessage<FrameResizeData, IInboundData>
{
    static constexpr const char* kKey = "frameResize";
    std::string type;        ///< the window's name
    std::int32_t width = 0;  ///< pixels
    std::int32_t height = 0; ///< pixels

    static constexpr auto Fields()
    {
        using T = FrameResizeData;
        return std::make_tuple(Must("type", &T::type), Must("width", &T::width), Must("height", &T::height));
    }
};

} // namespace protocol
