#pragma once

#include "Base/Log.h"

#include <algorithm>
#include <mutex>
#include <string>
#include <vector>

/// Keeps every log line written while it lives, from any thread. One at a time.
class CapturedLog
{
public:
    struct Line
    {
        Base::LogLevel level;
        std::string logger;
        std::string message;
    };

    CapturedLog()
    {
        Store().clear();
        Base::SetLogObserver([](Base::LogLevel level, const char* logger, const std::string& message) {
            std::lock_guard<std::mutex> lock(Mutex());
            Store().push_back({level, logger, message});
        });
    }
    ~CapturedLog() { Base::SetLogObserver(nullptr); }

    std::vector<Line> Lines() const
    {
        std::lock_guard<std::mutex> lock(Mutex());
        return Store();
    }

    /// The messages of one level, in order.
    std::vector<std::string> Messages(Base::LogLevel level) const
    {
        std::vector<std::string> messages;
        for (const Line& line : Lines())
            if (line.level == level)
                messages.push_back(line.message);
        return messages;
    }

    std::vector<std::string> Errors() const { return Messages(Base::LogLevel::Error); }
    std::vector<std::string> Warnings() const { return Messages(Base::LogLevel::Warn); }

    /// How many messages hold the text.
    std::size_t Count(const std::string& text) const
    {
        const auto lines = Lines();
        return static_cast<std::size_t>(std::count_if(lines.begin(), lines.end(), [&](const Line& line) {
            return line.message.find(text) != std::string::npos;
        }));
    }

    bool Has(const std::string& message) const
    {
        const auto lines = Lines();
        return std::any_of(lines.begin(), lines.end(),
                           [&](const Line& line) { return line.message == message; });
    }

private:
    static std::mutex& Mutex()
    {
        static std::mutex mutex;
        return mutex;
    }
    static std::vector<Line>& Store()
    {
        static std::vector<Line> lines;
        return lines;
    }
};
