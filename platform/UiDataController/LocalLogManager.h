#pragma once

#include "Base/Noncopyable.h"

#include <mutex>
#include <string>

namespace UiDataController {

/// One line of the operation log: what the user did.
struct OperationLogStruct
{
    /// The numbers are part of the log's format.
    enum LogType : int {
        ScheduleSave = 601,
        ImageSettings = 1800,
        Broadcast = 2000,
    };

    LogType type = ScheduleSave;
    std::string objectName; ///< name of the device or channel concerned, UTF-8; may be empty
};

/// Takes operation-log lines to where they are kept.
class ILocalLogger
{
public:
    virtual ~ILocalLogger() = default;

    /// Called on the thread that did the operation, one call at a time. Must return soon, must not throw and
    /// must not call the manager.
    virtual void write(const OperationLogStruct& line) = 0;
};

/// The way of every operation-log line: to the logger that is set, or nowhere. Any thread.
class CLocalLogManager : Base::CNoncopyable
{
public:
    static CLocalLogManager& Instance();

    /// Sets the logger, which is not owned; nullptr for none. Afterwards the former one is not in use any
    /// more and may be destroyed. May be called again.
    void setLogger(ILocalLogger* logger);

    /// Writes a line. False when there is no logger.
    bool writeOtherLog(OperationLogStruct::LogType type, const std::string& objectName = {});

private:
    std::mutex m_mutex;
    ILocalLogger* m_logger = nullptr;
};

} // namespace UiDataController
