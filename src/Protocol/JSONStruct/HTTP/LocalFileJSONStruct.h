#pragma once

#include "Protocol/JSONStruct/JSONMessage.h"

#include <cstdint>
#include <string>
#include <vector>

/// Messages about recorded pictures and clips.
namespace protocol {

enum class LocalFileType { Picture = 0, Video = 1 };
constexpr EnumRange<LocalFileType> JSONEnum(LocalFileType)
{
    return {LocalFileType::Picture, LocalFileType::Video};
}

enum class LocalFileCondition { Camera = 0, Group = 1 };
constexpr EnumRange<LocalFileCondition> JSONEnum(LocalFileCondition)
{
    return {LocalFileCondition::Camera, LocalFileCondition::Group};
}

/// Asks for the path of a record by its identifier.
struct LocalFile : CMessage<LocalFile, IInboundData>
{
    static constexpr const char* kKey = "localFile";
    LocalFileType type = LocalFileType::Picture;
    std::string guid;

    static constexpr auto Fields()
    {
        return std::make_tuple(Must("type", &LocalFile::type), Must("guid", &LocalFile::guid));
    }
};

struct LocalFileResult : CMessage<LocalFileResult, IInboundData>
{
    static constexpr const char* kKey = "localFileResult";
    std::string path; ///< empty: no such record

    static constexpr auto Fields() { return std::make_tuple(Must("path", &LocalFileResult::path)); }
};

/// Tells that a picture or clip was produced.
struct LocalFileNotify : CMessage<LocalFileNotify, IInboundData>
{
    static constexpr const char* kKey = "localFileNotify";
    LocalFileType type = LocalFileType::Picture;
    std::string cameraGuid;
    std::string groupGuid;
    std::string fileName;
    std::string videoFilePath; ///< of a clip
    std::string picFilePath;   ///< of a picture, or of a clip's cover
    Seconds timeOccur;
    Seconds timeBegin;
    Seconds timeEnd;

    static constexpr auto Fields()
    {
        using T = LocalFileNotify;
        return std::make_tuple(Must("type", &T::type), Must("cameraGuid", &T::cameraGuid),
                               May("groupGuid", &T::groupGuid), Must("fileName", &T::fileName),
                               May("videoFilePath", &T::videoFilePath), May("picFilePath", &T::picFilePath),
                               Must("timeOccur", &T::timeOccur), May("timeBegin", &T::timeBegin),
                               May("timeEnd", &T::timeEnd));
    }
};

struct FileNotifyResult : CMessage<FileNotifyResult, IInboundData>
{
    static constexpr const char* kKey = "fileNotifyResult";
    std::string guid; ///< of the new record

    static constexpr auto Fields() { return std::make_tuple(Must("guid", &FileNotifyResult::guid)); }
};

/// Asks for the records of a camera or group in a span of time, both ends included.
struct LocalFileQuery : CMessage<LocalFileQuery, IInboundData>
{
    static constexpr const char* kKey = "localFileQuery";
    LocalFileType type = LocalFileType::Picture;
    LocalFileCondition contition = LocalFileCondition::Camera; ///< spelt so in the body
    std::string guid;                                          ///< of the camera or group
    Seconds timeBegin;
    Seconds timeEnd;

    static constexpr auto Fields()
    {
        using T = LocalFileQuery;
        return std::make_tuple(Must("type", &T::type), Must("contition", &T::contition),
                               Must("guid", &T::guid), Must("timeBegin", &T::timeBegin),
                               Must("timeEnd", &T::timeEnd));
    }
};

struct LocalFileQueryItem
{
    LocalFileType type = LocalFileType::Picture;
    std::string fileGuid;
    std::string cameraGuid;
    std::string groupGuid;
    std::string fileName;
    std::string videoFilePath;
    std::string picFilePath;
    Seconds timeOccur;
    Seconds timeBegin;
    Seconds timeEnd;
    std::int32_t filSize = 0; ///< KiB; spelt so in the body

    static constexpr auto Fields()
    {
        using T = LocalFileQueryItem;
        return std::make_tuple(Must("type", &T::type), Must("fileGuid", &T::fileGuid),
                               Must("cameraGuid", &T::cameraGuid), May("groupGuid", &T::groupGuid),
                               May("fileName", &T::fileName), May("videoFilePath", &T::videoFilePath),
                               May("picFilePath", &T::picFilePath), Must("timeOccur", &T::timeOccur),
                               May("timeBegin", &T::timeBegin), May("timeEnd", &T::timeEnd),
                               May("filSize", &T::filSize));
    }
};

struct LocalFileQueryResult : CMessage<LocalFileQueryResult, IInboundData>
{
    static constexpr const char* kKey = "localFileQueryResult";
    std::vector<LocalFileQueryItem> files;

    static constexpr auto Fields() { return Whole(&LocalFileQueryResult::files); }
};

} // namespace protocol
