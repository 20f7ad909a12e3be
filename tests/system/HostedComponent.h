#pragma once

#include "ChildProcess/ChildProcess.h"
#include "lpc/host/Host.h"

#include <string>

/// The real component behind a framework in this process; one at a time. It has announced that it is ready.
class HostedComponent
{
public:
    /// Throws when it does not become ready. Its output goes to the file.
    HostedComponent(const std::string& program, const std::string& outputPath);

    /// The body of the answer to a request of the protocol "http"; empty without an answer.
    std::string Ask(const std::string& url, const std::string& body, const std::string& method = "POST");

    /// How many notifications of the method came since the last call. All that the component sent before an
    /// answer are there when the answer is.
    int TakeNotifications(const std::string& method);

    /// Asks it to end; the exit status.
    int End();
    /// Kills it and waits until it is gone.
    void Kill();

private:
    bool TakeNotification(const std::string& method, lpctool::Clock::time_point deadline);

    lpctool::CHost m_host;
    CChildProcess m_process;
};
