#pragma once

#include "Base/Noncopyable.h"
#include "VideoInterfaces/ILocalFile.h"
#include "XPR/XPR_Mutex.h"
#include "logical/Local/DatabaseSession/PictureFileSession.h"
#include "logical/Local/DatabaseSession/SharedCommit.h"
#include "logical/Local/DatabaseSession/VideoFileSession.h"

namespace video {

/// The catalogue on the component's database. Any thread. Writes of several threads at once share their
/// commits. Each runs under the lock of its table, and the two locks are never held together; reads take
/// none.
///
/// An add looks at the file for its size, before it takes its turn, so that a slow drive holds up nobody
/// else; a file that cannot be opened counts as empty.
class CLocalFile : public vantor::ILocalFile, Base::CNoncopyable
{
public:
    /// connection must outlive the object.
    explicit CLocalFile(CBaseDBConn& connection);

    std::string AddVideo(const std::string& cameraId, const std::string& groupId, const std::string& fileName,
                         const std::string& filePath, const std::string& picturePath,
                         vantor::TimeValue occurTime, vantor::TimeValue beginTime,
                         vantor::TimeValue endTime) override;
    void UpdateVideo(const vantor::VideoFileRecord& record) override;
    void DeleteVideoById(const std::string& id) override;
    void DeleteVideoByPath(const std::string& filePath) override;
    vantor::VideoFileRecord GetVideoById(const std::string& id) override;
    vantor::VideoFileRecord GetVideoByPath(const std::string& filePath) override;
    bool QueryVideosOfCamera(const std::string& cameraId, vantor::TimeValue begin, vantor::TimeValue end,
                             std::vector<vantor::VideoFileRecord>& records) override;
    bool QueryVideosOfGroup(const std::string& groupId, vantor::TimeValue begin, vantor::TimeValue end,
                            std::vector<vantor::VideoFileRecord>& records) override;

    std::string AddPicture(const std::string& cameraId, const std::string& groupId,
                           const std::string& fileName, const std::string& filePath,
                           vantor::TimeValue occurTime) override;
    void DeletePictureById(const std::string& id) override;
    vantor::PictureFileRecord GetPictureById(const std::string& id) override;
    vantor::PictureFileRecord GetPictureByPath(const std::string& filePath) override;
    bool QueryPicturesOfCamera(const std::string& cameraId, vantor::TimeValue begin, vantor::TimeValue end,
                               std::vector<vantor::PictureFileRecord>& records) override;
    bool QueryPicturesOfGroup(const std::string& groupId, vantor::TimeValue begin, vantor::TimeValue end,
                              std::vector<vantor::PictureFileRecord>& records) override;

private:
    /// Runs the write of a table under its lock; false when it did not reach the disk.
    bool Write(XPR_Mutex& lock, const std::function<void()>& write);
    std::string Store(vantor::VideoFileRecord& record);
    std::string Store(vantor::PictureFileRecord& record);

    XPR_Mutex m_videoLock;
    XPR_Mutex m_pictureLock;
    VideoFileSession m_videos;
    PictureFileSession m_pictures;
    CSharedCommit m_writes;
};

} // namespace video
