#include "ui/System/SystemconfigUIManager.h"

#include "VantorGUIToolkit/UiSingleton.h"

namespace video {

CSystemconfigUIManager& CSystemconfigUIManager::Instance()
{
    return VantorGUIToolkit::CUiSingleton<CSystemconfigUIManager>::Instance();
}

const std::vector<std::string>& CSystemconfigUIManager::PageNames()
{
    static const std::vector<std::string> names = {"VideoConfigPage", "ImageConfigPage", "ToolBarPage"};
    return names;
}

WId CSystemconfigUIManager::GetPageWnd(const std::string& name)
{
    CComponentPage* page = Page(name);
    if (!page)
        page = MakePage(name);
    return page ? page->winId() : kNoPage;
}

CComponentPage* CSystemconfigUIManager::Page(const std::string& name) const
{
    const auto page = m_pages.find(name);
    return page == m_pages.end() ? nullptr : page->second.get();
}

CComponentPage* CSystemconfigUIManager::MakePage(const std::string& name)
{
    const auto create = m_creators.find(name);
    if (create == m_creators.end() || !create->second)
        return nullptr;
    std::unique_ptr<CComponentPage> page = create->second();
    if (!page)
        return nullptr;
    return m_pages.emplace(name, std::move(page)).first->second.get();
}

void CSystemconfigUIManager::UnInit()
{
    m_creators.clear();
    m_pages.clear();
}

} // namespace video
