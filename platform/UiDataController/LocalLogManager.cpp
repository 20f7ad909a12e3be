#include "UiDataController/LocalLogManager.h"

#include "Base/Singleton.h"

namespace UiDataController {

CLocalLogManager& CLocalLogManager::Instance()
{
    return Base::CSingleton<CLocalLogManager>::Instance();
}

void CLocalLogManager::setLogger(ILocalLogger* logger)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_logger = logger;
}

bool CLocalLogManager::writeOtherLog(OperationLogStruct::LogType type, const std::string& objectName)
{
    // The lock is held while the logger works, so that setLogger returns only when nobody uses the former
    // one.
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_logger)
        return false;
    m_logger->write({type, objectName});
    return true;
}

} // namespace UiDataController
