#include "CloudP2PReport/CloudReportInfoManager.h"

#include "Base/Singleton.h"

namespace cloudreport {

CCloudReportInfoManager& CCloudReportInfoManager::Instance()
{
    return Base::CSingleton<CCloudReportInfoManager>::Instance();
}

bool CCloudReportInfoManager::init()
{
    return false;
}

void CCloudReportInfoManager::release() {}

} // namespace cloudreport
