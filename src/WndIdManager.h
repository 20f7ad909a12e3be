#pragma once

#include "Base/Noncopyable.h"
#include "ui/Public/ComponentPage.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace video {

class CSystemconfigUIManager;

/// Creates and keeps the component's top-level pages and hands out their native window identifiers, under
/// which the framework embeds them.
///
/// A page is created, without being shown, when its identifier is first asked for, and lives to the end: one
/// whose tab was closed is hidden, and found again. The settings pages belong to their own manager and are
/// served here by their names. All functions but Init belong to the GUI thread.
///
/// An identifier fits the int that the channel carries: those of X11 have 29 bits, those of Windows 32 that
/// matter.
class CWndIdManager : Base::CNoncopyable
{
public:
    /// Makes the page of a window name; empty when there is none.
    using PageFactory = std::function<std::unique_ptr<CComponentPage>(const std::string& name)>;

    /// settings must outlive this object.
    CWndIdManager(PageFactory factory, CSystemconfigUIManager& settings);

    /// The process's pages; the factory is set by SetPageFactory.
    static CWndIdManager& Instance();
    void SetPageFactory(PageFactory factory) { m_factory = std::move(factory); }

    /// What is waited for before anything looks at the table: the end of Init on its worker.
    void SetReadyWait(std::function<void()> wait) { m_waitReady = std::move(wait); }

    /// Start-up on a worker thread: draws up the table of windows. Creates no widget.
    void Init();

    /// Releases all pages, those of preview and playback first. From here on no getter makes a page: requests
    /// that are queued behind the end find none.
    bool Finit();

    /// The getter bound to a window name, with its result; false also for an unknown name.
    bool GetWID(const std::string& name, int& wid);

    bool GetMainViewWID(int& wid);
    bool GetRemotePlaybackWID(int& wid) { return PageWID("RemotePlayback", wid); }
    bool GetEncodingDeviceWID(int& wid) { return PageWID("EncodingDevice", wid); }
    /// view: "AuxiliaryScreen", "SecondLiveView", "ThirdLiveView" or "FourthLiveView".
    bool GetLiveViewWID(const std::string& view, int& wid) { return PageWID(view, wid); }
    bool GetStoragePlanWID(int& wid) { return PageWID("StoragePlan", wid); }
    bool GetRecordScheduleWID(int& wid) { return PageWID("RecordSchedule", wid); }
    bool GetBroadcastWID(int& wid) { return PageWID("BroadcastWID", wid); }
    bool GetAlarmOutputWID(int& wid) { return PageWID("AlarmOutput", wid); }
    bool GetWiperWID(int& wid) { return PageWID("Wiper", wid); }
    bool GetStreamMediaServerWID(int& wid) { return PageWID("StreamMediaServer", wid); }
    bool GetVideoFileWID(int& wid) { return PageWID("VideoFile", wid); }
    bool GetSnapshotFileWID(int& wid) { return PageWID("SnapshotFile", wid); }
    /// Every widget of the toolkit, for integrators who try embedding.
    bool GetToolkitGalleryWID(int& wid) { return PageWID("ToolkitGallery", wid); }
    /// page: "VideoConfigPage", "ImageConfigPage" or "ToolBarPage".
    bool GetSettingsPageWID(const std::string& page, int& wid);

    /// Whether a page that was created before is more than the sentence that it is not there yet.
    bool IsAvailable(const std::string& name) const;

    /// Shows or hides a page that was created before; false when there is none of the name.
    bool ShowWnd(const std::string& name);
    bool HideWnd(const std::string& name);

    /// The pages that were created, settings pages included.
    std::vector<CComponentPage*> Pages() const;

    /// The names that GetWID knows, in the order of the table.
    std::vector<std::string> Names() const;

private:
    using Getter = std::function<bool(CWndIdManager&, int&)>;

    void WaitReady() const;
    bool PageWID(const std::string& name, int& wid);
    CComponentPage* MadePage(const std::string& name) const;
    CComponentPage* PageOf(const std::string& name);
    void ReleaseLiveViews();

    PageFactory m_factory;
    CSystemconfigUIManager& m_settings;
    std::function<void()> m_waitReady;
    std::vector<std::pair<std::string, Getter>> m_windows;
    std::map<std::string, std::unique_ptr<CComponentPage>> m_pages;
};

} // namespace video
