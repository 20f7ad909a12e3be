#include "store/Groups.h"

#include "Base/GuidUtil.h"
#include "Base/StringUtil.h"
#include "Base/TimeUtil.h"
#include "logical/Local/LocalFile.h"
#include "store/Bare.h"
#include "store/Comparison.h"

#include <filesystem>
#include <fstream>
#include <vector>

namespace bench {
namespace {

using Base::StringUtil::Format;
using Base::TimeUtil::TimeT2StrDatetime;
using vantor::PictureFileRecord;
using vantor::VideoFileRecord;

constexpr int kRowsBefore = 10000;

/// Each side's database, with 10,000 pictures and clips in it, and the files that the records are of.
class CAddWorld
{
public:
    explicit CAddWorld(const Kind& kind)
        : m_ours(kind), m_bare(kind), m_connection((Fill(m_ours, kind), m_ours.Path()), "VideoSystem"),
          m_engine((Fill(m_bare, kind), m_bare.Database()), kind.key)
    {}

    /// Makes the file in a folder of this run; its path.
    std::string MakeFile(const std::string& name) const
    {
        std::string path = m_ours.Path() + name;
        std::ofstream(path) << std::string(5000, 'x');
        return path;
    }

    video::CLocalFile files{m_connection};
    CBare& Engine() { return m_engine; }

private:
    static void Fill(const CStoreFolder& folder, const Kind& kind)
    {
        CPictures(kRowsBefore, 10000).Fill(folder, kind);
        CClips::Fill(folder, kind);
    }

