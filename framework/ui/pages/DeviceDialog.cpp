#include "framework/ui/pages/DeviceDialog.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/Banner.h"
#include "VantorGUIToolkit/Widgets/FormGrid.h"
#include "VantorGUIToolkit/Widgets/PasswordEdit.h"
#include "framework/ui/parts/Sentences.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace framework {

using namespace VantorGUIToolkit;

namespace {

constexpr int kWidth = 480;
constexpr int kMostChannels = 64;
constexpr int kMostPort = 65535;

QSpinBox* MakeSpinBox(int from, int to, const char* name, QWidget* parent)
{
    auto* box = new QSpinBox(parent);
    box->setObjectName(name);
    box->setRange(from, to);
    return box;
}

QLineEdit* MakeEdit(const char* name, QWidget* parent)
{
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(name);
    return edit;
}

} // namespace

CDeviceDialog::CDeviceDialog(CResources& resources, const QString& guid, QWidget* parent)
    : CDialog(guid.isEmpty() ? tr("Add device") : tr("Edit device"), parent), m_resources(resources),
      m_guid(guid), m_refusal(new CBanner({}, Tone::Error, this)), m_form(new CFormGrid(this)),
      m_name(MakeEdit("deviceName", this)), m_type(new QComboBox(this)),
      m_address(MakeEdit("deviceAddress", this)), m_port(MakeSpinBox(1, kMostPort, "devicePort", this)),
      m_user(MakeEdit("deviceUser", this)), m_password(new CPasswordEdit(this)),
      m_channels(MakeSpinBox(0, kMostChannels, "deviceChannels", this))
{
    setObjectName("deviceDialog");
    setMinimumWidth(kWidth);
    BuildForm();
    DeviceEntry entry;
    if (!guid.isEmpty() && !m_resources.EntryOf(guid.toStdString(), entry))
        entry = {};
    Fill(entry);
    AddButton(tr("Cancel"), ButtonKind::Normal, Rejected)->setObjectName("cancel");
    QPushButton* apply = AddButton(guid.isEmpty() ? tr("Add") : tr("Save"), ButtonKind::Primary);
    apply->setObjectName("apply");
    connect(apply, &QPushButton::clicked, this, &CDeviceDialog::Apply);
    for (QLineEdit* edit : {m_name, m_address, m_user})
        connect(edit, &QLineEdit::textChanged, this, [this] {
            if (m_tried)
                Check(Entered());
        });
}

void CDeviceDialog::BuildForm()
{
    m_type->setObjectName("deviceType");
    for (const int type : {Encoder, Recorder, StorageServer})
        m_type->addItem(icon(DeviceTypeIcon(type)), DeviceTypeText(type), type);
    m_password->setObjectName("devicePassword");
    m_refusal->hide();
    m_form->AddRow(tr("Name"), m_name);
    m_form->AddRow(tr("Type"), m_type);
    m_form->AddRow(tr("Address"), m_address, tr("Host name or IP address"));
    m_form->AddRow(tr("Port"), m_port);
    m_form->AddRow(tr("User"), m_user);
    m_form->AddRow(tr("Password"), m_password);
    m_form->AddRow(tr("Channels"), m_channels);
    ContentLayout()->addWidget(m_refusal);
    ContentLayout()->addWidget(m_form);
}

void CDeviceDialog::Fill(const DeviceEntry& entry)
{
    m_name->setText(QString::fromStdString(entry.name));
    m_type->setCurrentIndex(m_type->findData(entry.typeCode));
    m_address->setText(QString::fromStdString(entry.address));
    m_port->setValue(entry.port);
    m_user->setText(QString::fromStdString(entry.userName));
    m_password->setText(QString::fromStdString(entry.password));
    m_channels->setValue(entry.channels);
}

DeviceEntry CDeviceDialog::Entered() const
{
    DeviceEntry entry;
    entry.name = m_name->text().trimmed().toStdString();
    entry.typeCode = m_type->currentData().toInt();
    entry.address = m_address->text().trimmed().toStdString();
    entry.port = m_port->value();
    entry.userName = m_user->text().toStdString();
    entry.password = m_password->text().toStdString();
    entry.channels = m_channels->value();
    return entry;
}

void CDeviceDialog::Check(const DeviceEntry& entry)
{
    const std::map<DeviceField, QWidget*> fields = {
        {DeviceField::Name, m_name}, {DeviceField::Address, m_address}, {DeviceField::UserName, m_user}};
    std::map<DeviceField, QString> errors = CheckDevice(entry, OtherNames());
    for (const auto& [field, widget] : fields)
        m_form->setFieldError(widget, errors[field]);
}

void CDeviceDialog::Apply()
{
    m_tried = true;
    const DeviceEntry entry = Entered();
    Check(entry);
    if (m_form->FocusFirstError())
        return;
    std::string error;
    if (m_guid.isEmpty())
        m_guid = QString::fromStdString(m_resources.Add(entry, error));
    else if (!m_resources.Edit(m_guid.toStdString(), entry, error) && error.empty())
        error = tr("The device does not exist any more.").toStdString();
    if (error.empty())
        return accept();
    m_refusal->Set(InUserLanguage(error), Tone::Error);
    m_refusal->show();
}

std::vector<std::string> CDeviceDialog::OtherNames() const
{
    std::vector<std::string> names;
    for (const auto& device : m_resources.Devices())
        if (device.guid != m_guid.toStdString())
            names.push_back(device.name);
    return names;
}

} // namespace framework
