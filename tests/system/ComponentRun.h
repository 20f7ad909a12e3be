#pragma once

#include "support/FileContent.h"
#include "support/TestDataRoot.h"
#include "support/WaitUntil.h"

#include <string>
#include <vector>

/// Runs of the real programs in a data root of their own.
class ComponentRun
{
public:
    /// Lines of scripts: the component is up, and it ends in order.
    static constexpr const char* kUntilReady =
        "{\"expect_notify\": {\"method\": \"initFinish\"}, \"within_ms\": 20000}\n";
    static constexpr const char* kQuit = "{\"notify\": {\"method\": \"componentUninit\"}}\n"
                                         "{\"expect_exit\": 0, \"within_ms\": 15000}\n";

    ComponentRun();

    /// Plays a script with vantor-lpc host, which starts the component; the exit code. The text is written to
    /// a file; see PlayFile for the scripts that lie beside these tests. options: more words for vantor-lpc
    /// host.
    int Play(const std::string& script);
    int PlayFile(const std::string& name, const std::string& options = "");

    /// Runs a shell command with the data root in its environment; the exit code, 128 + signal for a killed
    /// one.
    int Shell(const std::string& command) const;

    /// From now on runs a copy of the component that has neither skins, style nor translations beside it.
    void LeaveLooksOut();

    std::string Program() const { return m_program; }
    /// The command that starts the component with the usual arguments.
    std::string Component() const { return Program() + " 1 2 'BlackRedSkin 1 0 0 0 0'"; }
    std::string HostCommand(const std::string& scriptPath, const std::string& options = "") const;

    /// The messages of the component's log, in order.
    std::vector<std::string> LogMessages() const;

    /// The texts that are missing in the log, or not in this order.
    std::vector<std::string> MissingInOrder(const std::vector<std::string>& wanted) const;

    /// Waits until the log has a message; false after the time.
    bool WaitForLog(const std::string& message, int seconds) const;

    /// The process of a component that runs on this data root; 0 for none.
    int ProcessId() const;
    /// Asks the component that runs to end.
    void Terminate() const;
    bool WaitUntilEnded(int seconds) const
    {
        return WaitUntil([&] { return ProcessId() == 0; }, std::chrono::seconds(seconds));
    }

    std::string Path() const { return m_root.Path(); }
    std::string DataPath() const { return Path() + "Video.C/"; }
    /// What the last run printed.
    std::string Output() const { return FileContent(Path() + "output"); }

private:
    TestDataRoot m_root;
    std::string m_bin;
    std::string m_program;
};
