#include "store/Groups.h"

#include "logical/Local/LocalFile.h"
#include "store/Bare.h"
#include "store/Comparison.h"

#include <cstdio>
#include <map>
#include <vector>

namespace bench {
namespace {

using vantor::PictureFileRecord;
using video::PictureFileSession;
using Records = std::vector<PictureFileRecord>;

constexpr std::size_t kTimeLength = 19;

/// Of the columns as text, which is what the bare side counts.
std::size_t BytesOf(const PictureFileRecord& r)
{
    return r.ID.size() + r.CameraID.size() + r.GroupID.size() + r.FileName.size() + r.FilePath.size() +
           kTimeLength + std::to_string(r.FileSize).size();
}

std::size_t BytesOf(const Records& records)
{
    std::size_t bytes = 0;
    for (const PictureFileRecord& record : records)
        bytes += BytesOf(record);
    return bytes;
}

/// A filled table that both sides read, each over a connection of its own.
class CLookupWorld
{
public:
    CLookupWorld(const Kind& kind, int rows, int cameras, bool quick)
        : m_pictures(rows, cameras), m_folder(kind),
          m_connection((m_pictures.Fill(m_folder, kind), m_folder.Path()), "VideoSystem"),
          m_files(m_connection), m_engine(m_folder.Database(), kind.key),
          m_ending("-" + std::to_string(cameras) + "cameras." + kind.name), m_divisor(quick ? 10 : 1)
    {}

    void MeasureRecords()
    {
        const int rounds = 5000 / m_divisor;
        const auto record = [&](int round) {
            return m_pictures.At(static_cast<int>(Scattered(static_cast<std::uint64_t>(round)) >> 33U) %
                                 m_pictures.Rows());
        };
        Measure(
            "by-id", rounds, [&](int round) { return record(round).ID; },
            [&](const std::string& id) { return BytesOf(m_files.GetPictureById(id)); },
            &PictureFileSession::ByIdText);
        Measure(
            "by-path", rounds, [&](int round) { return record(round).FilePath; },
            [&](const std::string& path) { return BytesOf(m_files.GetPictureByPath(path)); },
            &PictureFileSession::ByPathText);
    }

    Medians MeasureCameras()
    {
        return Measure(
            "range-camera", kRanges / m_divisor, [&](int round) { return m_pictures.OfCamera(round); },
            [&](const Span& span) {
                m_files.QueryPicturesOfCamera(span.guid, span.begin, span.end, m_found);
                return BytesOf(m_found);
            },
            [](const Span& span) {
                return PictureFileSession::CameraSpanText(span.guid, span.begin, span.end);
            });
    }

    Medians MeasureGroups()
    {
        return Measure(
            "range-group", kRanges / m_divisor, [&](int round) { return m_pictures.OfGroup(round); },
            [&](const Span& span) {
                m_files.QueryPicturesOfGroup(span.guid, span.begin, span.end, m_found);
                return BytesOf(m_found);
            },
            [](const Span& span) {
                return PictureFileSession::GroupSpanText(span.guid, span.begin, span.end);
            });
    }

private:
    static constexpr int kRanges = 1000;

    /// ask gives a round's question, which ours answers and text turns into a statement; questions and texts
    /// are made before the clock runs.
    template<typename Ask, typename Ours, typename Text>
    Medians Measure(const std::string& name, int rounds, Ask ask, Ours ours, Text text)
    {
        std::map<int, std::pair<decltype(ask(0)), std::string>> questions;
        for (int round = -rounds / 10; round < rounds; ++round) {
            const auto question = ask(round + rounds);
            questions.emplace(round, std::make_pair(question, text(question)));
        }
        return Compare(
            name + m_ending, static_cast<std::size_t>(m_pictures.Rows()), rounds,
            [&](int round) { return ours(questions.at(round).first); },
            [&](int round) { return m_engine.Run(questions.at(round).second); });
    }

    const CPictures m_pictures;
    const CStoreFolder m_folder;
    video::CBaseDBConn m_connection;
    video::CLocalFile m_files;
    CBare m_engine;
    const std::string m_ending;
    const int m_divisor;
    Records m_found;
};

void PrintGrowth(const char* name, int cameras, const Kind& kind, const std::vector<Medians>& medians)
{
    std::printf("# %s-%dcameras.%s: from the smallest table to the largest %.2f x (bare %.2f x)\n", name,
                cameras, kind.name, medians.back().ours / medians.front().ours,
                medians.back().bare / medians.front().bare);
}

} // namespace

void MeasureLookups(const Kind& kind, bool quick)
{
    for (const int cameras : {8, 10000}) {
        std::vector<Medians> ofCameras;
        std::vector<Medians> ofGroups;
        for (const int rows : {10000, 100000, 1000000}) {
            if (quick && rows > 100000)
                continue;
            CLookupWorld world(kind, rows, cameras, quick);
            world.MeasureRecords();
            ofCameras.push_back(world.MeasureCameras());
            ofGroups.push_back(world.MeasureGroups());
        }
        PrintGrowth("range-camera", cameras, kind, ofCameras);
        PrintGrowth("range-group", cameras, kind, ofGroups);
    }
}

} // namespace bench
