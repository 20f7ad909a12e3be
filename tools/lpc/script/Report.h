#pragma once

#include "lpc/json/Matcher.h"

#include <chrono>
#include <optional>
#include <ostream>
#include <string>

namespace lpctool {

/// Why a step failed.
struct Failure
{
    std::string reason;
    std::optional<Mismatch> mismatch;
    std::string whole; ///< the whole of what came, for reading; may be empty
};

/// Prints what the host does, line by line, for a person.
class CReport
{
public:
    explicit CReport(std::ostream& out) : m_out(out) {}

    void Line(const std::string& text);
    void Heading(const std::string& text);

    /// Numbers the steps. failure: null when the step went well. place: "file:line" of the step.
    void Step(const std::string& what, std::chrono::milliseconds took, const Failure* failure,
              const std::string& place);

    /// How many steps there were and how it went.
    void Summary(bool good, std::chrono::milliseconds took);

private:
    void Explain(const Failure& failure, const std::string& place);

    std::ostream& m_out;
    int m_steps = 0;
};

} // namespace lpctool
