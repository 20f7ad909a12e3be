#pragma once

#include "UiDataController/ProcessUsage.h"

#include <QObject>
#include <QTimer>

namespace UiDataController {

/// What the monitor saw last.
struct SystemStatus
{
    double cpuPercent = 0;          ///< of one processor, since the sample before
    std::int64_t residentBytes = 0; ///< memory in use
    std::int64_t samples = 0;       ///< samples taken since beginWatch; 0: the rest says nothing
};

/// Watches this process's use of processor and memory while it runs, and logs at info level when its memory
/// reaches a new high of another kReportStepBytes. GUI thread.
class CSystemStatusMonitor : public QObject
{
    Q_OBJECT

public:
    static constexpr int kDefaultIntervalMs = 5000;
    static constexpr std::int64_t kReportStepBytes = 256LL * 1024 * 1024;

    CSystemStatusMonitor();

    /// The process's monitor, created at first use.
    static CSystemStatusMonitor& Instance();
    /// Ends the watch and destroys the process's monitor. May be called again.
    static void DeleteInstance();

    /// Takes a sample now and then one every interval (milliseconds, above 0). Calling it again starts
    /// afresh.
    void beginWatch(int intervalMs = kDefaultIntervalMs);
    /// May be called again.
    void endWatch();
    bool isWatching() const { return m_timer.isActive(); }

    const SystemStatus& status() const { return m_status; }

signals:
    /// After every sample but the first.
    void SignalStatus(const UiDataController::SystemStatus& status);

private:
    void Sample();
    void ReportGrowth();

    QTimer m_timer;
    ProcessUsage m_last;
    SystemStatus m_status;
    std::int64_t m_reportedBytes = 0;
};

} // namespace UiDataController
