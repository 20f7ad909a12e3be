#include "framework/ui/Pages.h"

#include "framework/core/FrameworkCore.h"
#include "framework/ui/pages/DevicesPage.h"
#include "framework/ui/pages/HomePage.h"
#include "framework/ui/pages/LocalFilesPage.h"
#include "framework/ui/pages/NoticesPage.h"
#include "framework/ui/pages/SettingsPage.h"
#include "framework/ui/pages/UsersPage.h"
#include "framework/ui/parts/EventRelay.h"
#include "framework/ui/parts/UnreadNotices.h"
#include "framework/ui/parts/WindowTable.h"
#include "framework/ui/shell/ComponentTab.h"

#include <QScrollArea>
#include <QTimer>

namespace framework {

CPages::CPages(CFrameworkCore& core, CEventRelay& relay, IComponentWindows& windows, ILocalFileSource& files,
               CUnreadNotices& unread, CReport& report)
    : m_core(core), m_relay(relay), m_windows(windows), m_files(files), m_unread(unread), m_report(report)
{}

// A component tab opens only after its caller has put it into the window: the container has to have its place
// before a guest moves in.
QWidget* CPages::Make(const WindowRow& row, QWidget* parent)
{
    if (row.isOwn)
        return MakeOwn(row.name, parent);
    auto* tab = new CComponentTab(row.name, row.Title(), m_windows, m_report);
    tab->setParent(parent);
    QTimer::singleShot(0, tab, [tab] { tab->Session().Open(); });
    return tab;
}

QWidget* CPages::MakeOwn(const QString& name, QWidget* parent)
{
    using Maker = QWidget* (CPages::*)(QWidget*);
    static const QHash<QString, Maker> makers = {
        {"Home", &CPages::MakeHome},
        {"Devices", &CPages::MakeDevices},
        {"LocalFiles", &CPages::MakeLocalFiles},
        {"Notices", &CPages::MakeNotices},
        {"Operations", &CPages::MakeOperations},
        {"Users", &CPages::MakeUsers},
        {"Settings", &CPages::MakeSettings},
    };
    // On a small or highly scaled screen a page is larger than its place.
    auto* scroll = new QScrollArea(parent);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget((this->*makers.value(name))(scroll));
    return scroll;
}

QWidget* CPages::MakeHome(QWidget* parent)
{
    auto* page = new CHomePage(m_core.Resources(), m_core.Operations(), parent);
    page->ShowComponent(m_core.State(), {});
    page->ShowUser(m_core.Users().Current());
    connect(&m_relay, &CEventRelay::ComponentChanged, page, &CHomePage::ShowComponent);
    connect(&m_relay, &CEventRelay::ResourcesChanged, page, &CHomePage::ShowDevices);
    connect(&m_relay, &CEventRelay::OperationAdded, page, &CHomePage::ShowEvents);
    connect(&m_relay, &CEventRelay::UsersChanged, page,
            [this, page] { page->ShowUser(m_core.Users().Current()); });
    connect(this, &CPages::FormatsChanged, page, &CHomePage::ShowEvents);
    connect(page, &CHomePage::OpenRequested, this, &CPages::OpenRequested);
    connect(page, &CHomePage::RestartRequested, this, [this] { m_core.RestartComponent(); });
    return page;
}

QWidget* CPages::MakeDevices(QWidget* parent)
{
    auto* page = new CDevicesPage(
        m_core.Resources(), m_core.Devices(),
        [this](const DeviceEntry& entry, CDeviceLinks::OnTried onTried) {
            TestDevice(entry, std::move(onTried));
        },
        [this](const std::string& guid, const std::string& text) { m_core.RaiseAlarm(guid, text); }, parent);
    connect(&m_relay, &CEventRelay::ResourcesChanged, page, &CDevicesPage::Reload);
    return page;
}

// The object outlives the core's threads, so that posting to it is safe.
void CPages::TestDevice(const DeviceEntry& entry, CDeviceLinks::OnTried onTried)
{
    m_core.Devices().Test(entry, [this, onTried = std::move(onTried)](const devices::TriedDevice& tried) {
        QMetaObject::invokeMethod(
            this, [onTried, tried] { onTried(tried); }, Qt::QueuedConnection);
    });
}

QWidget* CPages::MakeLocalFiles(QWidget* parent)
{
    auto* page = new CLocalFilesPage(m_files, m_core.Resources(), parent);
    connect(&m_relay, &CEventRelay::ComponentChanged, page, &CLocalFilesPage::OnComponentChanged);
    connect(&m_relay, &CEventRelay::ResourcesChanged, page, &CLocalFilesPage::OnResourcesChanged);
    connect(this, &CPages::FormatsChanged, page, &CLocalFilesPage::OnFormatsChanged);
    connect(this, &CPages::LocalFilesChanged, page, &CLocalFilesPage::Reload);
    return page;
}

QWidget* CPages::MakeNotices(QWidget* parent)
{
    auto* page = new CNoticesPage(m_core.Notices(), m_unread, parent);
    connect(this, &CPages::FormatsChanged, page, &CNoticesPage::Reload);
    return page;
}

QWidget* CPages::MakeOperations(QWidget* parent)
{
    auto* page = new CJournalPage(m_core.Operations(), TitleOf("Operations"),
                                  tr("What users did, and what happened to the component."), parent);
    connect(&m_relay, &CEventRelay::OperationAdded, page, &CJournalPage::Reload);
    connect(this, &CPages::FormatsChanged, page, &CJournalPage::Reload);
    return page;
}

QWidget* CPages::MakeUsers(QWidget* parent)
{
    return new CUsersPage(m_core.Users(), parent);
}

QWidget* CPages::MakeSettings(QWidget* parent)
{
    auto* page = new CSettingsPage(m_core.Settings(), parent);
    connect(page, &CSettingsPage::Applied, this, &CPages::ChoicesApplied);
    return page;
}

} // namespace framework
