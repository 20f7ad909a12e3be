#include "logical/Local/LocalFile.h"

#include "Base/GuidUtil.h"
#include "XPR/XPR_File.h"

#include <algorithm>
#include <limits>

namespace video {
namespace {

using vantor::PictureFileRecord;
using vantor::TimeValue;
using vantor::VideoFileRecord;

/// What FileSize can hold: nearly 2 TiB.
constexpr std::int64_t kLargestKiB = std::numeric_limits<std::int32_t>::max();

std::int32_t SizeInKiB(const std::string& path)
{
    const XPR_FileHandle file = XPR_OpenFile(path.c_str(), XPR_OPEN_READ, XPR_MODE_EXISTING);
    if (!file)
        return 0;
    XPR_STAT stat{};
    const bool known = XPR_FileStat(file, &stat);
    XPR_CloseFile(file);
    return known ? static_cast<std::int32_t>(std::min(stat.size / 1024, kLargestKiB)) : 0;
}

} // namespace

CLocalFile::CLocalFile(CBaseDBConn& connection)
    : m_videos(connection), m_pictures(connection), m_writes(connection)
{}

bool CLocalFile::Write(XPR_Mutex& lock, const std::function<void()>& write)
{
    return m_writes.Run([&] {
        const XPR_MutexGuard guard(lock);
        write();
    });
}

std::string CLocalFile::AddVideo(const std::string& cameraId, const std::string& groupId,
                                 const std::string& fileName, const std::string& filePath,
                                 const std::string& picturePath, TimeValue occurTime, TimeValue beginTime,
                                 TimeValue endTime)
{
    VideoFileRecord record{std::string(), cameraId,  groupId,   fileName, filePath,
                           picturePath,   occurTime, beginTime, endTime,  SizeInKiB(filePath)};
    std::string id;
    return Write(m_videoLock, [&] { id = Store(record); }) ? id : std::string();
}

std::string CLocalFile::Store(VideoFileRecord& record)
{
    VideoFileRecord known;
    // Not knowing whether the path has its record already, an insert could make a second one.
    if (!m_videos.GetByPath(record.FilePath, known))
        return std::string();
    if (!known.ID.empty())
        return m_videos.UpdateCamera(record) ? known.ID : std::string();
    record.ID = Base::GuidUtil::CreateGuid();
    return m_videos.Insert(record) ? record.ID : std::string();
}

void CLocalFile::UpdateVideo(const VideoFileRecord& record)
{
    Write(m_videoLock, [&] { m_videos.UpdateCamera(record); });
}

void CLocalFile::DeleteVideoById(const std::string& id)
{
    Write(m_videoLock, [&] { m_videos.DeleteById(id); });
}

void CLocalFile::DeleteVideoByPath(const std::string& filePath)
{
    Write(m_videoLock, [&] { m_videos.DeleteByPath(filePath); });
}

VideoFileRecord CLocalFile::GetVideoById(const std::string& id)
{
    VideoFileRecord record;
    m_videos.GetById(id, record);
    return record;
}

VideoFileRecord CLocalFile::GetVideoByPath(const std::string& filePath)
{
    VideoFileRecord record;
    m_videos.GetByPath(filePath, record);
    return record;
}

bool CLocalFile::QueryVideosOfCamera(const std::string& cameraId, TimeValue begin, TimeValue end,
                                     std::vector<VideoFileRecord>& records)
{
    return m_videos.QueryCamera(cameraId, begin, end, records);
}

bool CLocalFile::QueryVideosOfGroup(const std::string& groupId, TimeValue begin, TimeValue end,
                                    std::vector<VideoFileRecord>& records)
{
    return m_videos.QueryGroup(groupId, begin, end, records);
}

std::string CLocalFile::AddPicture(const std::string& cameraId, const std::string& groupId,
                                   const std::string& fileName, const std::string& filePath,
                                   TimeValue occurTime)
{
    PictureFileRecord record{std::string(), cameraId,           groupId, fileName, filePath,
                             occurTime,     SizeInKiB(filePath)};
    std::string id;
    return Write(m_pictureLock, [&] { id = Store(record); }) ? id : std::string();
}

std::string CLocalFile::Store(PictureFileRecord& record)
{
    record.ID = Base::GuidUtil::CreateGuid();
    return m_pictures.Insert(record) ? record.ID : std::string();
}

void CLocalFile::DeletePictureById(const std::string& id)
{
    Write(m_pictureLock, [&] { m_pictures.DeleteById(id); });
}

PictureFileRecord CLocalFile::GetPictureById(const std::string& id)
{
    PictureFileRecord record;
    m_pictures.GetById(id, record);
    return record;
}

PictureFileRecord CLocalFile::GetPictureByPath(const std::string& filePath)
{
    PictureFileRecord record;
    m_pictures.GetByPath(filePath, record);
    return record;
}

bool CLocalFile::QueryPicturesOfCamera(const std::string& cameraId, TimeValue begin, TimeValue end,
                                       std::vector<PictureFileRecord>& records)
{
    return m_pictures.QueryCamera(cameraId, begin, end, records);
}

bool CLocalFile::QueryPicturesOfGroup(const std::string& groupId, TimeValue begin, TimeValue end,
                                      std::vector<PictureFileRecord>& records)
{
    return m_pictures.QueryGroup(groupId, begin, end, records);
}

} // namespace video
