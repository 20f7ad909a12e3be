#pragma once

#include "ChildProcess/ChildProcess.h"

#include <cstdint>
#include <string>

namespace bench {

/// What a vantor-lpc tells of its calls.
struct CallSummary
{
    std::uint64_t count = 0;
    double seconds = 0;
    double medianUs = 0;
    double p99Us = 0;

    double PerSecond() const { return static_cast<double>(count) / seconds; }
};

/// A vantor-lpc that sends to a running framework what it is fed with, over one connection. Whatever fails
/// ends the program with a message.
class CCaller
{
public:
    explicit CCaller(const std::string& url);
    ~CCaller();
    CCaller(const CCaller&) = delete;
    CCaller& operator=(const CCaller&) = delete;

    /// Waits until the client takes the body: at most some ten are under way to it.
    void Feed(const std::string& body);

    /// Waits for the answers to all; each must report success.
    CallSummary End();

private:
    const std::string m_path; ///< of the pipe; the output's has an ending
    CChildProcess m_client;
    int m_pipe = -1;
};

/// Ends the program with a message.
[[noreturn]] void Fail(const std::string& reason);

} // namespace bench
