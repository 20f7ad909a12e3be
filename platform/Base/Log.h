#pragma once

#include "Base/PrintfFormat.h"

#include <string>

/// Logging with the place of the line. The texts are printf formats, checked by the compiler.
namespace Base {

enum class LogLevel { Debug, Info, Warn, Error, Fatal };

/// Where a line was written: file, line number and the function's signature.
struct LogLocation
{
    const char* file;
    int line;
    const char* function;
};

/// The process's logger, on log4cxx. Before InitLog and after UninitLog every line is lost quietly. Any
/// thread.
class CLog
{
public:
    static CLog& Instance();

    /// Starts logging as the properties file says. When that gives no log (it cannot be read, names no
    /// appender for the root logger, or a file that cannot be written), as the file installedPath says; when
    /// there is none, on standard error. The result is then false, and standard error has a line that says
    /// why; it has none for an empty path.
    ///
    /// Lines that cannot be written later, as on a full disk, are lost, but for errors, which then go to
    /// standard error. It has one line when that begins, and the log has one when it goes on.
    bool InitLog(const std::string& propertiesPath, const std::string& installedPath = {});

    /// Writes out and stops; waits for lines that other threads are writing. May be called again. Call it
    /// before the process exits while other threads run: log4cxx itself does not survive that.
    void UninitLog();

    /// Writes one line to the named logger, or to the root logger when the name is empty. A message is cut at
    /// 16 KiB; control characters in it become blanks.
    void Write(LogLevel level, const char* logger, const LogLocation& location, const char* format, ...)
        BASE_PRINTF_FORMAT(5, 6);

private:
    CLog() = default;
};

/// Sees every line that CLog::Write takes, before it goes to log4cxx; for tests. Empty function: none.
/// The arguments are the level, the logger's name and the finished message.
using LogObserver = void (*)(LogLevel level, const char* logger, const std::string& message);
void SetLogObserver(LogObserver observer);

} // namespace Base

#if defined(__GNUC__)
#define BASE_LOG_FUNCTION __PRETTY_FUNCTION__
#else
#define BASE_LOG_FUNCTION __FUNCSIG__
#endif

#define BASE_LOG(level, logger, ...)                                                                         \
    ::Base::CLog::Instance().Write(level, logger,                                                            \
                                   ::Base::LogLocation{__FILE__, __LINE__, BASE_LOG_FUNCTION}, __VA_ARGS__)

#define BASE_DEBUG(...) BASE_LOG(::Base::LogLevel::Debug, "", __VA_ARGS__)
#define BASE_INFO(...) BASE_LOG(::Base::LogLevel::Info, "", __VA_ARGS__)
#define BASE_WARN(...) BASE_LOG(::Base::LogLevel::Warn, "", __VA_ARGS__)
#define BASE_ERROR(...) BASE_LOG(::Base::LogLevel::Error, "", __VA_ARGS__)
#define BASE_FATAL(...) BASE_LOG(::Base::LogLevel::Fatal, "", __VA_ARGS__)

/// The same to a named logger, for example BASE_ERROR_TO("VideoLogger", "Failed to send. LastError: [%d].",
/// error).
#define BASE_INFO_TO(logger, ...) BASE_LOG(::Base::LogLevel::Info, logger, __VA_ARGS__)
#define BASE_WARN_TO(logger, ...) BASE_LOG(::Base::LogLevel::Warn, logger, __VA_ARGS__)
#define BASE_ERROR_TO(logger, ...) BASE_LOG(::Base::LogLevel::Error, logger, __VA_ARGS__)
