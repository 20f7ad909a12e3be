#include "UiDataController/RemoteConfigController.h"

namespace UiDataController {

CRemoteConfigController& CRemoteConfigController::Instance()
{
    return VantorGUIToolkit::CUiSingleton<CRemoteConfigController>::Instance();
}

void CRemoteConfigController::InitRemoteConfig(int language)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_values.init = true;
    m_values.language = language;
}

void CRemoteConfigController::setRemoteVersionType(int versionType)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_values.versionType = versionType;
}

void CRemoteConfigController::setRemoteSkinType(const QString& skinType)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_values.skinType = skinType;
}

bool CRemoteConfigController::isInit() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_values.init;
}

int CRemoteConfigController::language() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_values.language;
}

int CRemoteConfigController::remoteVersionType() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_values.versionType;
}

QString CRemoteConfigController::remoteSkinType() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_values.skinType;
}

void CRemoteConfigController::UnInit()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_values = {};
}

} // namespace UiDataController
