#pragma once

#include "support/FileContent.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <vector>

struct Child
{
    pid_t pid;
    int status;

    int Signal() const { return WIFSIGNALED(status) ? WTERMSIG(status) : 0; }
};

/// Runs programs that crash, and reads what they leave.
class CrashReport : public testing::Test
{
protected:
    /// Starts crash_child. A sanitizer in it is told to leave the signals to the handlers under
    /// test.
    pid_t Start(std::vector<std::string> arguments, const std::string& folder)
    {
        const std::string program =
            std::filesystem::read_symlink("/proc/self/exe").replace_filename("crash_child").string();
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
        pid_t pid = 0;
        EXPECT_EQ(::posix_spawn(&pid, program.c_str(), nullptr, nullptr, argv.data(), environ), 0);
        return pid;
    }
    static Child Await(pid_t pid)
    {
        Child child{pid, 0};
        EXPECT_EQ(::waitpid(pid, &child.status, 0), pid);
        return child;
    }
    Child Crash(std::vector<std::string> arguments, const std::string& folder)
    {
        return Await(Start(std::move(arguments), folder));
    }
    Child Crash(std::vector<std::string> arguments) { return Crash(std::move(arguments), Folder()); }

    std::string Folder() const { return m_data.Path() + "dump/"; }

    std::vector<std::filesystem::path> Reports() const
    {
        std::vector<std::filesystem::path> reports;
        if (std::filesystem::is_directory(Folder()))
            for (const auto& entry : std::filesystem::directory_iterator(Folder()))
                reports.push_back(entry.path());
        std::sort(reports.begin(), reports.end());
        return reports;
    }

    /// The only report's lines below the line with the name.
    std::string Section(const std::string& name) const
    {
        const std::string report = OnlyReport();
        const auto begin = report.find("\n" + name + ":\n");
        EXPECT_NE(begin, std::string::npos) << name;
        return begin == std::string::npos ? "" : report.substr(begin, report.find("\n\n", begin) + 1 - begin);
    }

    std::string OnlyReport() const
    {
        const auto reports = Reports();
        EXPECT_EQ(reports.size(), 1u);
        return reports.empty() ? std::string() : FileContent(reports.front());
    }

    TestDataRoot m_data;
};
