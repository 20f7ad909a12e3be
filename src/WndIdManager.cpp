#include "WndIdManager.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "ui/System/SystemconfigUIManager.h"

#include <algorithm>

namespace video {

namespace {

constexpr const char* kMainView = "MainView";
constexpr const char* kRemotePlayback = "RemotePlayback";
constexpr const char* kLiveViews[] = {"AuxiliaryScreen", "SecondLiveView", "ThirdLiveView", "FourthLiveView"};

} // namespace

CWndIdManager::CWndIdManager(PageFactory factory, CSystemconfigUIManager& settings)
    : m_factory(std::move(factory)), m_settings(settings)
{}

CWndIdManager& CWndIdManager::Instance()
{
    static CWndIdManager* const manager = new CWndIdManager({}, CSystemconfigUIManager::Instance());
    return *manager;
}

void CWndIdManager::Init()
{
    const auto add = [this](const char* name, bool (CWndIdManager::*getter)(int&)) {
        m_windows.emplace_back(name, [getter](CWndIdManager& self, int& wid) { return (self.*getter)(wid); });
    };
    m_windows.clear();
    add(kMainView, &CWndIdManager::GetMainViewWID);
    add(kRemotePlayback, &CWndIdManager::GetRemotePlaybackWID);
    add("EncodingDevice", &CWndIdManager::GetEncodingDeviceWID);
    for (const char* view : kLiveViews)
        m_windows.emplace_back(
            view, [view](CWndIdManager& self, int& wid) { return self.GetLiveViewWID(view, wid); });
    add("StoragePlan", &CWndIdManager::GetStoragePlanWID);
    add("RecordSchedule", &CWndIdManager::GetRecordScheduleWID);
    add("BroadcastWID", &CWndIdManager::GetBroadcastWID);
    add("AlarmOutput", &CWndIdManager::GetAlarmOutputWID);
    add("Wiper", &CWndIdManager::GetWiperWID);
    add("StreamMediaServer", &CWndIdManager::GetStreamMediaServerWID);
    add("VideoFile", &CWndIdManager::GetVideoFileWID);
    add("SnapshotFile", &CWndIdManager::GetSnapshotFileWID);
    add("ToolkitGallery", &CWndIdManager::GetToolkitGalleryWID);
    for (const std::string& page : CSystemconfigUIManager::PageNames())
        m_windows.emplace_back(
            page, [page](CWndIdManager& self, int& wid) { return self.GetSettingsPageWID(page, wid); });
}

bool CWndIdManager::Finit()
{
    ReleaseLiveViews();
    BASE_INFO("UNInit Preview Success.");
    m_pages.erase(kRemotePlayback);
    BASE_INFO("UNInit Playback Success.");
    m_pages.clear();
    m_factory = nullptr;
    return true;
}

bool CWndIdManager::GetWID(const std::string& name, int& wid)
{
    WaitReady();
    const auto window = std::find_if(m_windows.begin(), m_windows.end(),
                                     [&](const auto& each) { return each.first == name; });
    return window != m_windows.end() && window->second(*this, wid);
}

bool CWndIdManager::GetMainViewWID(int& wid)
{
    const bool isNew = m_pages.count(kMainView) == 0;
    if (!PageWID(kMainView, wid))
        return false;
    if (isNew)
        BASE_INFO("Init Preview Success.");
    BASE_LIMITED(Base::CCallLimit, BASE_INFO, "%s", "Get MainView WndId Success.");
    return true;
}

bool CWndIdManager::GetSettingsPageWID(const std::string& page, int& wid)
{
    WaitReady();
    const WId window = m_settings.GetPageWnd(page);
    wid = static_cast<int>(window);
    return window != CSystemconfigUIManager::kNoPage;
}

bool CWndIdManager::IsAvailable(const std::string& name) const
{
    const CComponentPage* const page = MadePage(name);
    return page && page->IsAvailable();
}

bool CWndIdManager::ShowWnd(const std::string& name)
{
    CComponentPage* const page = MadePage(name);
    if (page)
        page->show();
    return page != nullptr;
}

bool CWndIdManager::HideWnd(const std::string& name)
{
    CComponentPage* const page = MadePage(name);
    if (page)
        page->hide();
    return page != nullptr;
}

std::vector<CComponentPage*> CWndIdManager::Pages() const
{
    WaitReady();
    std::vector<CComponentPage*> pages;
    for (const auto& window : m_windows)
        if (CComponentPage* const page = MadePage(window.first))
            pages.push_back(page);
    return pages;
}

std::vector<std::string> CWndIdManager::Names() const
{
    WaitReady();
    std::vector<std::string> names;
    for (const auto& window : m_windows)
        names.push_back(window.first);
    return names;
}

void CWndIdManager::WaitReady() const
{
    if (m_waitReady)
        m_waitReady();
}

bool CWndIdManager::PageWID(const std::string& name, int& wid)
{
    WaitReady();
    CComponentPage* const page = PageOf(name);
    if (!page)
        return false;
    wid = static_cast<int>(page->winId());
    return true;
}

CComponentPage* CWndIdManager::MadePage(const std::string& name) const
{
    const auto page = m_pages.find(name);
    return page == m_pages.end() ? m_settings.Page(name) : page->second.get();
}

CComponentPage* CWndIdManager::PageOf(const std::string& name)
{
    const auto known = m_pages.find(name);
    if (known != m_pages.end())
        return known->second.get();
    std::unique_ptr<CComponentPage> page = m_factory ? m_factory(name) : nullptr;
    if (!page)
        return nullptr;
    BASE_INFO("Made the page [%s], titled [%s].", name.c_str(), page->windowTitle().toUtf8().constData());
    return m_pages.emplace(name, std::move(page)).first->second.get();
}

void CWndIdManager::ReleaseLiveViews()
{
    m_pages.erase(kMainView);
    for (const char* view : kLiveViews)
        m_pages.erase(view);
}

} // namespace video
