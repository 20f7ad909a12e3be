#include "framework/ui/pages/DeviceDialog.h"

#include "VantorGUIToolkit/Widgets/Banner.h"
#include "VantorGUIToolkit/Widgets/FormGrid.h"
#include "VantorGUIToolkit/Widgets/PasswordEdit.h"
#include "VantorGUIToolkit/Widgets/Switch.h"
#include "framework/ui/parts/DeviceText.h"
#include "framework/ui/parts/Sentences.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMovie>
#include <QPushButton>
#include <QSpinBox>

namespace framework {

using namespace VantorGUIToolkit;

namespace {

constexpr int kWidth = 480;
constexpr int kMostPort = 65535;
constexpr int kMovieSize = Grid::Wide;

const QString kMovie = QStringLiteral(":/VantorGUIToolkit/Dialog/Images/Dialog/Loading.gif");

QLineEdit* MakeEdit(const char* name, QWidget* parent)
{
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(name);
    return edit;
}

} // namespace

CDeviceDialog::CDeviceDialog(CResources& resources, Test test, const QString& guid, QWidget* parent)
    : CDialog(guid.isEmpty() ? tr("Add device") : tr("Edit device"), parent), m_resources(resources),
      m_test(std::move(test)), m_guid(guid), m_refusal(new CBanner({}, Tone::Error, this)),
      m_form(new CFormGrid(this)), m_address(MakeEdit("deviceAddress", this)), m_port(new QSpinBox(this)),
      m_tls(new CSwitch(tr("Encrypted connection (TLS)"), this)), m_user(MakeEdit("deviceUser", this)),
      m_password(new CPasswordEdit(this)), m_name(MakeEdit("deviceName", this)), m_waiting(MakeWaiting())
{
    setObjectName("deviceDialog");
    setMinimumWidth(kWidth);
    BuildForm();
    DeviceEntry entry;
    if (!guid.isEmpty() && !m_resources.EntryOf(guid.toStdString(), entry))
        entry = {};
    Fill(entry);
    AddButtons();
    for (QLineEdit* edit : {m_name, m_address, m_user})
        connect(edit, &QLineEdit::textChanged, this, [this] {
            if (m_tried)
                Check(Entered());
        });
}

void CDeviceDialog::BuildForm()
{
    m_port->setObjectName("devicePort");
    m_port->setRange(1, kMostPort);
    m_tls->setObjectName("deviceTls");
    m_password->setObjectName("devicePassword");
    m_refusal->setObjectName("deviceRefusal");
    m_refusal->hide();
    m_form->AddRow(tr("Address"), m_address, tr("Host name or IP address"));
    m_form->AddRow(tr("Port"), m_port);
    m_form->AddField(m_tls);
    m_form->AddRow(tr("User"), m_user);
    m_form->AddRow(tr("Password"), m_password);
    m_form->AddRow(tr("Name"), m_name, tr("Empty: the name that the device has"));
    ContentLayout()->addWidget(m_refusal);
    ContentLayout()->addWidget(m_form);
    ContentLayout()->addWidget(m_waiting);
}

QWidget* CDeviceDialog::MakeWaiting()
{
    auto* waiting = new QWidget(this);
    waiting->setObjectName("deviceWaiting");
    auto* picture = new QLabel(waiting);
    auto* movie = new QMovie(kMovie, {}, picture);
    movie->setScaledSize({kMovieSize, kMovieSize});
    picture->setMovie(movie);
    movie->start();
    auto* row = new QHBoxLayout(waiting);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Grid::Small);
    row->addWidget(picture);
    row->addWidget(makeLabel(tr("Connecting to the device…"), TextRole::Hint, waiting), 1);
    waiting->hide();
    return waiting;
}

void CDeviceDialog::AddButtons()
{
    AddButton(tr("Cancel"), ButtonKind::Normal, Rejected)->setObjectName("cancel");
    const bool isNew = m_guid.isEmpty();
    m_anyway = AddButton(isNew ? tr("Add anyway") : tr("Save anyway"), ButtonKind::Normal);
    m_anyway->setObjectName("anyway");
    m_anyway->hide();
    connect(m_anyway, &QPushButton::clicked, this, [this] { Take(Entered()); });
    m_apply = AddButton(isNew ? tr("Add") : tr("Save"), ButtonKind::Primary);
    m_apply->setObjectName("apply");
    connect(m_apply, &QPushButton::clicked, this, &CDeviceDialog::Apply);
}

