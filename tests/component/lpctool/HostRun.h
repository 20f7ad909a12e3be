#pragma once

#include "ChildProcess/ChildProcess.h"
#include "support/TestDataRoot.h"
#include "support/WaitUntil.h"

#include <memory>
#include <string>
#include <vector>

/// A run of a program of this project, with its output in a file.
class CProgramRun
{
public:
    CProgramRun(const TestDataRoot& root, const std::vector<std::string>& command);

    /// The exit status; fails the test when it does not end in time.
    int Status();
    std::string Output() const;
    bool Says(const std::string& text) const { return Output().find(text) != std::string::npos; }

    /// Waits until the output holds the text; false after the time.
    bool WaitForOutput(const std::string& text) const;
    CChildProcess& Process() { return m_process; }

private:
    std::string m_outputPath;
    CChildProcess m_process;
};

/// vantor-lpc host with a script and the fake component, in a data root of its own.
class CHostRun
{
public:
    /// way: how the fake component lives; see there. options go behind the usual ones.
    void Start(const std::string& script, const std::string& way = {},
               const std::vector<std::string>& options = {});
    /// The same without a component.
    void StartAlone(const std::string& script);

    /// Runs vantor-lpc with these arguments beside the host.
    std::unique_ptr<CProgramRun> Tool(std::vector<std::string> arguments) const;

    int Status() { return m_host->Status(); }
    std::string Output() const { return m_host->Output(); }
    bool Says(const std::string& text) const { return m_host->Says(text); }
    CProgramRun& Host() { return *m_host; }
    const TestDataRoot& Root() const { return m_root; }

private:
    std::string WriteScript(const std::string& script) const;

    TestDataRoot m_root;
    std::unique_ptr<CProgramRun> m_host;
};
