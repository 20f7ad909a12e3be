#include "UiDataController/RemoteConfigController.h"

#include <QMutexLocker>

namespace UiDataController {

CRemoteConfigController& CRemoteConfigController::Instance()
{
    return VantorGUIToolkit::CUiSingleton<CRemoteConfigController>::Instance();
}

void CRemoteConfigController::InitRemoteConfig(int language)
{
    QMutexLocker lock(&m_mutex);
    m_values.init = true;
    m_values.language = language;
}

void CRemoteConfigController::setRemoteVersionType(int versionType)
{
    QMutexLocker lock(&m_mutex);
    m_values.versionType = versionType;
}

void CRemoteConfigController::setRemoteSkinType(const QString& skinType)
{
    QMutexLocker lock(&m_mutex);
    m_values.skinType = skinType;
}

bool CRemoteConfigController::isInit() const
{
    QMutexLocker lock(&m_mutex);
    return m_values.init;
}

int CRemoteConfigController::language() const
{
    QMutexLocker lock(&m_mutex);
    return m_values.language;
}

int CRemoteConfigController::remoteVersionType() const
{
    QMutexLocker lock(&m_mutex);
    return m_values.versionType;
}

QString CRemoteConfigController::remoteSkinType() const
{
    QMutexLocker lock(&m_mutex);
    return m_values.skinType;
}

void CRemoteConfigController::UnInit()
{
    QMutexLocker lock(&m_mutex);
    m_values = {};
}

} // namespace UiDataController
