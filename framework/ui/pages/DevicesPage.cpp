#include "framework/ui/pages/DevicesPage.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/PageHeader.h"
#include "VantorGUIToolkit/Widgets/TableView.h"
#include "VantorGUIToolkit/Widgets/WarningDlg.h"
#include "framework/core/Resources.h"
#include "framework/ui/pages/DeviceDialog.h"
#include "framework/ui/parts/WindowTable.h"

#include <QHeaderView>
#include <QMenu>
#include <QPushButton>

#include <algorithm>

namespace framework {

using namespace VantorGUIToolkit;

namespace {

constexpr int kWidths[] = {240, 160, 200, 120};

QString AddressText(const protocol::DeviceResponseData& device)
{
    const QString address = QString::fromStdString(device.address);
    const QString form = address.contains(':') ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2");
    return form.arg(address).arg(device.port);
}

} // namespace

CDevicesPage::CDevicesPage(CResources& resources, RaiseAlarm raiseAlarm, QWidget* parent)
    : CListPage(TitleOf("Devices"), tr("Cameras, recorders and storage servers that the client works with."),
                {tr("Name"), tr("Type"), tr("Address"), tr("Channels"), tr("State")}, parent),
      m_resources(resources), m_raiseAlarm(std::move(raiseAlarm)),
      m_edit(Header().AddAction(tr("Edit"), ButtonKind::Normal)),
      m_remove(Header().AddAction(tr("Remove"), ButtonKind::Normal))
{
    setObjectName("devicesPage");
    QPushButton* add = Header().AddAction(tr("Add device"), ButtonKind::Primary);
    add->setObjectName("addDevice");
    add->setIcon(iconOnAccent("add"));
    m_edit->setObjectName("editDevice");
    m_remove->setObjectName("removeDevice");
    Table().setObjectName("devicesTable");
    Table().SetEmptyState("device", tr("No device yet"), tr("Add the first device to see its channels."));
    for (int column = 0; column < int(std::size(kWidths)); ++column)
        Table().setColumnWidth(column, kWidths[column]);
    Table().sortByColumn(0, Qt::AscendingOrder);
    Table().setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&Table(), &QWidget::customContextMenuRequested, this, &CDevicesPage::ShowMenu);
    connect(this, &CListPage::SelectionChanged, this, &CDevicesPage::UpdateButtons);
    connect(this, &CListPage::Activated, this, &CDevicesPage::EditDevice);
    connect(add, &QPushButton::clicked, this, &CDevicesPage::AddDevice);
    connect(m_edit, &QPushButton::clicked, this, &CDevicesPage::EditDevice);
    connect(m_remove, &QPushButton::clicked, this, &CDevicesPage::RemoveDevice);
    Reload();
}

void CDevicesPage::Reload()
{
    std::vector<ListRow> rows;
    for (const auto& device : m_resources.Devices()) {
        const int channels = static_cast<int>(m_resources.Channels(device.guid).size());
        ListRow row;
        row.id = QString::fromStdString(device.guid);
        row.cells = {{QString::fromStdString(device.name), {}, DeviceTypeIcon(device.typeCode)},
                     {DeviceTypeText(device.typeCode), {}, {}},
                     {AddressText(device), {}, {}},
                     {QString::number(channels), channels, {}},
                     {device.online ? tr("Online") : tr("Offline"),
                      {},
                      toneIconName(device.online ? Tone::Ok : Tone::Idle)}};
        rows.push_back(std::move(row));
    }
    SetRows(std::move(rows));
}

void CDevicesPage::AddDevice()
{
    CDeviceDialog dialog(m_resources, {}, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    Reload();
    Select(dialog.Guid());
}

void CDevicesPage::EditDevice()
{
    if (SelectedId().isEmpty())
        return;
    CDeviceDialog dialog(m_resources, SelectedId(), this);
    if (dialog.exec() == QDialog::Accepted)
        Reload();
}

void CDevicesPage::RemoveDevice()
{
    const QString guid = SelectedId();
    DeviceEntry entry;
    if (guid.isEmpty() || !m_resources.EntryOf(guid.toStdString(), entry))
        return;
    const QString question =
        tr("Remove the device \"%1\" with its channels?").arg(QString::fromStdString(entry.name));
    if (CWarningDlg::CheckDangerousAction(question, tr("Remove device"), tr("Remove"), this) == 1 &&
        m_resources.Remove(guid.toStdString()))
        Reload();
}

void CDevicesPage::ShowMenu(const QPoint& position)
{
    const std::string guid = SelectedId().toStdString();
    if (guid.empty() || !Table().indexAt(position).isValid())
        return;
    QMenu menu(this);
    menu.setObjectName("deviceMenu");
    const auto add = [&](const char* iconName, const QString& text, const char* name, auto action) {
        menu.addAction(icon(iconName), text, this, action)->setObjectName(name);
    };
    add("edit", tr("Edit…"), "actionEdit", [this] { EditDevice(); });
    add("remove", tr("Remove…"), "actionRemove", [this] { RemoveDevice(); });
    menu.addSeparator();
    add("alarm", tr("Simulate an alarm"), "actionAlarm", [this] { Simulate(); });
    add("ok", tr("Set online"), "actionOnline", [=] { m_resources.SetOnline(guid, true); });
    add("power", tr("Set offline"), "actionOffline", [=] { m_resources.SetOnline(guid, false); });
    menu.exec(Table().viewport()->mapToGlobal(position));
}

void CDevicesPage::Simulate()
{
    DeviceEntry entry;
    const std::string guid = SelectedId().toStdString();
    if (m_resources.EntryOf(guid, entry))
        m_raiseAlarm(guid, "Test alarm of " + entry.name);
}

void CDevicesPage::UpdateButtons()
{
    const bool chosen = !SelectedId().isEmpty();
    m_edit->setEnabled(chosen);
    m_remove->setEnabled(chosen);
}

} // namespace framework
