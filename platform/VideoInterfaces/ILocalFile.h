#pragma once

#include "VideoInterfaces/LocalFileRecords.h"

#include <string>
#include <vector>

namespace vantor {

/// The catalogue of the pictures and clips on this computer. Any thread.
///
/// A database error has its line in the log; the operation then gives an empty identifier, an empty record or
/// no rows, and nothing was stored.
class ILocalFile
{
public:
    virtual ~ILocalFile() = default;

    /// Catalogues a clip; gives its identifier. A path that is known already keeps its record's identifier,
    /// and every clip of the camera takes the new name, path, picture, times and size.
    virtual std::string AddVideo(const std::string& cameraId, const std::string& groupId,
                                 const std::string& fileName, const std::string& filePath,
                                 const std::string& picturePath, TimeValue occurTime, TimeValue beginTime,
                                 TimeValue endTime) = 0;
    /// Gives every clip of the record's camera its name, paths, times and size.
    virtual void UpdateVideo(const VideoFileRecord& record) = 0;
    virtual void DeleteVideoById(const std::string& id) = 0;
    virtual void DeleteVideoByPath(const std::string& filePath) = 0;
    virtual VideoFileRecord GetVideoById(const std::string& id) = 0;
    virtual VideoFileRecord GetVideoByPath(const std::string& filePath) = 0;
    /// The clips that occurred from begin to end, both included. False, with no records, only when they are
    /// more than a query may read, half a million or so.
    virtual bool QueryVideosOfCamera(const std::string& cameraId, TimeValue begin, TimeValue end,
                                     std::vector<VideoFileRecord>& records) = 0;
    virtual bool QueryVideosOfGroup(const std::string& groupId, TimeValue begin, TimeValue end,
                                    std::vector<VideoFileRecord>& records) = 0;

    /// Catalogues a picture; gives its identifier.
    virtual std::string AddPicture(const std::string& cameraId, const std::string& groupId,
                                   const std::string& fileName, const std::string& filePath,
                                   TimeValue occurTime) = 0;
    virtual void DeletePictureById(const std::string& id) = 0;
    virtual PictureFileRecord GetPictureById(const std::string& id) = 0;
    virtual PictureFileRecord GetPictureByPath(const std::string& filePath) = 0;
    virtual bool QueryPicturesOfCamera(const std::string& cameraId, TimeValue begin, TimeValue end,
                                       std::vector<PictureFileRecord>& records) = 0;
    virtual bool QueryPicturesOfGroup(const std::string& groupId, TimeValue begin, TimeValue end,
                                      std::vector<PictureFileRecord>& records) = 0;
};

} // namespace vantor
