#pragma once

#include "Base/Noncopyable.h"
#include "ui/Public/ComponentPage.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace video {

/// The settings pages by their fixed names, each created when it is first asked for. GUI thread.
class CSystemconfigUIManager : Base::CNoncopyable
{
public:
    /// What GetPageWnd gives where there is no page; no window has this identifier.
    static constexpr WId kNoPage = 1;

    using PageCreator = std::function<std::unique_ptr<CComponentPage>()>;

    static CSystemconfigUIManager& Instance();

    /// The names of all settings pages: "VideoConfigPage", "ImageConfigPage", "ToolBarPage".
    static const std::vector<std::string>& PageNames();

    /// How the page of a name is made; a name without creator, or with an empty one, has no page.
    void SetPageCreator(const std::string& name, PageCreator create) { m_creators[name] = std::move(create); }

    /// The native window of a page, which is made if need be; kNoPage for an empty or unknown name and for a
    /// page that could not be created.
    WId GetPageWnd(const std::string& name);

    /// A page that was created before; nullptr when there is none of the name.
    CComponentPage* Page(const std::string& name) const;

    /// Releases all pages; no further ones are made. May be called again.
    void UnInit();

private:
    CComponentPage* MakePage(const std::string& name);

    std::map<std::string, PageCreator> m_creators;
    std::map<std::string, std::unique_ptr<CComponentPage>> m_pages;
};

} // namespace video
