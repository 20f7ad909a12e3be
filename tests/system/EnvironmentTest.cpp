#include "Base/FileUtil.h"
#include "system/ComponentRun.h"

#include <gmock/gmock.h>

#include <fstream>

using testing::HasSubstr;
using testing::Not;

namespace {

enum class Program { Component, ComponentOfACopy, ComponentUnderAHost, Framework };

/// An environment at fault, made by a shell in a mount namespace of its own: $R is a folder of the test,
/// $R/data the data root. The program ends in the way of the row and says the sentence once.
struct Fault
{
    const char* name;
    Program program;
    const char* environment;
    int exitCode;
    const char* sentence;
};

constexpr auto kAlone = Program::Component;
constexpr auto kCopy = Program::ComponentOfACopy;
constexpr auto kHosted = Program::ComponentUnderAHost;
constexpr auto kFramework = Program::Framework;

constexpr int kFailed = 255;
constexpr int kCannotRun = 1;
/// Was ready, and ended in order when it was asked to.
constexpr int kWorks = 0;

constexpr const char* kFull = "mount -t tmpfs -o size=64k none $R/data; head -c 1M /dev/zero >$R/data/all";
constexpr const char* kFilledLater =
    "mount -t tmpfs -o size=2M none $R/data; $HOSTED; head -c 2M /dev/zero >$R/data/all";
constexpr const char* kFilledWhileRunning = R"(mount -t tmpfs -o size=2M none $R/data
self=$(sh -c 'echo $PPID')
( until grep -qs 'APP Init Success' $R/data/Video.C/log/Video.C.log; do sleep 0.05; done
  head -c 2M /dev/zero >$R/data/all
  yes '' | head -c 4K >>$R/data/Video.C/log/Video.C.log
  kill $self ) &)";
constexpr const char* kReadOnly = "mount -t tmpfs -o ro none $R/data";
constexpr const char* kNoHome =
    "unset HOME XDG_DATA_HOME VANTOR_USER_DATA; set -- unshare -U --map-user=54321 \"$@\"";
constexpr const char* kNoScreen = "unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM";

const Fault kFaults[] = {
    {"FullDisk", kAlone, kFull, kFailed, "InitDatabase Failed."},
    {"FullDiskForTheFramework", kFramework, kFull, kCannotRun, "DESetup.xml\" cannot be written."},
    {"DiskFilledLater", kAlone, kFilledLater, kFailed, "InitDatabase Failed."},
    {"DiskFilledWhileItRuns", kAlone, kFilledWhileRunning, kWorks, "Log: lines are lost from here on"},
    {"ReadOnlyData", kAlone, kReadOnly, kFailed, "data/]: Read-only file system."},
    {"ReadOnlyDataForTheFramework", kFramework, kReadOnly, kCannotRun, "data/]: Read-only file system."},
    {"DataBelowAFile", kAlone, "export VANTOR_USER_DATA=/etc/passwd/data", kFailed, "Not a directory."},
    {"DataBehindADeadLink", kAlone, "ln -s none $R/link; export VANTOR_USER_DATA=$R/link", kFailed,
     "it is a link that leads nowhere."},
    {"NoHome", kAlone, kNoHome, kFailed, "User data: no home folder; set VANTOR_USER_DATA"},
    {"NoHomeForTheFramework", kFramework, kNoHome, kCannotRun,
     "User data: no home folder; set VANTOR_USER_DATA"},
    {"HomeThatIsNotThere", kAlone, "export HOME=/proc/none; unset XDG_DATA_HOME VANTOR_USER_DATA", kFailed,
     "User data: cannot write in [/proc/none/.local/share/Vantor/]"},
    {"NoFolderForTemporaryFiles", kHosted, "export TMPDIR=/proc/none", kWorks, "APP Init Success"},
    {"NoRuntimeFolder", kHosted, "export XDG_RUNTIME_DIR=/proc/none TMPDIR=$R", kWorks, "APP Init Success"},
    {"ReadOnlyRuntimeFolder", kHosted,
     "mount -t tmpfs -o ro none /mnt; export XDG_RUNTIME_DIR=/mnt TMPDIR=$R", kWorks, "APP Init Success"},
    {"LongRuntimeFolder", kFramework, "export XDG_RUNTIME_DIR=$R/$(printf %0150d 0); mkdir $XDG_RUNTIME_DIR",
     kCannotRun, "longer than the 107 bytes"},
    {"DumpFolderInTheWay", kHosted, "mkdir -p $R/data/Video.C; : >$R/data/Video.C/dump", kWorks,
     "Failed to CrashAPI_SetDumpPath ["},
    {"NoSchemaScripts", kCopy, "rm $R/copy/bin/maintain", kFailed,
     "Failed to checkAndUpdateDB. [msg-MainView: there is no folder "},
    {"DamagedSchemaScript", kCopy,
     "rm $R/copy/bin/maintain; mkdir -p $R/copy/bin/maintain/VideoSystem; "
     "echo CREATE nothing >$R/copy/bin/maintain/VideoSystem/0001_a.sql",
     kFailed, "Failed to checkAndUpdateDB. [msg-VideoSystem: script 0001_a.sql failed, "},
    {"NoWidgetLayout", kHosted, "mount -t tmpfs none $BIN/WidgetLayout", kWorks,
     "Failed to copy maintain/CustomWidgetLayout.xml."},
    {"LogSettingsOfNoise", kHosted, "head -c 3000 /dev/urandom >$LOG", kWorks,
     "log.properties] cannot be followed: it sets up no appender for the root logger."},
    {"LogSettingsWithAFileThatCannotBe", kHosted, "sed s,{VANTOR_LOG_DIR},{NONE}/proc/none, $INSTALLED >$LOG",
     kWorks, "log.properties] cannot be followed: the file [/proc/none/"},
    {"NoScreen", kAlone, kNoScreen, kFailed, "FATAL [Vantor.Video.C] root"},
    {"NoScreenForTheFramework", kFramework, kNoScreen, kCannotRun, "FATAL [Vantor.Framewor] root"},
    {"NoScreenForTheHelp", kFramework, "unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM; set -- \"$@\" --help",
     kWorks, "--skin <NAME>"},
    {"FewOpenFiles", kHosted, "ulimit -n 32", kWorks, "APP Init Success"},
    {"SmallFiles", kAlone, "ulimit -f 8", kFailed, "Log: lines are lost from here on"},
};

