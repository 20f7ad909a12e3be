#include "Bare.h"

#include "Base/Encrypt.h"
#include "Base/FileUtil.h"
#include "Base/GuidUtil.h"
#include "Base/StringUtil.h"
#include "Base/TimeUtil.h"
#include "DatabaseUpdate/DBCheckImplHelper.h"
#include "DatabaseUpdate/DataEncryptionMgr.h"
#include "logical/Local/DatabaseSession/BaseDBConn.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <vector>

/// Statements through the component's connection ("conn") beside the same ones on the bare C interface
/// ("bare"): same library, schema and settings, each on a file of its own, call by call in turn. Rows: group
/// case size median_us p99_us per_s; size is the number of rows that a call writes or reads.
namespace {

using Clock = std::chrono::steady_clock;
using Call = std::function<std::size_t(const std::string& sql)>;

constexpr std::int64_t kFirstTime = 1700000000;

struct Rounds
{
    int inserts;
    int lookups;
    int ranges;
};

class Samples
{
public:
    void Add(Clock::duration taken)
    {
        m_us.push_back(std::chrono::duration<double, std::micro>(taken).count());
    }

    void Print(const std::string& name, int size)
    {
        double total = 0;
        for (const double us : m_us)
            total += us;
        std::sort(m_us.begin(), m_us.end());
        const double perSecond = static_cast<double>(m_us.size()) * 1e6 / total;
        std::printf("store %s %d %.1f %.1f %.0f\n", name.c_str(), size, m_us[m_us.size() / 2],
                    m_us[m_us.size() * 99 / 100], perSecond);
        std::fflush(stdout);
    }

private:
    std::vector<double> m_us;
};

[[noreturn]] void Fail(const std::string& reason)
{
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(1);
}

void MakeDatabase(const std::string& folder)
{
    const std::string scripts = Base::FileUtil::GetCurExeDir() + "maintain/";
    std::string message;
    if (!Base::FileUtil::MakeDirs(folder) || !DatabaseUpdate::CDBCheckImplHelper::checkAndUpdateDB(
                                                 {folder, scripts, "", {}}, {"VideoSystem"}, message))
        Fail("cannot make a database in " + folder + ": " + message);
}

std::size_t RunConn(video::CBaseDBConn& conn, const std::string& sql)
{
    Sqlite3DO::CSQLite3Recordset rows;
    if (!conn.Execute(sql, rows))
        Fail("a statement failed");
    std::size_t bytes = 0;
    while (rows.Next()) {
        for (int column = 0; column < 7; ++column)
            bytes += rows.GetString(column).size();
    }
    return bytes;
}

/// Runs each statement on both sides in turn; the results must agree.
void Compare(const std::string& name, int size, int rounds, const Call& conn, const Call& bare,
             const std::function<std::string(int)>& statement)
{
    Samples connSamples;
    Samples bareSamples;
    for (int round = 0; round < rounds; ++round) {
        const std::string sql = statement(round);
        const auto start = Clock::now();
        const std::size_t connBytes = conn(sql);
        const auto middle = Clock::now();
        const std::size_t bareBytes = bare(sql);
        bareSamples.Add(Clock::now() - middle);
        connSamples.Add(middle - start);
        if (connBytes != bareBytes)
            Fail("the two sides read different rows");
    }
    connSamples.Print(name + ".conn", size);
    bareSamples.Print(name + ".bare", size);
}

std::string InsertOf(int row)
{
    return Base::StringUtil::Format(
        "INSERT INTO PictureFile (ID, CameraID, GroupID, FileName, FilePath, OccurTime, FileSize) VALUES "
        "('id-%08d', 'camera-%02d-0123456789abcdef', 'group-0123456789abcdef', 'Camera 01_%08d.jpg', "
        "'/home/user/Vantor/capture/2026/Camera 01_%08d.jpg', '%s', %d)",
        row, row % 4, row, row, Base::TimeUtil::TimeT2StrDatetime(kFirstTime + row).c_str(), row % 500);
}

std::string RangeOf(int first, int count)
{
    return Base::StringUtil::Format(
        "SELECT * FROM PictureFile WHERE GroupID = 'group-0123456789abcdef' AND OccurTime >= '%s'  AND "
        "OccurTime <= '%s' ",
        Base::TimeUtil::TimeT2StrDatetime(kFirstTime + first).c_str(),
        Base::TimeUtil::TimeT2StrDatetime(kFirstTime + first + count - 1).c_str());
}

void RunKind(const std::string& kind, const std::string& key, const std::string& root, const Rounds& rounds)
{
    Sqlite3DO::CSQLite3Conn::SetStaticKey(key);
    DatabaseUpdate::CDataEncryptionMgr::Instance().Init({}, key, "bench");
    MakeDatabase(root + kind + "/conn/");
    MakeDatabase(root + kind + "/bare/");
    video::CBaseDBConn connection(root + kind + "/conn/", "VideoSystem");
    Bare engine(root + kind + "/bare/VideoSystem", key);
    const Call conn = [&](const std::string& sql) { return RunConn(connection, sql); };
    const Call bare = [&](const std::string& sql) { return engine.Run(sql); };

    Compare("insert_own_commit." + kind, 1, rounds.inserts, conn, bare, InsertOf);
    Compare("select_by_id." + kind, 1, rounds.lookups, conn, bare, [&](int round) {
        return Base::StringUtil::Format("SELECT * FROM PictureFile WHERE ID = 'id-%08d' ",
                                        round * 7919 % rounds.inserts);
    });
    const int span = std::min(1000, rounds.inserts);
    Compare("select_range." + kind, span, rounds.ranges, conn, bare,
            [&](int round) { return RangeOf(round * 97 % (rounds.inserts - span + 1), span); });
}

} // namespace

int main(int argc, char** argv)
{
    const bool quick = argc > 1 && std::strcmp(argv[1], "--quick") == 0;
    const Rounds rounds = quick ? Rounds{1000, 1000, 30} : Rounds{10000, 10000, 300};
    const std::string root = Base::FileUtil::UserDataRoot() + "bench-" + Base::GuidUtil::CreateGuid() + "/";
    RunKind("plain", "", root, rounds);
    RunKind("keyed", Base::Encrypt::RandomKeyText(), root, rounds);
    return 0;
}
