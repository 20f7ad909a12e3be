#include "logical/Local/DatabaseSession/VideoFileSession.h"

namespace video {
namespace {

using R = vantor::VideoFileRecord;

constexpr const char* kUpdate =
    "UPDATE VideoFile SET FileName = '%s', FilePath = '%s', PicturePath = '%s', OccurTime = '%s', "
    "BeginTime = '%s', EndTime = '%s', FileSize = %d WHERE CameraID = '%s'";
constexpr auto kUpdateColumns =
    std::make_tuple(ColumnOf("FileName", &R::FileName), ColumnOf("FilePath", &R::FilePath),
                    ColumnOf("PicturePath", &R::PicturePath), ColumnOf("OccurTime", &R::OccurTime),
                    ColumnOf("BeginTime", &R::BeginTime), ColumnOf("EndTime", &R::EndTime),
                    ColumnOf("FileSize", &R::FileSize), ColumnOf("CameraID", &R::CameraID));

} // namespace

bool VideoFileSession::UpdateCamera(const R& record)
{
    return m_connection.Execute(UpdateCameraText(record));
}

bool VideoFileSession::DeleteByPath(const std::string& filePath)
{
    return m_connection.Execute(DeleteByPathText(filePath));
}

std::string VideoFileSession::UpdateCameraText(const R& record)
{
    return FormatRow<1000>(kUpdate, record, kUpdateColumns);
}

std::string VideoFileSession::DeleteByPathText(const std::string& filePath)
{
    return Sqlite3DO::FormatStatement<500>("DELETE FROM VideoFile WHERE FilePath = '%s'",
                                           Sqlite3DO::Quoted(filePath).c_str());
}

} // namespace video
