#pragma once

#include "Base/MessageLoop.h"
#include "framework/core/FrameworkEvents.h"
#include "framework/ui/parts/WindowMemory.h"
#include "framework/ui/shell/TabArea.h"

#include <QTimer>
#include <QWidget>

class QLabel;

namespace framework {

class CComponentTab;
class CEventRelay;
class CFrameworkCore;
class CLayoutReport;
class CNavigation;
class CReport;
class CStatusBar;
class CTopBar;
class CUnreadNotices;
struct JournalEntry;

/// The framework's window: puts the bars, the navigation and the tabs together, and tells the core what
/// happens to them. GUI thread. It is made anew when skin or language change.
class CMainWindow : public QWidget
{
    Q_OBJECT

public:
    CMainWindow(CFrameworkCore& core, CEventRelay& relay, CReport& report, CUnreadNotices& unread,
                CTabArea::PageFactory pages, std::string memoryPath);
    ~CMainWindow() override;

    /// Shows the window where it was, with the tabs that were open and that the user may see.
    void Restore();

    /// Opens a tab when the user may see it.
    bool Open(const QString& name);
    CTabArea& Tabs() { return *m_tabs; }

    /// Covers the window while the component ends.
    void ShowEnding();

signals:
    void EndRequested();
    void SwitchUserRequested();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void LayOut();
    void ConnectTabs();
    void ConnectEvents();
    void AddShortcuts();
    void ToggleNavigation();
    void OpenAsBefore(const WindowMemory& memory);
    bool MayOpen(const QString& name) const;
    void OnComponentChanged(ComponentState state, const QString& detail);
    void OnUsersChanged();
    void OnNotice(const JournalEntry& entry);
    void OnCurrentTab(const QString& name);
    void TellCurrentTab();
    void OnResizeWish(const QString& name, const QSize& size);
    void TellPosition();
    void PlaceOnScreen(const WindowMemory& memory);
    void Save();
    void SaveSoon();
    void CollectItems(QJsonObject& items) const;
    CComponentTab* ComponentTab(const QString& name) const;

    CFrameworkCore& m_core;
    CEventRelay& m_relay;
    CReport& m_report;
    CUnreadNotices& m_unread;
    const std::string m_memoryPath;
    CTopBar* m_top;
    CNavigation* m_navigation;
    CTabArea* m_tabs;
    CStatusBar* m_status;
    QLabel* m_ending = nullptr;
    QTimer m_moved; ///< waits for the end of a move
    QTimer m_save;
    Base::CMessageLoop m_writer{"window-memory"}; ///< nothing waits for the disk
    bool m_restored = false;
    bool m_isNarrow = false;
    bool m_wantsCollapsed = false; ///< the navigation, where there is room for all of it
    std::unique_ptr<CLayoutReport> m_layoutReport;
};

} // namespace framework