    CStoreFolder m_ours;
    CStoreFolder m_bare;
    video::CBaseDBConn m_connection;
    CBare m_engine;
};

std::int32_t KiBOf(const std::string& path)
{
    return static_cast<std::int32_t>(std::filesystem::file_size(std::filesystem::u8path(path)) / 1024);
}

std::size_t BareAddPicture(CBare& engine, const PictureFileRecord& r)
{
    const std::string id = Base::GuidUtil::CreateGuid();
    engine.Run(
        Format("INSERT INTO PictureFile (ID, CameraID, GroupID, FileName, FilePath, OccurTime, FileSize) "
               "VALUES ('%s', '%s', '%s', '%s', '%s', '%s', %d)",
               id.c_str(), r.CameraID.c_str(), r.GroupID.c_str(), r.FileName.c_str(), r.FilePath.c_str(),
               TimeT2StrDatetime(r.OccurTime).c_str(), KiBOf(r.FilePath)));
    return id.size();
}

void BareUpdate(CBare& engine, const VideoFileRecord& r)
{
    engine.Run(
        Format("UPDATE VideoFile SET FileName = '%s', FilePath = '%s', PicturePath = '%s', OccurTime = '%s', "
               "BeginTime = '%s', EndTime = '%s', FileSize = %d WHERE CameraID = '%s'",
               r.FileName.c_str(), r.FilePath.c_str(), r.PicturePath.c_str(),
               TimeT2StrDatetime(r.OccurTime).c_str(), TimeT2StrDatetime(r.BeginTime).c_str(),
               TimeT2StrDatetime(r.EndTime).c_str(), KiBOf(r.FilePath), r.CameraID.c_str()));
}

void BareInsert(CBare& engine, const std::string& id, const VideoFileRecord& r)
{
    engine.Run(Format(
        "INSERT INTO VideoFile (ID, CameraID, GroupID, FileName, FilePath, PicturePath, OccurTime, "
        "BeginTime, EndTime, FileSize) VALUES ('%s', '%s', '%s', '%s', '%s', '%s', '%s', '%s', '%s', %d)",
        id.c_str(), r.CameraID.c_str(), r.GroupID.c_str(), r.FileName.c_str(), r.FilePath.c_str(),
        r.PicturePath.c_str(), TimeT2StrDatetime(r.OccurTime).c_str(), TimeT2StrDatetime(r.BeginTime).c_str(),
        TimeT2StrDatetime(r.EndTime).c_str(), KiBOf(r.FilePath)));
}

std::size_t BareAddVideo(CBare& engine, const VideoFileRecord& r)
{
    std::string id =
        engine.RunForFirst(Format("SELECT * FROM VideoFile WHERE FilePath = '%s' ", r.FilePath.c_str()));
    if (!id.empty()) {
        BareUpdate(engine, r);
        return id.size();
    }
    id = Base::GuidUtil::CreateGuid();
    BareInsert(engine, id, r);
    return id.size();
}

std::size_t AddVideo(video::CLocalFile& files, const VideoFileRecord& r)
{
    return files
        .AddVideo(r.CameraID, r.GroupID, r.FileName, r.FilePath, r.PicturePath, r.OccurTime, r.BeginTime,
                  r.EndTime)
        .size();
}

/// The records of all rounds, made before the clock runs; make gets the round's number, and a negative one
/// too.
template<typename Record, typename Make>
std::vector<Record> RecordsOf(int rounds, Make make)
{
    std::vector<Record> records;
    for (int round = -rounds / 10; round < rounds; ++round)
        records.push_back(make(round));
    return records;
}

template<typename Record>
const Record& OfRound(const std::vector<Record>& records, int rounds, int round)
{
    return records[static_cast<std::size_t>(round + rounds / 10)];
}

void MeasurePictures(CAddWorld& world, const std::string& kind, int rounds)
{
    const CPictures pictures(kRowsBefore, 10000);
    const auto records = RecordsOf<PictureFileRecord>(rounds, [&](int round) {
        PictureFileRecord record = pictures.At(kRowsBefore + rounds + round);
        record.FilePath = world.MakeFile(record.FileName);
        return record;
    });
    Compare(
        "add-picture." + kind, kRowsBefore, rounds,
        [&](int round) {
            const PictureFileRecord& r = OfRound(records, rounds, round);
            return world.files.AddPicture(r.CameraID, r.GroupID, r.FileName, r.FilePath, r.OccurTime).size();
        },
        [&](int round) { return BareAddPicture(world.Engine(), OfRound(records, rounds, round)); });
}

void MeasureVideos(CAddWorld& world, const std::string& name, int rounds,
                   const std::vector<VideoFileRecord>& records)
{
    Compare(
        name, kRowsBefore, rounds,
        [&](int round) { return AddVideo(world.files, OfRound(records, rounds, round)); },
        [&](int round) { return BareAddVideo(world.Engine(), OfRound(records, rounds, round)); });
}

/// Clips of paths that both tables know from here on: each camera has ten of the same path.
std::vector<VideoFileRecord> KnownClips(CAddWorld& world, int rounds)
{
    std::vector<VideoFileRecord> ofCameras;
    for (int camera = 0; camera < CClips::kCameras; ++camera) {
        VideoFileRecord& record = ofCameras.emplace_back(CClips::At(camera));
        record.FilePath = world.MakeFile(record.FileName);
        world.files.UpdateVideo(record);
        BareUpdate(world.Engine(), record);
    }
    return RecordsOf<VideoFileRecord>(rounds, [&](int round) {
        VideoFileRecord record = ofCameras[static_cast<std::size_t>(round + rounds) % ofCameras.size()];
        record.OccurTime += round;
        return record;
    });
}

} // namespace

void MeasureAdds(const Kind& kind, bool quick)
{
    CAddWorld world(kind);
    const std::string name = kind.name;
    const int rounds = quick ? 500 : 5000;
    MeasurePictures(world, name, rounds);
    MeasureVideos(world, "add-video-known-path." + name, rounds, KnownClips(world, rounds));
    MeasureVideos(world, "add-video-new-path." + name, rounds,
                  RecordsOf<VideoFileRecord>(rounds, [&](int round) {
                      VideoFileRecord record = CClips::At(kRowsBefore + rounds + round);
                      record.FilePath = world.MakeFile(record.FileName);
                      return record;
                  }));
}

} // namespace bench
