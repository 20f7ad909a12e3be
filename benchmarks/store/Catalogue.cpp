#include "store/Catalogue.h"

#include "Base/FileUtil.h"
#include "Base/GuidUtil.h"
#include "Base/StringUtil.h"
#include "Base/TimeUtil.h"
#include "DatabaseUpdate/DBCheckImplHelper.h"
#include "DatabaseUpdate/DataEncryptionMgr.h"
#include "Sqlite3DO/SQLite3Conn.h"
#include "store/Bare.h"

#include <filesystem>

namespace bench {
namespace {

using vantor::PictureFileRecord;
using vantor::VideoFileRecord;

constexpr const char* kDatabase = "VideoSystem";
constexpr vantor::TimeValue kFirstTime = 1700000000;
constexpr int kRowsAsked = 100;
constexpr int kCamerasOfGroup = 4;
enum Family : std::uint64_t { kPictureId = 1, kClipId, kCameraId, kGroupId };

/// A text in the form of a GUID, always the same for the number.
std::string GuidOf(Family family, int number)
{
    const std::uint64_t high = Scattered(family << 40U | static_cast<std::uint64_t>(number));
    const std::uint64_t low = Scattered(high);
    return Base::StringUtil::Format(
        "%08x-%04x-4%03x-a%03x-%012llx", static_cast<unsigned>(high >> 32U),
        static_cast<unsigned>(high & 0xFFFFU), static_cast<unsigned>(high >> 20U & 0xFFFU),
        static_cast<unsigned>(low >> 52U), static_cast<unsigned long long>(low & 0xFFFFFFFFFFFFULL));
}

std::string NameOf(int camera, int number, const char* ending)
{
    return Base::StringUtil::Format("Camera %05d_%08d.%s", camera, number, ending);
}

void MakeDatabase(const std::string& folder, const std::string& key)
{
    Sqlite3DO::CSQLite3Conn::SetStaticKey(key);
    DatabaseUpdate::CDataEncryptionMgr::Instance().Init({}, key, "bench");
    const std::string scripts = Base::FileUtil::GetCurExeDir() + "maintain/";
    std::string message;
    if (!Base::FileUtil::MakeDirs(folder) || !DatabaseUpdate::CDBCheckImplHelper::checkAndUpdateDB(
                                                 {folder, scripts, "", {}}, {kDatabase}, message))
        Fail("cannot make a database in " + folder + ": " + message);
}

void BindOne(sqlite3_stmt* insert, int at, const std::string& text)
{
    sqlite3_bind_text(insert, at, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}
void BindOne(sqlite3_stmt* insert, int at, vantor::TimeValue seconds)
{
    BindOne(insert, at, Base::TimeUtil::TimeT2StrDatetime(seconds));
}
void BindOne(sqlite3_stmt* insert, int at, std::int32_t number)
{
    sqlite3_bind_int(insert, at, number);
}

/// Gives an insert's parameters their values, in their order.
template<typename... Values>
void Bind(sqlite3_stmt* insert, const Values&... values)
{
    int at = 0;
    (BindOne(insert, ++at, values), ...);
}

} // namespace

// The finaliser of SplitMix64 (Steele, Lea, Flood 2014).
std::uint64_t Scattered(std::uint64_t number)
{
    number += 0x9E3779B97F4A7C15ULL;
    number = (number ^ (number >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    number = (number ^ (number >> 27U)) * 0x94D049BB133111EBULL;
    return number ^ (number >> 31U);
}

CStoreFolder::CStoreFolder(const Kind& kind)
    : m_path(Base::FileUtil::UserDataRoot() + "bench-" + Base::GuidUtil::CreateGuid() + "/")
{
    MakeDatabase(m_path, kind.key);
}

CStoreFolder::~CStoreFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(std::filesystem::u8path(m_path), ignored);
}

std::string CStoreFolder::Database() const
{
    return m_path + kDatabase;
}

CPictures::CPictures(int rows, int cameras)
    : m_rows(rows), m_cameras(cameras), m_asked(cameras < 1000 ? 0 : rows / 10 / kRowsAsked)
{}

CPictures::Place CPictures::PlaceOf(int row) const
{
    const auto any = static_cast<int>(Scattered(static_cast<std::uint64_t>(row)) >> 33U);
    if (m_asked == 0) {
        const int camera = any % m_cameras;
        return {camera, camera / kCamerasOfGroup};
    }
    const int turn = row / 10;
    if (row % 10 == 0)
        return {turn % m_asked, m_cameras + turn % m_asked};
    if (row % 10 == 1)
        return {m_asked + turn % m_asked * kCamerasOfGroup + turn / m_asked % kCamerasOfGroup,
                turn % m_asked};
    const int asked = m_asked * (1 + kCamerasOfGroup);
    const int camera = asked + any % (m_cameras - asked);
    return {camera, camera / kCamerasOfGroup + 2 * m_cameras};
}

PictureFileRecord CPictures::At(int row) const
{
    const Place place = PlaceOf(row);
    const std::string name = NameOf(place.camera, row, "jpg");
    return {GuidOf(kPictureId, row),
            GuidOf(kCameraId, place.camera),
            GuidOf(kGroupId, place.group),
            name,
            "/home/user/Vantor/picture/" + name,
            kFirstTime + row,
            row % 500};
}

Span CPictures::SomeSeconds(std::string guid, int seconds, int round) const
{
    const auto first =
        static_cast<int>(Scattered(static_cast<std::uint64_t>(round)) >> 33U) % (m_rows - seconds);
    return {std::move(guid), kFirstTime + first, kFirstTime + first + seconds - 1};
}

Span CPictures::OfCamera(int round) const
{
    if (m_asked == 0)
        return SomeSeconds(GuidOf(kCameraId, round % m_cameras), kRowsAsked * m_cameras, round);
    return {GuidOf(kCameraId, round * 7919 % m_asked), kFirstTime, kFirstTime + m_rows};
}

Span CPictures::OfGroup(int round) const
{
    const int groups = m_cameras / kCamerasOfGroup;
    if (m_asked == 0)
        return SomeSeconds(GuidOf(kGroupId, round % groups), kRowsAsked * groups, round);
    return {GuidOf(kGroupId, round * 7919 % m_asked), kFirstTime, kFirstTime + m_rows};
}

void CPictures::Fill(const CStoreFolder& folder, const Kind& kind) const
{
    CBare(folder.Database(), kind.key)
        .InsertMany(
            "INSERT INTO PictureFile (ID, CameraID, GroupID, FileName, FilePath, OccurTime, FileSize) "
            "VALUES (?, ?, ?, ?, ?, ?, ?)",
            m_rows, [this](sqlite3_stmt* insert, int row) {
                const PictureFileRecord r = At(row);
                Bind(insert, r.ID, r.CameraID, r.GroupID, r.FileName, r.FilePath, r.OccurTime, r.FileSize);
            });
}

VideoFileRecord CClips::At(int number)
{
    const int camera = number % kCameras;
    const std::string name = NameOf(camera, number, "mp4");
    const vantor::TimeValue time = kFirstTime + number;
    return {GuidOf(kClipId, number),
            GuidOf(kCameraId, camera),
            GuidOf(kGroupId, camera / kCamerasOfGroup),
            name,
            "/home/user/Vantor/video/" + name,
            "/home/user/Vantor/video/" + NameOf(camera, number, "jpg"),
            time,
            time - 30,
            time + 30,
            number % 50000};
}

void CClips::Fill(const CStoreFolder& folder, const Kind& kind)
{
    CBare(folder.Database(), kind.key)
        .InsertMany(
            "INSERT INTO VideoFile (ID, CameraID, GroupID, FileName, FilePath, PicturePath, OccurTime, "
            "BeginTime, EndTime, FileSize) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
            kCameras * kOfCamera, [](sqlite3_stmt* insert, int number) {
                const VideoFileRecord r = At(number);
                Bind(insert, r.ID, r.CameraID, r.GroupID, r.FileName, r.FilePath, r.PicturePath, r.OccurTime,
                     r.BeginTime, r.EndTime, r.FileSize);
            });
}

} // namespace bench
