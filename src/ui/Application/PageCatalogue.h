#pragma once

#include "ui/Public/ComponentPage.h"
#include "ui/System/SystemconfigUIManager.h"

#include <memory>
#include <string>
#include <vector>

namespace video {

/// A window of the component that the framework can embed as a tab.
struct PageRow
{
    const char* window; ///< the name by which the framework asks for it
    const char* title;  ///< shown to the user; a key of the translation context "Pages"
    const char* icon;   ///< a name that VantorGUIToolkit::icon knows
    /// Makes the page of the translated title; nullptr as long as the page is not available.
    std::unique_ptr<CComponentPage> (*make)(const QString& title);
};

/// Every window, in the order of CWndIdManager's table. A page that becomes available is a maker in its row.
const std::vector<PageRow>& PageCatalogue();

/// The page of a window: the real one, or one that says that it is not available yet; nullptr for an unknown
/// name. GUI thread, after the translations are loaded.
std::unique_ptr<CComponentPage> MakePage(const std::string& window);

/// A settings page by its fixed name; the creator is empty as long as the page is not available.
struct SettingsPageRow
{
    std::string name;
    CSystemconfigUIManager::PageCreator create;
};

/// Every settings page. A page that becomes available is a creator in its row.
const std::vector<SettingsPageRow>& SettingsPageCatalogue();

} // namespace video