class AnEnvironment : public testing::TestWithParam<Fault>
{
protected:
    std::string Hosted()
    {
        const std::string script = m_run.Path() + "script";
        std::ofstream(script) << ComponentRun::kUntilReady << ComponentRun::kQuit;
        return m_run.HostCommand(script);
    }

    std::string Command()
    {
        switch (GetParam().program) {
        case Program::ComponentUnderAHost:
            return Hosted();
        case Program::Framework:
            return "$BIN/Vantor.Framework --skin BlueSkin";
        case Program::ComponentOfACopy:
            m_run.LeaveLooksOut();
            break;
        case Program::Component:
            break;
        }
        return m_run.Component();
    }

    /// The exit code. The output is followed by the log and the names of crash reports.
    int Run()
    {
        const std::string file = m_run.Path() + "run.sh";
        std::ofstream(file) << "export R=" << m_run.Path() << " BIN=" << Base::FileUtil::GetCurExeDir()
                            << '\n'
                            << R"(export VANTOR_USER_DATA=$R/data LOG=$R/data/Video.C/log.properties
                                  export INSTALLED=$BIN/../resources/log.properties
                                  mkdir -p -m 700 $R/data
                                  # What a program in want finds of fonts must not be kept for the others.
                                  export XDG_CACHE_HOME=$R/cache FONTS=/var/cache/fontconfig
                                  mount --bind $FONTS $FONTS && mount -o remount,bind,ro $FONTS
                                  )"
                            << "HOSTED='" << Hosted() << "'\nset -- timeout -s KILL 40 " << Command() << '\n'
                            << "( " << Prepare() << '\n'
                            << R"(exec "$@" )
                                  code=$?
                                  cat $R/data/*/log/*.log
                                  find $R/data -name 'crash-*'
                                  exit $code)";
        return m_run.Shell("unshare -rm sh " + file);
    }

    ComponentRun m_run;

private:
    static std::string Prepare()
    {
        const std::string environment = GetParam().environment;
        return environment.find("$LOG") == std::string::npos ? environment
                                                             : "mkdir $R/data/Video.C; " + environment;
    }
};

int Count(const std::string& text, const std::string& part)
{
    int count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

TEST_P(AnEnvironment, AtFaultIsToldInOneSentenceWithoutACrash)
{
    EXPECT_EQ(Run(), GetParam().exitCode) << m_run.Output();
    EXPECT_EQ(Count(m_run.Output(), GetParam().sentence), 1) << m_run.Output();
    EXPECT_THAT(m_run.Output(), Not(HasSubstr("/crash-")));
    EXPECT_THAT(m_run.Output(), Not(HasSubstr("terminate called")));
}

INSTANTIATE_TEST_SUITE_P(Faults, AnEnvironment, testing::ValuesIn(kFaults),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
