#include "CrashAPI/CrashAPI.h"
#include "component/crash/CrashRun.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdio>
#include <regex>

namespace {

namespace fs = std::filesystem;
using testing::ContainsRegex;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

struct CrashRow
{
    const char* name;
    std::vector<std::string> arguments;
    int signal;
    std::string head;     ///< the signal's line
    const char* function; ///< named in the stack
    const char* thread = "crash_child";
};

const std::string kNoMemory = "SIGSEGV (11), code 1, no memory at the address";
const std::string kNoMemoryAtNull = kNoMemory + "\naddress: 0x0000000000000000";
const std::string kNotPermitted = "SIGSEGV (11), code 2, access not permitted at the address";
const std::string kAborted = "SIGABRT (6), code -6, raised by the program itself";
const std::string kTrapped = "SIGTRAP (5), code -6, raised by the program itself";
const std::string kDivided = "SIGFPE (8), code 1, integer division by zero";
const std::string kIllegal = "SIGILL (4), code 2, illegal operand";

const CrashRow kCrashRows[] = {
    {"NullWrite", {"null-write"}, SIGSEGV, kNoMemoryAtNull, "WriteToNull"},
    {"ConstantWrite", {"constant-write"}, SIGSEGV, kNotPermitted, "WriteToConstant"},
    {"Abort", {"abort"}, SIGABRT, kAborted, "CallAbort"},
    {"UncaughtException", {"throw"}, SIGABRT, kAborted, "ThrowUncaught"},
#if defined(__x86_64__)
    {"DivisionByZero", {"divide"}, SIGFPE, kDivided, "DivideByZero"},
#endif
    {"IllegalInstruction", {"illegal"}, SIGILL, kIllegal, "RunIllegalInstruction"},
    {"Trap", {"trap"}, SIGTRAP, kTrapped, "SendTrap"},
    {"StackOverflowOfMainThread", {"overflow"}, SIGSEGV, kNoMemory, "OverflowStack"},
    {"StackOverflowOfWorker", {"overflow", "in-worker"}, SIGSEGV, kNotPermitted, "OverflowStack", "worker-7"},
    {"StackOverflowInAPool", {"overflow", "in-pool"}, SIGSEGV, kNotPermitted, "OverflowStack", "pool-thread"},
    {"CallOfANullPointer", {"null-call"}, SIGSEGV, kNoMemoryAtNull, "CallNull"},
    {"LostStackPointer", {"lost-stack"}, SIGILL, kIllegal, "LoseStack"},
    {"LoaderLockedByAnotherThread", {"loader-locked"}, SIGSEGV, kNoMemory, "WriteToNull"},
    {"NullWriteOfPlainThread", {"null-write", "in-plain-thread"}, SIGSEGV, kNoMemory, "WriteToNull", "plain"},
    {"ExceptionOutOfThread", {"throw", "in-plain-thread"}, SIGABRT, kAborted, "ThrowUncaught", "plain"},
    {"TwoThreadsAtOnce", {"null-write", "in-two-threads"}, SIGSEGV, kNoMemory, "WriteToNull"},
    {"AfterUninitAndInit", {"null-write", "twice-on", "uninit", "again"}, SIGSEGV, kNoMemory, "WriteToNull"},
};

class CrashOfAProcess : public CrashReport, public testing::WithParamInterface<CrashRow>
{};

TEST_P(CrashOfAProcess, LeavesOneReportThatNamesSignalThreadRegistersAndStack)
{
    const CrashRow& row = GetParam();
    const Child child = Crash(row.arguments);
    EXPECT_EQ(child.Signal(), row.signal);

    const std::string report = OnlyReport();
    EXPECT_THAT(report, testing::StartsWith("Vantor crash report\n\nsignal: " + row.head + "\n"));
    EXPECT_THAT(report, HasSubstr("\nprocess: " + std::to_string(child.pid) + " /"));
    EXPECT_THAT(report, ContainsRegex("\nthread: [0-9]+ " + std::string(row.thread) + "\n"));
    EXPECT_THAT(report, ContainsRegex("\ntime: [0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2} UTC\n"));
    EXPECT_THAT(report, ContainsRegex("\nregisters:\n  [a-z]+ 0x[0-9a-f]{16}\n"));
    const std::string frame = "\n  #[0-9]+ 0x[0-9a-f]{16} crash_child\\+0x[0-9a-f]+ \\(" +
                              std::string(row.function) + "\\+0x[0-9a-f]+\\)\n";
    EXPECT_THAT(report.substr(report.find("\nstack:\n")), ContainsRegex(frame));
    EXPECT_THAT(report, Not(HasSubstr("OnCrash")));
    EXPECT_THAT(report, ContainsRegex("\nmodules:\n(  [^\n]+\n)*  0x[0-9a-f]{16}-0x[0-9a-f]{16} [0-9a-f]{40} "
                                      "/[^\n]*/crash_child\n"));
    EXPECT_THAT(report, Not(HasSubstr("stack contents:")));
    EXPECT_THAT(report, EndsWith("\nend of report\n"));
}

INSTANTIATE_TEST_SUITE_P(Ways, CrashOfAProcess, testing::ValuesIn(kCrashRows),
                         [](const auto& info) { return info.param.name; });

TEST_F(CrashReport, ThatCannotFollowTheStackGoesOnByFramePointers)
{
    Crash({"lost-stack"});
    const std::string stack = Section("stack");
    EXPECT_THAT(stack, HasSubstr("(the stack is damaged and could not be followed further)\n"));
    EXPECT_THAT(stack, ContainsRegex("by the chain of frame pointers\\)\n  #1 [^\n]* crash_child\\+0x"));
}

TEST_F(CrashReport, ShowsALibraryThatWasLoadedLate)
{
    Crash({"late-library"});
    EXPECT_THAT(Section("modules"), ContainsRegex(" [0-9a-f]{40} /[^\n]*/libresolv[^\n]*\n"));
}

TEST_F(CrashReport, FullTypeAddsThreadsStackContentsAndMemoryMap)
{
    const Child child = Crash({"marker", "full"});
    EXPECT_EQ(child.Signal(), SIGSEGV);
    EXPECT_THAT(OnlyReport(), HasSubstr("\ndump type: 0x9b67\n"));
    EXPECT_THAT(Section("threads"), HasSubstr("  " + std::to_string(child.pid) + " crash_child\n"));
    EXPECT_THAT(Section("stack contents"), ContainsRegex("\n  0x[0-9a-f]{16}:[^\n]* 0x5ca1ab1e0ddba110"));
    const std::string map = Section("memory map");
    EXPECT_THAT(map, HasSubstr("/crash_child\n"));
    EXPECT_THAT(map, HasSubstr("libc.so"));
    EXPECT_THAT(map, HasSubstr("[stack]"));
    EXPECT_THAT(OnlyReport(), EndsWith("\nend of report\n"));
}

TEST_F(CrashReport, FullTypeReadsNoMoreOfAStackThanThereIs)
{
    Crash({"overflow", "in-worker", "full"});
    EXPECT_THAT(Section("stack contents"), ContainsRegex("\n  0x[0-9a-f]{16}: 0x[^\n]*\n"));
    EXPECT_LT(Section("stack contents").size(), 250u * 1024);
    EXPECT_THAT(OnlyReport(), EndsWith("\nend of report\n"));
}

TEST_F(CrashReport, FullTypeShowsNothingOfWhatLiesBehindAStack)
{
    Crash({"markers-behind", "full"});
    const std::string contents = Section("stack contents");
    EXPECT_THAT(contents, ContainsRegex("\n  0x[0-9a-f]{16}: 0x[^\n]*\n"));
    EXPECT_THAT(contents, Not(HasSubstr("0x5ca1ab1e0ddba110")));
}

TEST_F(CrashReport, FullTypeSurvivesAStackPointerThatPointsNowhere)
{
    EXPECT_EQ(Crash({"lost-stack", "full"}).Signal(), SIGILL);
    EXPECT_THAT(Section("stack contents"), HasSubstr("(there is no more of the stack)"));
    EXPECT_THAT(OnlyReport(), EndsWith("\nend of report\n"));
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

/// What the script prints for the only report.
class ResolvedReport : public CrashReport
{
protected:
    std::string Resolve()
    {
        const std::string report = Reports().at(0).string();
        const std::string command = VANTOR_RESOLVE + std::string(" ") + report + " 2>&1";
        FILE* const output = ::popen(command.c_str(), "r");
        std::string text;
        for (int next = std::fgetc(output); next != EOF; next = std::fgetc(output))
            text += static_cast<char>(next);
        exitCode = WEXITSTATUS(::pclose(output));
        return text;
    }

    /// A copy of the report in which the modules have other build ids.
    void PretendAnotherBuild()
    {
        const fs::path report = Reports().at(0);
        const std::string changed = std::regex_replace(FileContent(report), std::regex(" [0-9a-f]{40} /"),
                                                       " 0000000000000000000000000000000000000000 /");
        std::ofstream(report) << changed;
    }

    int exitCode = -1;
};

TEST_F(ResolvedReport, NamesTheLineThatCrashed)
{
    Crash({"null-write"});
    const std::string text = Resolve();
    EXPECT_EQ(exitCode, 0) << text;
    std::smatch place;
    ASSERT_TRUE(
        std::regex_search(text, place, std::regex("#0 WriteToNull at /.*/CrashChild\\.cpp:([0-9]+) ")))
        << text;
    std::ifstream source(CRASH_CHILD_SOURCE);
    std::string line;
    for (int i = std::stoi(place[1].str()); i > 0; --i)
        std::getline(source, line);
    EXPECT_THAT(line, HasSubstr("*reinterpret_cast<volatile int*>"));
    EXPECT_THAT(text, ContainsRegex("\n  #1 main at [^\n]*/CrashChild.cpp:[0-9]+ "));
    EXPECT_THAT(text, HasSubstr("\nsignal: SIGSEGV (11)"));
}

TEST_F(ResolvedReport, TakesNoFileOfAnotherBuild)
{
    Crash({"null-write"});
    PretendAnotherBuild();
    const std::string text = Resolve();
    EXPECT_EQ(exitCode, 1);
    EXPECT_THAT(text, Not(HasSubstr("CrashChild.cpp")));
    EXPECT_THAT(text, ContainsRegex("  #0 WriteToNull\\+0x[0-9a-f]+   \\[crash_child\\+0x"));
    EXPECT_THAT(text, ContainsRegex("/crash_child is another build"));
}

TEST_F(ResolvedReport, ThatWasCutSaysSo)
{
    Crash({"null-write"});
    const fs::path report = Reports().at(0);
    fs::resize_file(report, FileContent(report).find("\nmodules:\n"));
    EXPECT_THAT(Resolve(), ContainsRegex("#0 [^\n]*WriteToNull.*the report was cut\n"));
    EXPECT_EQ(exitCode, 1);
}

TEST_F(ResolvedReport, IsRefusedForAnythingElse)
{
    fs::create_directories(Folder());
    std::ofstream(Folder() + "notes.txt") << "Dear diary\n";
    EXPECT_THAT(Resolve(), HasSubstr("is no crash report"));
    EXPECT_EQ(exitCode, 2);
}

} // namespace
