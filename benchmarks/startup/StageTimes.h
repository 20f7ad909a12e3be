#pragma once

#include <chrono>
#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// The times of the start's stages, read from the component's log.
class CStageTimes
{
public:
    explicit CStageTimes(std::string logPath);

    /// What the log holds until now does not count.
    void Skip();

    /// Takes the lines since then; the component was started at this moment.
    void Take(std::chrono::system_clock::time_point start);

    /// One line `# stage NAME ms` for each, in the order of their ends: the time since the end of the stage
    /// before. The log tells whole milliseconds, but starts fall anywhere within one, so means are finer than
    /// that, and medians would not be.
    void Print();

private:
    const std::string m_logPath;
    std::streamoff m_read = 0;
    std::map<std::string, std::vector<double>> m_ends; ///< by name, milliseconds since the start
};

} // namespace bench
