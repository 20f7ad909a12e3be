#include "framework/ui/pages/DevicesPage.h"

#include "UiDataController/Tree/ResourceTree.h"
#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/EmptyState.h"
#include "VantorGUIToolkit/Widgets/PageHeader.h"
#include "VantorGUIToolkit/Widgets/WarningDlg.h"
#include "framework/ui/pages/DeviceDetails.h"
#include "framework/ui/parts/WindowTable.h"

#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace framework {

using namespace VantorGUIToolkit;
using UiDataController::CResourceTree;

namespace {

constexpr int kTreeWidth = 420;
constexpr int kLeastTreeWidth = 280;

} // namespace

CDevicesPage::CDevicesPage(CResources& resources, CDeviceLinks& devices, CDeviceDialog::Test test,
                           RaiseAlarm raiseAlarm, QWidget* parent)
    : QWidget(parent), m_resources(resources), m_devices(devices), m_test(std::move(test)),
      m_raiseAlarm(std::move(raiseAlarm)), m_elements(resources, devices),
      m_header(new CPageHeader(TitleOf("Devices"),
                               tr("Cameras, recorders and storage servers that the client works with."),
                               this)),
      m_tree(new CResourceTree(m_elements, UiDataController::ResourceOrder::ByDevice, this)),
      m_sides(new QStackedWidget(this))
{
    setObjectName("devicesPage");
    setSurface(this, Surface::Page);
    auto* splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(MakeTreeSide());
    splitter->addWidget(MakeDetailsSide());
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kTreeWidth, 2 * kTreeWidth});
    m_edit = AddButton(tr("Edit"), "editDevice", &CDevicesPage::EditDevice);
    m_remove = AddButton(tr("Remove"), "removeDevice", &CDevicesPage::RemoveDevice);
    QPushButton* add = AddButton(tr("Add device"), "addDevice", &CDevicesPage::AddDevice);
    setButtonKind(add, ButtonKind::Primary);
    add->setIcon(iconOnAccent("add"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Grid::Wide, Grid::Wide, Grid::Wide, Grid::Wide);
    layout->setSpacing(Grid::Large);
    layout->addWidget(m_header);
    layout->addWidget(splitter, 1);
    ShowDetails();
}

CDevicesPage::~CDevicesPage()
{
    m_tree->disconnect(this);
    delete m_tree;
}

