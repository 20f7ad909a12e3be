#include "CrashAPI/CrashAPI.h"
#include "support/TestDataRoot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <ctime>
#include <fstream>
#include <vector>

namespace {

namespace fs = std::filesystem;
using testing::ContainsRegex;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

std::string Get(const fs::path& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// From the precise clock; std::time may be a tick behind it.
std::time_t Now()
{
    return std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
}

struct Child
{
    pid_t pid;
    int status;

    int Signal() const { return WIFSIGNALED(status) ? WTERMSIG(status) : 0; }
};

class CrashReport : public testing::Test
{
protected:
    /// Runs crash_child to its end. A sanitizer in it is told to leave the signals to the handlers under
    /// test.
    Child Crash(std::vector<std::string> arguments, const std::string& folder)
    {
        const std::string program =
            fs::read_symlink("/proc/self/exe").replace_filename("crash_child").string();
        arguments.insert(arguments.begin(), program);
        arguments.insert(arguments.begin() + 2, folder);
        std::vector<char*> argv;
        for (std::string& argument : arguments)
            argv.push_back(argument.data());
        argv.push_back(nullptr);
        constexpr const char* kLeaveSignals =
            "handle_segv=0:handle_sigbus=0:handle_sigill=0:handle_sigfpe=0:"
            "handle_abort=0:handle_sigtrap=0:detect_leaks=0:use_sigaltstack=0";
        setenv("ASAN_OPTIONS", kLeaveSignals, 1);
        setenv("TSAN_OPTIONS", kLeaveSignals, 1);
        Child child{};
        EXPECT_EQ(::posix_spawn(&child.pid, program.c_str(), nullptr, nullptr, argv.data(), environ), 0);
        EXPECT_EQ(::waitpid(child.pid, &child.status, 0), child.pid);
        return child;
    }
    Child Crash(std::vector<std::string> arguments) { return Crash(std::move(arguments), Folder()); }

    std::string Folder() const { return m_data.Path() + "dump/"; }

    std::vector<fs::path> Reports() const
    {
        std::vector<fs::path> reports;
        if (fs::is_directory(Folder()))
            for (const auto& entry : fs::directory_iterator(Folder()))
                reports.push_back(entry.path());
        std::sort(reports.begin(), reports.end());
        return reports;
    }

    std::string OnlyReport() const
    {
        const auto reports = Reports();
        EXPECT_EQ(reports.size(), 1u);
        return reports.empty() ? std::string() : Get(reports.front());
    }

    TestDataRoot m_data;
};

struct CrashRow
{
    const char* name;
    std::vector<std::string> arguments;
    int signal;
    const char* head;     // The signal's line.
    const char* thread;   // Its name.
    const char* function; // Named in the stack.
};

void PrintTo(const CrashRow& row, std::ostream* out)
{
    *out << row.name;
}

class CrashOfAProcess : public CrashReport, public testing::WithParamInterface<CrashRow>
{};

TEST_P(CrashOfAProcess, LeavesOneReportThatNamesSignalThreadRegistersAndStack)
{
    const CrashRow& row = GetParam();
    const Child child = Crash(row.arguments);
    EXPECT_EQ(child.Signal(), row.signal);

    const std::string report = OnlyReport();
    EXPECT_THAT(report,
                testing::StartsWith("Vantor crash report\n\nsignal: " + std::string(row.head) + "\n"));
    EXPECT_THAT(report, HasSubstr("\nprocess: " + std::to_string(child.pid) + " /"));
    EXPECT_THAT(report, ContainsRegex("\nthread: [0-9]+ " + std::string(row.thread) + "\n"));
    EXPECT_THAT(report, ContainsRegex("\ntime: [0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2} UTC\n"));
    EXPECT_THAT(report, ContainsRegex("\nregisters:\n  [a-z]+ 0x[0-9a-f]{16}\n"));
    const std::string frame =
        "/crash_child\\(" + std::string(row.function) + "\\+0x[0-9a-f]+\\) *\\[0x[0-9a-f]+\\]\n";
    EXPECT_THAT(report.substr(report.find("\nstack:\n")), ContainsRegex(frame));
    EXPECT_THAT(report, Not(HasSubstr("OnCrash")));
    EXPECT_THAT(report, Not(HasSubstr("memory map:")));
    EXPECT_THAT(report, EndsWith("\nend of report\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Ways, CrashOfAProcess,
    testing::Values(CrashRow{"NullWrite",
                             {"null-write"},
                             SIGSEGV,
                             "SIGSEGV (11), code 1, no memory at the address\naddress: 0x0000000000000000",
                             "crash_child",
                             "WriteToNull"},
                    CrashRow{"ConstantWrite",
                             {"constant-write"},
                             SIGSEGV,
                             "SIGSEGV (11), code 2, access not permitted at the address",
                             "crash_child",
                             "WriteToConstant"},
                    CrashRow{"Abort",
                             {"abort"},
                             SIGABRT,
                             "SIGABRT (6), code -6, raised by the program itself",
                             "crash_child",
                             "CallAbort"},
                    CrashRow{"UncaughtException",
                             {"throw"},
                             SIGABRT,
                             "SIGABRT (6), code -6, raised by the program itself",
                             "crash_child",
                             "ThrowUncaught"},
                    CrashRow{"IllegalInstruction",
                             {"illegal"},
                             SIGILL,
                             "SIGILL (4), code 2, illegal operand",
                             "crash_child",
                             "RunIllegalInstruction"},
                    CrashRow{"Trap",
                             {"trap"},
                             SIGTRAP,
                             "SIGTRAP (5), code -6, raised by the program itself",
                             "crash_child",
                             "SendTrap"},
                    CrashRow{"StackOverflowOfMainThread",
                             {"overflow"},
                             SIGSEGV,
                             "SIGSEGV (11), code 1, no memory at the address",
                             "crash_child",
                             "OverflowStack"},
                    CrashRow{"StackOverflowOfPreparedWorker",
                             {"overflow", "in-worker"},
                             SIGSEGV,
                             "SIGSEGV (11), code 2, access not permitted at the address",
                             "worker-7",
                             "OverflowStack"},
                    CrashRow{"NullWriteOfPlainThread",
                             {"null-write", "in-plain-thread"},
                             SIGSEGV,
                             "SIGSEGV (11), code 1, no memory at the address",
                             "plain",
                             "WriteToNull"},
                    CrashRow{"ExceptionOutOfThread",
                             {"throw", "in-plain-thread"},
                             SIGABRT,
                             "SIGABRT (6), code -6, raised by the program itself",
                             "plain",
                             "ThrowUncaught"},
                    CrashRow{"TwoThreadsAtOnce",
                             {"null-write", "in-two-threads"},
                             SIGSEGV,
                             "SIGSEGV (11), code 1, no memory at the address",
                             "crash_child",
                             "WriteToNull"},
                    CrashRow{"AfterInitTwiceUninitAndInit",
                             {"null-write", "twice-on", "uninit", "again"},
                             SIGSEGV,
                             "SIGSEGV (11), code 1, no memory at the address",
                             "crash_child",
                             "WriteToNull"}),
    [](const auto& info) { return info.param.name; });

TEST_F(CrashReport, StackBeginsWhereTheProgramCrashed)
{
    Crash({"null-write"});
    const std::string report = OnlyReport();
    EXPECT_THAT(report, ContainsRegex("\nstack:\n[^\n]*WriteToNull"));
}

TEST_F(CrashReport, FullTypeAddsTheMemoryMapWithTheLoadedModules)
{
    EXPECT_EQ(Crash({"null-write", "full"}).Signal(), SIGSEGV);
    const std::string report = OnlyReport();
    const std::string map = report.substr(report.find("\nmemory map:\n"));
    EXPECT_THAT(report, HasSubstr("\ndump type: 0x9b67\n"));
    EXPECT_THAT(map, HasSubstr("/crash_child\n"));
    EXPECT_THAT(map, HasSubstr("libc.so"));
    EXPECT_THAT(map, HasSubstr("[stack]"));
    EXPECT_THAT(map, EndsWith("\nend of report\n"));
}

TEST_F(CrashReport, OnlyTheUserMayReadIt)
{
    Crash({"abort"});
    ASSERT_EQ(Reports().size(), 1u);
    struct stat found
    {};
    ASSERT_EQ(::stat(Reports().front().c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 0777, 0600u);
}

TEST_F(CrashReport, NewestReplacesTheOldestAndForeignFilesStay)
{
    fs::create_directories(Folder());
    for (const char* name :
         {"crash-20200101-000000-1.txt", "crash-20210101-000000-1.txt", "full-dump", "notes.txt"})
        std::ofstream(Folder() + name) << "old";
    const std::time_t before = Now();
    const Child child = Crash({"abort"});

    const auto files = Reports();
    ASSERT_EQ(files.size(), 3u);
    const std::string newest = files[0].filename().string();
    const std::string end = "-" + std::to_string(child.pid) + ".txt";
    std::tm utc{};
    EXPECT_EQ(::strptime(newest.c_str(), "crash-%Y%m%d-%H%M%S", &utc),
              newest.c_str() + newest.size() - end.size());
    EXPECT_THAT(newest, EndsWith(end));
    EXPECT_GE(::timegm(&utc), before);
    EXPECT_LE(::timegm(&utc), Now());
    EXPECT_EQ(files[1].filename(), "full-dump");
    EXPECT_EQ(files[2].filename(), "notes.txt");
}

TEST_F(CrashReport, NoneIsWrittenAfterUninitOrWithoutAFolder)
{
    EXPECT_EQ(Crash({"null-write", "uninit"}).Signal(), SIGSEGV);
    EXPECT_EQ(Crash({"abort"}, "").Signal(), SIGABRT);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(CrashReport, HandlerThatWasThereBeforeRunsAfterTheReport)
{
    const Child child = Crash({"null-write", "own-handler"});
    EXPECT_TRUE(WIFEXITED(child.status));
    EXPECT_EQ(WEXITSTATUS(child.status), 7);
    EXPECT_THAT(OnlyReport(), EndsWith("\nend of report\n"));
}

TEST_F(CrashReport, CallsAreToleratedInEveryState)
{
    EXPECT_TRUE(CrashAPI_Uninit());
    EXPECT_TRUE(CrashAPI_SetDumpType(0x9B67));
    EXPECT_TRUE(CrashAPI_SetDumpMaxCount(3));
    EXPECT_FALSE(CrashAPI_SetDumpMaxCount(0));
    EXPECT_FALSE(CrashAPI_SetDumpMaxCount(-1));
    EXPECT_FALSE(CrashAPI_SetDumpPath(nullptr));
    EXPECT_FALSE(CrashAPI_SetDumpPath(""));
    EXPECT_FALSE(CrashAPI_SetDumpPath("/proc/no/such/folder"));
    EXPECT_FALSE(CrashAPI_SetDumpPath(("/tmp/" + std::string(1000, 'x')).c_str()));
    EXPECT_TRUE(CrashAPI_SetDumpPath((m_data.Path() + "without/slash").c_str()));
    EXPECT_TRUE(fs::is_directory(m_data.Path() + "without/slash"));
    EXPECT_TRUE(CrashAPI_PrepareThread());
    EXPECT_TRUE(CrashAPI_Init());
    EXPECT_TRUE(CrashAPI_Init());
    EXPECT_TRUE(CrashAPI_Uninit());
    EXPECT_TRUE(CrashAPI_Uninit());
    struct sigaction now
    {};
    ::sigaction(SIGILL, nullptr, &now);
    EXPECT_EQ(now.sa_handler, SIG_DFL);
}

TEST_F(CrashReport, SmallerCountRemovesTheOldestAtOnce)
{
    fs::create_directories(Folder());
    for (const char* name :
         {"crash-20200101-000000-1.txt", "crash-20200101-000001-1.txt", "crash-20210101-000000-1.txt"})
        std::ofstream(Folder() + name) << "old";
    ASSERT_TRUE(CrashAPI_SetDumpMaxCount(3));
    ASSERT_TRUE(CrashAPI_SetDumpPath(Folder().c_str()));
    EXPECT_EQ(Reports().size(), 3u);
    ASSERT_TRUE(CrashAPI_SetDumpMaxCount(2));
    ASSERT_EQ(Reports().size(), 2u);
    EXPECT_EQ(Reports()[0].filename(), "crash-20200101-000001-1.txt");
}

} // namespace
