#pragma once

#include "Protocol/JSONStruct/HTTP/LocalFileJSONStruct.h"
#include "framework/core/FrameworkSettings.h"
#include "framework/core/Resources.h"

#include <cstdint>
#include <string>
#include <vector>

/// The pictures and clips of the demonstration. Any thread.
namespace framework {

struct DemonstrationFile
{
    protocol::LocalFileType type = protocol::LocalFileType::Picture;
    std::string cameraGuid;
    std::string groupGuid;
    std::string group;       ///< "Main gate"
    std::string camera;      ///< "Camera 01"
    int scene = 0;           ///< see PaintCamera
    std::int64_t moment = 0; ///< seconds since 1970
    int seconds = 0;         ///< the length of a clip
};

/// So many files of all cameras, every third a clip, over the six days before a moment (seconds since 1970),
/// the oldest first. The same cameras and moment give the same files.
std::vector<DemonstrationFile> PlanDemonstration(const CResources& resources, std::int64_t before, int count);

/// What is reported of the file, which lies in the default folder.
protocol::LocalFileNotify RecordOf(const DemonstrationFile& file, const FrameworkChoices& folders);

/// Paints and writes the file of the record, a clip with its cover.
[[nodiscard]] bool WriteDemonstrationFile(const DemonstrationFile& file,
                                          const protocol::LocalFileNotify& record);

} // namespace framework