QPushButton* CDevicesPage::AddButton(const QString& text, const char* name, void (CDevicesPage::*action)())
{
    QPushButton* button = m_header->AddAction(text, ButtonKind::Normal);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

QWidget* CDevicesPage::MakeTreeSide()
{
    auto* side = new QWidget(this);
    side->setMinimumWidth(kLeastTreeWidth);
    m_tree->setObjectName("deviceTree");
    m_tree->SetEmptyAction(tr("Add device"));
    connect(m_tree, &CResourceTree::SignalCurElementChanged, this, &CDevicesPage::ShowDetails);
    connect(m_tree, &CResourceTree::SignalActivated, this, &CDevicesPage::EditDevice);
    connect(m_tree, &CResourceTree::SignalContextMenu, this, &CDevicesPage::ShowMenu);
    connect(m_tree, &CResourceTree::SignalEmptyAction, this, &CDevicesPage::AddDevice);
    auto* layout = new QVBoxLayout(side);
    setReadingMargins(layout, side, 0, 0, Grid::Medium, 0);
    layout->addWidget(m_tree);
    return side;
}

QWidget* CDevicesPage::MakeDetailsSide()
{
    auto* side = new QWidget(this);
    auto* nothing = new CEmptyState("device", tr("No device chosen"),
                                    tr("Choose a device or a camera to see more about it."), m_sides);
    m_details = new CDeviceDetails(m_sides);
    connect(m_details, &CDeviceDetails::TryNowRequested, this, &CDevicesPage::TryNow);
    m_sides->addWidget(nothing);
    m_sides->addWidget(m_details);
    auto* layout = new QVBoxLayout(side);
    setReadingMargins(layout, side, Grid::Medium, 0, 0, 0);
    layout->addWidget(m_sides);
    return side;
}

void CDevicesPage::Reload()
{
    m_elements.Update();
    ShowDetails();
}

void CDevicesPage::Select(const QString& id)
{
    (void)m_tree->SetCurElement(id);
}

std::string CDevicesPage::SelectedDevice() const
{
    const QString& id = m_tree->CurElement();
    for (const auto& element : m_elements.Snapshot().elements)
        if (element.id == id)
            return (element.deviceId.isEmpty() ? element.id : element.deviceId).toStdString();
    return {};
}

void CDevicesPage::AddDevice()
{
    CDeviceDialog dialog(m_resources, m_test, {}, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    Reload();
    // The tree takes its changes when the event loop runs.
    QMetaObject::invokeMethod(
        this, [this, guid = dialog.Guid()] { Select(guid); }, Qt::QueuedConnection);
}

void CDevicesPage::EditDevice()
{
    const std::string guid = SelectedDevice();
    if (guid.empty())
        return;
    CDeviceDialog dialog(m_resources, m_test, QString::fromStdString(guid), this);
    if (dialog.exec() == QDialog::Accepted)
        Reload();
}

void CDevicesPage::RemoveDevice()
{
    const std::string guid = SelectedDevice();
    DeviceEntry entry;
    if (guid.empty() || !m_resources.EntryOf(guid, entry))
        return;
    const QString question =
        tr("Remove the device \"%1\" with its channels?").arg(QString::fromStdString(entry.name));
    if (CWarningDlg::CheckDangerousAction(question, tr("Remove device"), tr("Remove"), this) == 1 &&
        m_resources.Remove(guid))
        Reload();
}

void CDevicesPage::TryNow()
{
    m_devices.TryNow(SelectedDevice());
}

void CDevicesPage::Simulate()
{
    DeviceEntry entry;
    const std::string guid = SelectedDevice();
    if (m_resources.EntryOf(guid, entry))
        m_raiseAlarm(guid, "Test alarm of " + entry.name);
}

void CDevicesPage::ShowMenu(const QString& id, const QPoint& place)
{
    if (id.isEmpty() || SelectedDevice().empty())
        return;
    QMenu menu(this);
    menu.setObjectName("deviceMenu");
    const auto add = [&](const char* iconName, const QString& text, const char* name, auto action) {
        menu.addAction(icon(iconName), text, this, action)->setObjectName(name);
    };
    add("edit", tr("Edit…"), "actionEdit", &CDevicesPage::EditDevice);
    add("remove", tr("Remove…"), "actionRemove", &CDevicesPage::RemoveDevice);
    menu.addSeparator();
    add("refresh", tr("Try now"), "actionTryNow", &CDevicesPage::TryNow);
    add("alarm", tr("Simulate an alarm"), "actionAlarm", &CDevicesPage::Simulate);
    menu.exec(place);
}

void CDevicesPage::ShowDetails()
{
    const std::string guid = SelectedDevice();
    const auto all = m_resources.Devices();
    const auto device =
        std::find_if(all.begin(), all.end(), [&](const auto& each) { return each.guid == guid; });
    const bool isChosen = device != all.end();
    if (m_edit) {
        m_edit->setEnabled(isChosen);
        m_remove->setEnabled(isChosen);
    }
    m_sides->setCurrentIndex(isChosen ? 1 : 0);
    if (!isChosen)
        return;
    const auto channels = m_resources.Channels(guid);
    const std::string chosen = m_tree->CurElement().toStdString();
    const auto channel =
        std::find_if(channels.begin(), channels.end(), [&](const auto& each) { return each.guid == chosen; });
    m_details->Show(*device, m_devices.Status(guid), channel == channels.end() ? nullptr : &*channel);
}

} // namespace framework
