#pragma once

#include "LPC_Wire/Records.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace lpctool {

/// What status and error an answer reports in words; empty for success.
std::string ComplaintAbout(const lpc::Message& answer);

/// Requests that differ in nothing but their bodies, sent one after the other over the connection of this
/// process: each waits for the answer to the one before.
class CCallSeries
{
public:
    enum class Show {
        Answers, ///< the body of each on a line of its own, empty for an answer without one
        Summary, ///< at the end one line: count, failures, seconds, and of the calls median_us and p99_us
    };

    /// request: all but the body; timeoutMs: of each.
    CCallSeries(const lpc::Message& request, std::uint32_t timeoutMs, Show show, std::ostream& out,
                std::ostream& err)
        : m_request(request), m_timeoutMs(timeoutMs), m_show(show), m_out(out), m_err(err)
    {}

    /// Sends a request for each line that is not empty, as the lines come. An answer that reports an error,
    /// or does not come in time, has its line in err (beside a summary only the first one) and does not end
    /// the series; a line that is no JSON and a lost connection do. Gives an exit code of the program.
    int Run(std::istream& bodies);

private:
    /// False when nothing more can be sent.
    bool Call(const std::string& body);
    void CountFailure(const std::string& complaint);
    void ShowAnswer(const lpc::Message& answer);
    void ShowSummary(double seconds);
    double Quantile(double part);

    lpc::Message m_request;
    const std::uint32_t m_timeoutMs;
    const Show m_show;
    std::ostream& m_out;
    std::ostream& m_err;
    std::uint64_t m_count = 0;
    std::uint64_t m_failures = 0;
    std::vector<float> m_times; ///< microseconds of each call, for the summary
};

} // namespace lpctool
