#include "StageTimes.h"

#include <cmath>
#include <cstdio>
#include <numeric>

namespace bench {

namespace {

struct Stage
{
    const char* name;
    const char* line; ///< that ends it
};

/// Of the GUI thread, besides what it waits for.
constexpr Stage kStages[] = {
    {"loading-and-log", "InitSysParameter:in0"},
    {"application-object", "InitSysParameter:in1"},
    {"parameters", "fInitDatabase async start."},
    {"remote-configuration", "RemoteConfigController InitRemoteConfig"},
    {"layout-files", "LoadConfigFile Success."},
    {"font", "LoadFont Success."},
    {"skin", "LoadSkin Success."},
    {"style", "LoadStyle Success."},
    {"toolkit", "InitGuiToolKit Success."},
    {"rest-of-database", "m_fInitWinIDAndSystemManager async start."},
    {"managers", "InitManager Success."},
    {"logical-and-link", "alarmRegisteredRet async start."},
    {"init-finish-sent", "InitLogical Success."},
    {"date-format", "initDateTimeFormat Success."},
};

constexpr double kDay = 24 * 3600 * 1000.0;

/// Milliseconds of the day in universal time, of a line that begins "2026-11-21 17:36:52.937 +0100" or "...
/// Z".
bool ReadTime(const std::string& line, double& time)
{
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
    int offset = 0;
    if (std::sscanf(line.c_str(), "%*d-%*d-%*d %d:%d:%d.%d %d", &hour, &minute, &second, &millisecond,
                    &offset) < 4)
        return false;
    time = (hour - offset / 100) * 3600e3 + (minute - offset % 100) * 60e3 + second * 1e3 + millisecond;
    return true;
}

double MillisecondsOfDay(std::chrono::system_clock::time_point moment)
{
    const std::chrono::duration<double, std::milli> since = moment.time_since_epoch();
    return std::fmod(since.count(), kDay);
}

double Mean(const std::vector<double>& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

} // namespace

CStageTimes::CStageTimes(std::string logPath) : m_logPath(std::move(logPath)) {}

void CStageTimes::Skip()
{
    std::ifstream log(m_logPath, std::ios::ate);
    m_read = log ? static_cast<std::streamoff>(log.tellg()) : 0;
}

void CStageTimes::Take(std::chrono::system_clock::time_point start)
{
    const double begin = MillisecondsOfDay(start);
    std::ifstream log(m_logPath);
    log.seekg(m_read);
    for (std::string line; std::getline(log, line);)
        for (const Stage& stage : kStages) {
            const std::string text = std::string(" ") + stage.line;
            double time = 0;
            if (line.size() > text.size() &&
                line.compare(line.size() - text.size(), text.size(), text) == 0 && ReadTime(line, time))
                m_ends[stage.name].push_back(std::fmod(time + 0.5 - begin + kDay, kDay));
        }
}

void CStageTimes::Print()
{
    double before = 0;
    for (const Stage& stage : kStages) {
        const std::vector<double>& ends = m_ends[stage.name];
        if (ends.empty()) {
            std::printf("# stage %s is not in the log\n", stage.name);
            continue;
        }
        const double end = Mean(ends);
        std::printf("# stage %s %.1f\n", stage.name, end - before);
        before = end;
    }
}

} // namespace bench
