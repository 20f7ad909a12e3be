#include "WndIdManager.h"

#include "Base/Log.h"

#include <algorithm>

namespace video {

namespace {

constexpr const char* kMainView = "MainView";
constexpr const char* kRemotePlayback = "RemotePlayback";
constexpr const char* kLiveViews[] = {"AuxiliaryScreen", "SecondLiveView", "ThirdLiveView", "FourthLiveView"};

} // namespace

CWndIdManager::CWndIdManager(PageFactory factory) : m_factory(std::move(factory)) {}

CWndIdManager& CWndIdManager::Instance()
{
    static CWndIdManager* const manager = new CWndIdManager({});
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
    BASE_INFO("Get MainView WndId Success.");
    return true;
}

bool CWndIdManager::ShowWnd(const std::string& name)
{
    const auto page = m_pages.find(name);
    if (page == m_pages.end())
        return false;
    page->second->show();
    return true;
}

std::vector<std::string> CWndIdManager::Names() const
{
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
    QWidget* page = PageOf(name);
    if (!page)
        return false;
    wid = static_cast<int>(page->winId());
    return true;
}

QWidget* CWndIdManager::PageOf(const std::string& name)
{
    const auto known = m_pages.find(name);
    if (known != m_pages.end())
        return known->second.get();
    std::unique_ptr<QWidget> page = m_factory ? m_factory(name) : nullptr;
    if (!page)
        return nullptr;
    return m_pages.emplace(name, std::move(page)).first->second.get();
}

void CWndIdManager::ReleaseLiveViews()
{
    m_pages.erase(kMainView);
    for (const char* view : kLiveViews)
        m_pages.erase(view);
}

} // namespace video
