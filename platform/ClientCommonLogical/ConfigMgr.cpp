#include "ClientCommonLogical/ConfigMgr.h"

#include "Base/Singleton.h"

namespace clientcommon {

CConfigMgr& CConfigMgr::Instance()
{
    return Base::CSingleton<CConfigMgr>::Instance();
}

void CConfigMgr::init(const ConfigParams& params)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_params = params;
}

ConfigParams CConfigMgr::params() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_params;
}

} // namespace clientcommon
