#pragma once

#include "logical/Local/DatabaseSession/FileSession.h"

namespace video {

template<>
struct FileTable<vantor::VideoFileRecord>
{
    using R = vantor::VideoFileRecord;

    static constexpr const char* kName = "VideoFile";
    static constexpr auto kColumns =
        std::make_tuple(ColumnOf("ID", &R::ID), ColumnOf("CameraID", &R::CameraID),
                        ColumnOf("GroupID", &R::GroupID), ColumnOf("FileName", &R::FileName),
                        ColumnOf("FilePath", &R::FilePath), ColumnOf("PicturePath", &R::PicturePath),
                        ColumnOf("OccurTime", &R::OccurTime), ColumnOf("BeginTime", &R::BeginTime),
                        ColumnOf("EndTime", &R::EndTime), ColumnOf("FileSize", &R::FileSize));
    static constexpr const char* kInsert =
        "INSERT INTO VideoFile (ID, CameraID, GroupID, FileName, FilePath, PicturePath, OccurTime, "
        "BeginTime, EndTime, FileSize) "
        "VALUES ('%s', '%s', '%s', '%s', '%s', '%s', '%s', '%s', '%s', %d)";
    static constexpr std::size_t kInsertSize = 1000;
};

/// The statements on the table of recorded clips.
class VideoFileSession : public FileSession<vantor::VideoFileRecord>
{
public:
    using FileSession::FileSession;

    /// Gives every clip of the record's camera all its values but the identifier and group.
    bool UpdateCamera(const vantor::VideoFileRecord& record);
    bool DeleteByPath(const std::string& filePath);

    static std::string UpdateCameraText(const vantor::VideoFileRecord& record);
    static std::string DeleteByPathText(const std::string& filePath);
};

} // namespace video
