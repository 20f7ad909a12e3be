#include "Base/Log.h"

#include "Base/RateLimit.h"

#include <log4cxx/basicconfigurator.h>
#include <log4cxx/consoleappender.h>
#include <log4cxx/fileappender.h>
#include <log4cxx/logger.h>
#include <log4cxx/logmanager.h>
#include <log4cxx/patternlayout.h>
#include <log4cxx/propertyconfigurator.h>
#include <log4cxx/spi/location/locationinfo.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <fstream>
#include <mutex>
#include <shared_mutex>
#include <utility>

namespace Base {

namespace {

constexpr std::size_t kMessageLimit = 16 * 1024;

std::atomic<LogObserver> g_observer{nullptr};

/// Whether log4cxx may be used. Who writes holds the lock shared, so that closing waits for lines under way.
/// Never destroyed, as a worker may write while the process exits.
struct Gate
{
    std::shared_mutex mutex;
    bool open = false;
};

Gate& TheGate()
{
    static Gate* const gate = new Gate();
    return *gate;
}

/// log4cxx's levels by ours.
const log4cxx::LevelPtr& Level(LogLevel level)
{
    using log4cxx::Level;
    static const auto* const levels = new std::array<log4cxx::LevelPtr, 5>{
        Level::getDebug(), Level::getInfo(), Level::getWarn(), Level::getError(), Level::getFatal()};
    return (*levels)[static_cast<std::size_t>(level)];
}

log4cxx::LoggerPtr Logger(const char* name)
{
    return *name ? log4cxx::Logger::getLogger(name) : log4cxx::Logger::getRootLogger();
}

log4cxx::spi::LocationInfo Place(const LogLocation& location)
{
    using log4cxx::spi::LocationInfo;
    return {location.file, LocationInfo::calcShortFileName(location.file), location.function, location.line};
}

log4cxx::AppenderPtr PlainAppender()
{
    const auto layout = std::make_shared<log4cxx::PatternLayout>(LOG4CXX_STR("%d %-5p %c %m%n"));
    return std::make_shared<log4cxx::ConsoleAppender>(layout, log4cxx::ConsoleAppender::getSystemErr());
}

/// Why what was configured gives no log; empty when it does. log4cxx itself goes on without one.
std::string WhatIsWrong()
{
    const log4cxx::AppenderList appenders = log4cxx::Logger::getRootLogger()->getAllAppenders();
    if (appenders.empty())
        return "it sets up no appender for the root logger";
    for (const log4cxx::AppenderPtr& appender : appenders) {
        const auto file = log4cxx::cast<log4cxx::FileAppender>(appender);
        if (file && !std::ofstream(file->getFile(), std::ios::app))
            return "the file [" + file->getFile() + "] cannot be written";
    }
    return {};
}

std::string Configure(const std::string& propertiesPath)
{
    if (!std::ifstream(propertiesPath).good())
        return "it cannot be read";
    try {
        log4cxx::PropertyConfigurator::configure(log4cxx::File(propertiesPath));
        return WhatIsWrong();
    } catch (const std::exception& error) {
        return error.what();
    }
}

/// Whether there is a log as the file says; one line on standard error when not.
bool LogsAs(const std::string& propertiesPath)
{
    if (propertiesPath.empty())
        return false;
    const std::string problem = Configure(propertiesPath);
    if (problem.empty())
        return true;
    log4cxx::LogManager::resetConfiguration();
    std::fprintf(stderr, "Log: [%s] cannot be followed: %s.\n", propertiesPath.c_str(), problem.c_str());
    return false;
}

/// How many lines were lost that the log does not tell of yet, and whether standard error tells of them.
std::atomic<std::size_t> g_lost{0};
std::atomic<bool> g_told{false};

void WriteLine(const log4cxx::LoggerPtr& logger, LogLevel level, const std::string& message,
               const log4cxx::spi::LocationInfo& place)
{
    std::size_t lost = g_lost.exchange(0);
    try {
        if (lost > 0)
            logger->forcedLog(
                Level(LogLevel::Warn),
                "Here " + std::to_string(lost) + " lines are missing that could not be written.", place);
        lost = 0;
        logger->forcedLog(Level(level), message, place);
        g_told = false;
    } catch (const std::exception& error) {
        g_lost += lost + 1;
        if (!g_told.exchange(true))
            std::fprintf(stderr, "Log: lines are lost from here on: %s.\n", error.what());
        if (level >= LogLevel::Error)
            std::fprintf(stderr, "%s\n", message.c_str());
    }
}

/// Most lines fit the buffer on the stack; only long ones are formatted a second time.
std::string FormatMessage(const char* format, std::va_list arguments)
{
    std::array<char, 512> shortText;
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(shortText.data(), shortText.size(), format, arguments);
    std::string message;
    if (length >= 0 && static_cast<std::size_t>(length) < shortText.size()) {
        message.assign(shortText.data(), static_cast<std::size_t>(length));
    } else if (length > 0) {
        message.resize(std::min<std::size_t>(static_cast<std::size_t>(length), kMessageLimit) + 1);
        std::vsnprintf(message.data(), message.size(), format, again);
        message.pop_back();
    }
    va_end(again);
    return message;
}

/// What a text from outside may hold must not look like further lines.
void PutOnOneLine(std::string& message)
{
    std::replace_if(
        message.begin(), message.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; }, ' ');
}

} // namespace

CLog& CLog::Instance()
{
    static CLog* const log = new CLog();
    return *log;
}

bool CLog::InitLog(const std::string& propertiesPath, const std::string& installedPath)
{
    const bool asWanted = LogsAs(propertiesPath);
    if (!asWanted && (installedPath == propertiesPath || !LogsAs(installedPath)))
        log4cxx::BasicConfigurator::configure(PlainAppender());
    const std::unique_lock<std::shared_mutex> lock(TheGate().mutex);
    TheGate().open = true;
    return asWanted;
}

void CLog::UninitLog()
{
    const std::unique_lock<std::shared_mutex> lock(TheGate().mutex);
    if (!std::exchange(TheGate().open, false))
        return;
    try {
        log4cxx::LogManager::shutdown();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "Log: its end could not be written: %s.\n", error.what());
    }
}

void CLog::Write(LogLevel level, const char* logger, const LogLocation& location, const char* format, ...)
{
    const LogObserver observer = g_observer;
    const std::shared_lock<std::shared_mutex> lock(TheGate().mutex);
    const log4cxx::LoggerPtr target = TheGate().open ? Logger(logger) : nullptr;
    const bool wanted = target && target->isEnabledFor(Level(level));
    if (!wanted && !observer)
        return;

    std::va_list arguments;
    va_start(arguments, format);
    std::string message = FormatMessage(format, arguments);
    va_end(arguments);
    PutOnOneLine(message);
    if (observer)
        observer(level, logger, message);
    if (wanted)
        WriteLine(target, level, message, Place(location));
}

void SetLogObserver(LogObserver observer)
{
    g_observer = observer;
    ++g_lineLimitAge;
}

} // namespace Base
