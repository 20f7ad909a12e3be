#include "PreviewLogical/PreviewLogical.h"

#include "Base/Log.h"
#include "Base/Singleton.h"

namespace PreviewLogical {

CPreviewLogical& CPreviewLogical::Instance()
{
    return Base::CSingleton<CPreviewLogical>::Instance();
}

bool CPreviewLogical::init(vantor::IResourceTreeManager* resourceTree, vantor::ILocalDataManager* localData)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_init && (m_resourceTree != resourceTree || m_localData != localData)) {
        BASE_ERROR("The live-view logic was started already with other managers.");
        return false;
    }
    m_init = true;
    m_resourceTree = resourceTree;
    m_localData = localData;
    return true;
}

bool CPreviewLogical::isInit() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_init;
}

vantor::IResourceTreeManager* CPreviewLogical::ResourceTreeManager() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_resourceTree;
}

vantor::ILocalDataManager* CPreviewLogical::LocalDataManager() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_localData;
}

void CPreviewLogical::UnInit()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_init = false;
    m_resourceTree = nullptr;
    m_localData = nullptr;
}

} // namespace PreviewLogical
