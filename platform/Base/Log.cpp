#include "Base/Log.h"

#include "Base/RateLimit.h"

#include <log4cxx/basicconfigurator.h>
#include <log4cxx/consoleappender.h>
#include <log4cxx/logger.h>
#include <log4cxx/logmanager.h>
#include <log4cxx/patternlayout.h>
#include <log4cxx/propertyconfigurator.h>
#include <log4cxx/spi/location/locationinfo.h>

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

} // namespace

CLog& CLog::Instance()
{
    static CLog* const log = new CLog();
    return *log;
}

bool CLog::InitLog(const std::string& propertiesPath)
{
    const bool readable = std::ifstream(propertiesPath).good();
    if (readable)
        log4cxx::PropertyConfigurator::configure(log4cxx::File(propertiesPath));
    else
        log4cxx::BasicConfigurator::configure(PlainAppender());
    const std::unique_lock<std::shared_mutex> lock(TheGate().mutex);
    TheGate().open = true;
    return readable;
}

void CLog::UninitLog()
{
    const std::unique_lock<std::shared_mutex> lock(TheGate().mutex);
    if (std::exchange(TheGate().open, false))
        log4cxx::LogManager::shutdown();
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
    const std::string message = FormatMessage(format, arguments);
    va_end(arguments);
    if (observer)
        observer(level, logger, message);
    if (wanted)
        target->forcedLog(Level(level), message, Place(location));
}

void SetLogObserver(LogObserver observer)
{
    g_observer = observer;
    ++g_lineLimitAge;
}

} // namespace Base
