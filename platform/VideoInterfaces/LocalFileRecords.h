#pragma once

#include <cstdint>
#include <string>

namespace vantor {

/// A time in seconds since 1970, universal time.
using TimeValue = std::int64_t;

/// A captured picture. Texts are UTF-8.
struct PictureFileRecord
{
    std::string ID; ///< a new GUID for each record; empty: there is no such record
    std::string CameraID;
    std::string GroupID;
    std::string FileName; ///< for people
    std::string FilePath;
    TimeValue OccurTime = 0;   ///< of the capture
    std::int32_t FileSize = 0; ///< KiB, truncated
};

/// A recorded clip. Texts are UTF-8.
struct VideoFileRecord
{
    std::string ID; ///< as above
    std::string CameraID;
    std::string GroupID;
    std::string FileName; ///< for people
    std::string FilePath;
    std::string PicturePath;   ///< of the cover
    TimeValue OccurTime = 0;   ///< of the event that produced the clip
    TimeValue BeginTime = 0;   ///< of the recorded span
    TimeValue EndTime = 0;     ///< of the recorded span
    std::int32_t FileSize = 0; ///< KiB, truncated
};

} // namespace vantor
