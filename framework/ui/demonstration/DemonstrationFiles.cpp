#include "framework/ui/demonstration/DemonstrationFiles.h"

#include "framework/ui/demonstration/CameraPicture.h"
#include "framework/ui/demonstration/MotionJpeg.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <map>
#include <string_view>

namespace framework {

using protocol::LocalFileType;

namespace {

constexpr std::int64_t kSpan = 6 * 86400;
constexpr int kFramesPerSecond = 5;
constexpr int kCameraStep = 7;    ///< with it neighbours in time are of different cameras
constexpr int kMostJitter = 4000; ///< seconds

bool Write(const std::string& path, const QByteArray& content)
{
    const QString name = QString::fromStdString(path);
    QSaveFile file(name);
    return QDir().mkpath(QFileInfo(name).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size() && file.commit();
}

/// A name that a device gave, as the name of a file.
std::string FileName(std::string name)
{
    for (char& letter : name)
        if (std::string_view("/\\:*?\"<>|").find(letter) != std::string_view::npos)
            letter = '_';
    return name == "." || name == ".." ? "_" : name;
}

QByteArray PictureOf(const DemonstrationFile& file, double second, double passed)
{
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(file.moment).addMSecs(qint64(second * 1000));
    return Jpeg(
        PaintCamera(QString::fromStdString(file.group + ", " + file.camera), file.scene, moment, passed));
}

QByteArray ClipOf(const DemonstrationFile& file)
{
    std::vector<QByteArray> frames;
    const int count = file.seconds * kFramesPerSecond;
    for (int frame = 0; frame < count; ++frame)
        frames.push_back(PictureOf(file, double(frame) / kFramesPerSecond, double(frame) / count));
    return MotionJpegAvi({kDemonstrationWidth, kDemonstrationHeight}, kFramesPerSecond, frames);
}

} // namespace

std::vector<DemonstrationFile> PlanDemonstration(const CResources& resources, std::int64_t before, int count)
{
    std::map<std::string, std::string> groups;
    for (const auto& group : resources.Groups())
        groups[group.guid] = group.name;
    const auto channels = resources.Channels({});
    std::vector<DemonstrationFile> files;
    for (int index = 0; index < count && !channels.empty(); ++index) {
        const std::size_t camera = static_cast<std::size_t>(index * kCameraStep) % channels.size();
        DemonstrationFile file;
        file.type = index % 3 == 2 ? LocalFileType::Video : LocalFileType::Picture;
        file.cameraGuid = channels[camera].guid;
        file.groupGuid = channels[camera].groupGuid;
        file.group = groups[file.groupGuid];
        file.camera = channels[camera].name;
        file.scene = static_cast<int>(camera);
        file.moment = before - kSpan + (index + 1) * kSpan / count - 600 - (index * 977) % kMostJitter;
        file.seconds = 4 + index % 8;
        files.push_back(file);
    }
    return files;
}

protocol::LocalFileNotify RecordOf(const DemonstrationFile& file, const FrameworkChoices& folders)
{
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(file.moment);
    const std::string day = FileName(file.group) + '/' + moment.toString("yyyy-MM-dd").toStdString() + '/';
    const std::string name = FileName(file.camera) + moment.toString(" yyyy-MM-dd HH-mm-ss").toStdString();
    const bool isClip = file.type == LocalFileType::Video;
    protocol::LocalFileNotify record;
    record.type = file.type;
    record.cameraGuid = file.cameraGuid;
    record.groupGuid = file.groupGuid;
    record.fileName = name + (isClip ? ".avi" : ".jpg");
    record.picFilePath = (isClip ? folders.videoPath : folders.picturePath) + day + name + ".jpg";
    record.timeOccur.count = file.moment;
    record.timeBegin.count = file.moment;
    record.timeEnd.count = file.moment;
    if (isClip) {
        record.videoFilePath = folders.videoPath + day + record.fileName;
        record.timeEnd.count += file.seconds;
    }
    return record;
}

bool WriteDemonstrationFile(const DemonstrationFile& file, const protocol::LocalFileNotify& record)
{
    constexpr double kCoverPassed = 0.6;
    return Write(record.picFilePath, PictureOf(file, 0, kCoverPassed)) &&
           (file.type == LocalFileType::Picture || Write(record.videoFilePath, ClipOf(file)));
}

} // namespace framework
