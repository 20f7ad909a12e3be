#pragma once

#include "VideoInterfaces/LocalFileRecords.h"

#include <cstdint>
#include <string>

namespace bench {

/// With and without a key.
struct Kind
{
    const char* name;
    std::string key; ///< 64 hexadecimal digits, or empty
};

/// A folder with a database of the component's schema; removed with the object.
class CStoreFolder
{
public:
    explicit CStoreFolder(const Kind& kind);
    ~CStoreFolder();
    CStoreFolder(const CStoreFolder&) = delete;
    CStoreFolder& operator=(const CStoreFolder&) = delete;

    /// Ends in a separator.
    const std::string& Path() const { return m_path; }
    std::string Database() const;

private:
    const std::string m_path;
};

/// A question for about 100 records.
struct Span
{
    std::string guid; ///< of a camera or group
    vantor::TimeValue begin;
    vantor::TimeValue end;
};

/// Pictures of a second each, in the order of their time.
///
/// Few cameras take turns at random, in groups of four, and a span of time is asked for. Of many, a tenth of
/// the rows belongs to cameras of 100 rows each and a tenth to groups of 100 rows each, which have four
/// cameras: these are asked for, and their rows are spread evenly over the whole time of the table. The rest
/// is of all the other cameras at random.
class CPictures
{
public:
    /// cameras: 8 or 10,000; rows: at least 10,000.
    CPictures(int rows, int cameras);

    int Rows() const { return m_rows; }
    int Cameras() const { return m_cameras; }

    vantor::PictureFileRecord At(int row) const;
    Span OfCamera(int round) const;
    Span OfGroup(int round) const;

    void Fill(const CStoreFolder& folder, const Kind& kind) const;

private:
    struct Place
    {
        int camera;
        int group;
    };
    Place PlaceOf(int row) const;
    Span SomeSeconds(std::string guid, int seconds, int round) const;

    const int m_rows;
    const int m_cameras;
    const int m_asked; ///< cameras, and groups, that are asked for; 0: any
};

/// Clips of so many cameras, each with so many.
class CClips
{
public:
    static constexpr int kCameras = 1000;
    static constexpr int kOfCamera = 10;

    /// number: from 0 on; those from kCameras * kOfCamera on are in no table yet.
    static vantor::VideoFileRecord At(int number);
    static void Fill(const CStoreFolder& folder, const Kind& kind);
};

/// A number that belongs to the number and looks random.
std::uint64_t Scattered(std::uint64_t number);

} // namespace bench
