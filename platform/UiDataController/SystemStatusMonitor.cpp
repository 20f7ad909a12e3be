#include "UiDataController/SystemStatusMonitor.h"

#include "Base/Log.h"
#include "VantorGUIToolkit/UiSingleton.h"

#include <algorithm>

namespace UiDataController {

using Singleton = VantorGUIToolkit::CObjectSingleton<CSystemStatusMonitor>;

CSystemStatusMonitor::CSystemStatusMonitor() : m_timer(this)
{
    connect(&m_timer, &QTimer::timeout, this, &CSystemStatusMonitor::Sample);
}

CSystemStatusMonitor& CSystemStatusMonitor::Instance()
{
    return Singleton::Instance();
}

void CSystemStatusMonitor::DeleteInstance()
{
    Singleton::DeleteInstance();
}

void CSystemStatusMonitor::beginWatch(int intervalMs)
{
    m_last = {};
    m_status = {};
    m_reportedBytes = 0;
    m_timer.start(std::max(intervalMs, 1));
    Sample();
}

void CSystemStatusMonitor::endWatch()
{
    m_timer.stop();
}

void CSystemStatusMonitor::Sample()
{
    const auto usage = ReadProcessUsage();
    if (!usage) {
        BASE_WARN("The system does not tell this process's use of memory; the watch ends.");
        endWatch();
        return;
    }
    const bool first = m_status.samples == 0;
    m_status.cpuPercent = first ? 0 : CpuPercent(m_last, *usage);
    m_status.residentBytes = usage->residentBytes;
    ++m_status.samples;
    m_last = *usage;
    ReportGrowth();
    if (!first)
        emit SignalStatus(m_status);
}

void CSystemStatusMonitor::ReportGrowth()
{
    if (m_status.residentBytes < m_reportedBytes + kReportStepBytes)
        return;
    m_reportedBytes = m_status.residentBytes;
    BASE_INFO("This process uses %lld MiB of memory and %.0f %% of a processor.",
              static_cast<long long>(m_status.residentBytes / (1024 * 1024)), m_status.cpuPercent);
}

} // namespace UiDataController
