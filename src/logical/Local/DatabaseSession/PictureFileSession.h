#pragma once

#include "logical/Local/DatabaseSession/FileSession.h"

namespace video {

template<>
struct FileTable<vantor::PictureFileRecord>
{
    using R = vantor::PictureFileRecord;

    static constexpr const char* kName = "PictureFile";
    static constexpr auto kColumns = std::make_tuple(
        ColumnOf("ID", &R::ID), ColumnOf("CameraID", &R::CameraID), ColumnOf("GroupID", &R::GroupID),
        ColumnOf("FileName", &R::FileName), ColumnOf("FilePath", &R::FilePath),
        ColumnOf("OccurTime", &R::OccurTime), ColumnOf("FileSize", &R::FileSize));
    static constexpr const char* kInsert =
        "INSERT INTO PictureFile (ID, CameraID, GroupID, FileName, FilePath, OccurTime, FileSize) "
        "VALUES ('%s', '%s', '%s', '%s', '%s', '%s', %d)";
    static constexpr std::size_t kInsertSize = 1024;
};

/// The statements on the table of captured pictures.
class PictureFileSession : public FileSession<vantor::PictureFileRecord>
{
public:
    using FileSession::FileSession;
};

} // namespace video
