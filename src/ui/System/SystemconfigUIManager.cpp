#include "ui/System/SystemconfigUIManager.h"

#include "VantorGUIToolkit/UiSingleton.h"

namespace video {

CSystemconfigUIManager& CSystemconfigUIManager::Instance()
{
    return VantorGUIToolkit::CUiSingleton<CSystemconfigUIManager>::Instance();
}

QWidget* CSystemconfigUIManager::Page(const std::string& name) const
{
    const auto page = m_pages.find(name);
    return page == m_pages.end() ? nullptr : page->second.get();
}

} // namespace video