void CDeviceDialog::Fill(const DeviceEntry& entry)
{
    m_name->setText(QString::fromStdString(entry.name));
    m_address->setText(QString::fromStdString(entry.address));
    m_port->setValue(entry.port);
    m_tls->setChecked(entry.useTls);
    m_user->setText(QString::fromStdString(entry.userName));
    m_password->setText(QString::fromStdString(entry.password));
}

DeviceEntry CDeviceDialog::Entered() const
{
    DeviceEntry entry;
    entry.name = m_name->text().trimmed().toStdString();
    entry.address = m_address->text().trimmed().toStdString();
    entry.port = m_port->value();
    entry.useTls = m_tls->isChecked();
    entry.userName = m_user->text().toStdString();
    entry.password = m_password->text().toStdString();
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
    m_refusal->hide();
    m_anyway->hide();
    const DeviceEntry entry = Entered();
    Check(entry);
    if (m_form->FocusFirstError())
        return;
    if (IsReachedAsBefore(entry))
        Take(entry);
    else
        Begin(entry);
}

void CDeviceDialog::Begin(const DeviceEntry& entry)
{
    SetWaiting(true);
    m_test(entry, [self = QPointer<CDeviceDialog>(this), attempt = ++m_attempt,
                   entry](const devices::TriedDevice& tried) {
        if (self && self->m_attempt == attempt)
            self->End(entry, tried);
    });
}

void CDeviceDialog::End(const DeviceEntry& entry, const devices::TriedDevice& tried)
{
    SetWaiting(false);
    if (tried.error == 0) {
        DeviceEntry named = entry;
        if (named.name.empty())
            named.name = NameFor(QString::fromUtf8(tried.info.name), entry, OtherNames());
        return Take(named);
    }
    Refuse(DeviceErrorText(tried.error, tried.moduleError));
    m_anyway->setVisible(IsOutOfReach(tried.error));
    if (tried.error == QXNET_ERROR_PASSWORD) {
        m_password->setFocus(Qt::OtherFocusReason);
        m_password->selectAll();
    }
}

// What cannot be used loses the keyboard, and gets it back.
void CDeviceDialog::SetWaiting(bool isWaiting)
{
    if (isWaiting)
        m_focusBefore = focusWidget();
    m_waiting->setVisible(isWaiting);
    m_form->setEnabled(!isWaiting);
    m_apply->setEnabled(!isWaiting);
    if (!isWaiting && m_focusBefore)
        m_focusBefore->setFocus(Qt::OtherFocusReason);
}

void CDeviceDialog::Refuse(const QString& why)
{
    m_refusal->Set(why, Tone::Error);
    m_refusal->show();
}

void CDeviceDialog::Take(DeviceEntry entry)
{
    if (entry.name.empty())
        entry.name = NameFor({}, entry, OtherNames());
    std::string error;
    if (m_guid.isEmpty())
        m_guid = QString::fromStdString(m_resources.Add(entry, error));
    else if (!m_resources.Edit(m_guid.toStdString(), entry, error) && error.empty())
        error = tr("The device does not exist any more.").toStdString();
    if (error.empty())
        return accept();
    Refuse(InUserLanguage(error));
}

// The first cancel ends the wait for the device.
void CDeviceDialog::done(int result)
{
    if (result != Rejected || !m_waiting->isVisibleTo(this))
        return CDialog::done(result);
    ++m_attempt;
    SetWaiting(false);
}

bool CDeviceDialog::IsReachedAsBefore(const DeviceEntry& entry) const
{
    DeviceEntry before;
    return m_resources.EntryOf(m_guid.toStdString(), before) && before.address == entry.address &&
           before.port == entry.port && before.useTls == entry.useTls && before.userName == entry.userName &&
           before.password == entry.password;
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
