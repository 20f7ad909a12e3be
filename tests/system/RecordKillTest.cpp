#include "ChildProcess/ChildProcess.h"
#include "Sqlite3DO/SQLite3Engine.h"
#include "support/WaitUntil.h"
#include "system/ComponentRun.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <random>

namespace {

namespace fs = std::filesystem;
using Sqlite3DO::CSQLite3Engine;

constexpr int kRounds = 20;

/// Paths of records by their identifiers.
using Records = std::map<std::string, std::string>;

/// VANTOR_KILL_SEED repeats the moments of an earlier run.
unsigned Seed()
{
    const char* const given = std::getenv("VANTOR_KILL_SEED");
    return given ? static_cast<unsigned>(std::atol(given)) : std::random_device()();
}

/// A framework and its component that are killed while files are being catalogued; see RecordAdder.cpp.
class Cataloguing : public testing::Test
{
protected:
    enum class Victim { Component, Framework, Both };

    void KillWhileAdding(int round, Victim victim, std::chrono::milliseconds after)
    {
        CChildProcess framework;
        const auto before = Acknowledged().size();
        StartAdder(framework, std::to_string(round));
        EXPECT_TRUE(WaitUntil([&] { return Acknowledged().size() > before; }, std::chrono::seconds(30)));
        std::this_thread::sleep_for(after);
        if (victim != Victim::Framework)
            ::kill(run.ProcessId(), SIGKILL);
        if (victim != Victim::Component)
            framework.Signal(SIGKILL);
        EXPECT_TRUE(framework.WaitForExit(20000));
        EXPECT_TRUE(run.WaitUntilEnded(20));
    }

    /// The way of a framework that is not killed: each record by its identifier, over the route.
    void CheckByTheRoute()
    {
        CChildProcess framework;
        StartAdder(framework, "check");
        EXPECT_EQ(framework.WaitForExit(60000), 0);
        std::ifstream output(run.Path() + "adder");
        int missing = -1;
        output >> missing;
        EXPECT_EQ(missing, 0);
    }

    Records Acknowledged() const
    {
        std::ifstream lines(List());
        Records records;
        std::string type;
        std::string guid;
        std::string path;
        while (lines >> type >> guid >> path)
            records[guid] = path;
        return records;
    }

    /// What a copy of the database holds, so that the next start finds what the kill has left. A database
    /// that is not sound has failed the test.
    Records Stored() const
    {
        const std::string copy = run.Path() + "copy/";
        fs::create_directories(copy);
        for (const char* name : {"VideoSystem", "VideoSystem-wal"})
            if (fs::exists(run.DataPath() + name))
                fs::copy_file(run.DataPath() + name, copy + name);
        Records records;
        {
            CSQLite3Engine database(copy + "VideoSystem", CSQLite3Engine::Mode::Existing, {});
            Sqlite3DO::CSQLite3Recordset rows;
            database.Run("PRAGMA integrity_check", &rows);
            EXPECT_TRUE(rows.Next() && rows.GetString(0) == "ok") << rows.GetString(0);
            database.Run("SELECT ID, FilePath FROM PictureFile UNION ALL SELECT ID, FilePath FROM VideoFile",
                         &rows);
            while (rows.Next())
                records[rows.GetString(0)] = rows.GetString(1);
        }
        fs::remove_all(copy);
        return records;
    }

    ComponentRun run;

private:
    std::string List() const { return run.Path() + "acknowledged"; }

    void StartAdder(CChildProcess& framework, const std::string& round)
    {
        std::string error;
        ASSERT_TRUE(framework.Start({RECORD_ADDER, run.Program(), run.Path() + "output", List(), round},
                                    run.Path() + "adder", error))
            << error;
    }
};

TEST_F(Cataloguing, KeepsEveryAcknowledgedRecordWhoeverIsKilled)
{
    const unsigned seed = Seed();
    std::cout << "VANTOR_KILL_SEED=" << seed << std::endl;
    std::mt19937 random(seed);
    for (int round = 0; round < kRounds; ++round) {
        const auto victim = static_cast<Victim>(random() % 3);
        const std::chrono::milliseconds after(random() % 120);
        SCOPED_TRACE("seed " + std::to_string(seed) + ", round " + std::to_string(round) + ", victim " +
                     std::to_string(static_cast<int>(victim)) + " after " + std::to_string(after.count()) +
                     " ms");
        KillWhileAdding(round, victim, after);
        const Records stored = Stored();
        for (const auto& [guid, path] : Acknowledged()) {
            const auto found = stored.find(guid);
            EXPECT_TRUE(found != stored.end() && found->second == path)
                << guid << " of " << path << " is lost";
        }
        if (HasFailure())
            break;
    }
    CheckByTheRoute();
    RecordProperty("acknowledged", static_cast<int>(Acknowledged().size()));
}

} // namespace
