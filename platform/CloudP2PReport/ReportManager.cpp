#include "CloudP2PReport/ReportManager.h"

#include "Base/Singleton.h"

namespace cloudreport {

CReportManager& CReportManager::Instance()
{
    return Base::CSingleton<CReportManager>::Instance();
}

bool CReportManager::init(const std::vector<std::string>& startFields)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (startFields.empty())
        return false;
    m_startFields = startFields;
    return true;
}

bool CReportManager::setOpenSDKInfo(const OpenSDKInfo& info)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_startFields.empty())
        return false;
    m_info = info;
    return true;
}

bool CReportManager::isReporting() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return !m_startFields.empty() && !m_info.session.empty();
}

void CReportManager::releaseManager()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_startFields.clear();
    m_info = {};
}

} // namespace cloudreport
