#include "framework/ui/pages/UsersPage.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/Banner.h"
#include "VantorGUIToolkit/Widgets/FormGrid.h"
#include "VantorGUIToolkit/Widgets/Notice.h"
#include "VantorGUIToolkit/Widgets/PageHeader.h"
#include "VantorGUIToolkit/Widgets/PasswordEdit.h"
#include "VantorGUIToolkit/Widgets/WarningDlg.h"
#include "framework/ui/parts/Sentences.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>

namespace framework {

using namespace VantorGUIToolkit;

namespace {

constexpr int kListWidth = 240;
constexpr int kFormWidth = 640;
constexpr int kLongestName = 32;

struct PermissionTitle
{
    const char* permission;
    const char* title;
};

constexpr PermissionTitle kTitles[] = {
    {permission::kLiveView, QT_TRANSLATE_NOOP("Permissions", "Live view")},
    {permission::kPlayback, QT_TRANSLATE_NOOP("Permissions", "Playback")},
    {permission::kLocalFiles, QT_TRANSLATE_NOOP("Permissions", "Clips and pictures")},
    {permission::kRecordSchedule, QT_TRANSLATE_NOOP("Permissions", "Recording schedules")},
    {permission::kStorage, QT_TRANSLATE_NOOP("Permissions", "Storage plans")},
    {permission::kDevices, QT_TRANSLATE_NOOP("Permissions", "Devices")},
    {permission::kBroadcast, QT_TRANSLATE_NOOP("Permissions", "Broadcast")},
    {permission::kAlarmOutput, QT_TRANSLATE_NOOP("Permissions", "Alarm outputs")},
    {permission::kWiper, QT_TRANSLATE_NOOP("Permissions", "Wipers")},
    {permission::kSystemConfig, QT_TRANSLATE_NOOP("Permissions", "Settings")},
    {permission::kUsers, QT_TRANSLATE_NOOP("Permissions", "Users")},
};

} // namespace

QString PermissionText(const std::string& permission)
{
    for (const PermissionTitle& each : kTitles)
        if (permission == each.permission)
            return QCoreApplication::translate("Permissions", each.title);
    return QString::fromStdString(permission);
}

CUsersPage::CUsersPage(CUsers& users, QWidget* parent)
    : QWidget(parent), m_users(users), m_list(new QListWidget(this)),
      m_refusal(new CBanner({}, Tone::Error, this)), m_form(new CFormGrid(this)), m_name(new QLineEdit(this)),
      m_password(new CPasswordEdit(this)), m_remove(makeButton(tr("Remove"), ButtonKind::Danger, this))
{
    setObjectName("usersPage");
    setSurface(this, Surface::Page);
    auto* header = new CPageHeader(tr("Users"), tr("Who works with the client, and what each may do."), this);
    QPushButton* add = header->AddAction(tr("Add user"), ButtonKind::Primary);
    add->setObjectName("addUser");
    add->setIcon(iconOnAccent("add"));
    connect(add, &QPushButton::clicked, this, &CUsersPage::NewUser);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(Grid::Large);
    columns->addWidget(MakeList());
    columns->addWidget(MakeForm(), 1, Qt::AlignTop);
    columns->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Grid::Wide, Grid::Wide, Grid::Wide, Grid::Wide);
    layout->setSpacing(Grid::Large);
    layout->addWidget(header);
    layout->addLayout(columns, 1);
    Reload();
}

QWidget* CUsersPage::MakeList()
{
    m_list->setObjectName("userList");
    m_list->setFixedWidth(kListWidth);
    connect(m_list, &QListWidget::currentRowChanged, this, &CUsersPage::ShowUser);
    return m_list;
}

QWidget* CUsersPage::MakeForm()
{
    auto* card = new QFrame(this);
    setSurface(card, Surface::Card);
    card->setMaximumWidth(kFormWidth);
    m_name->setObjectName("userName");
    m_name->setMaxLength(kLongestName);
    m_password->setObjectName("userPassword");
    m_form->AddRow(tr("Name"), m_name);
    m_form->AddRow(tr("Password"), m_password);
    auto* checks = new QWidget(card);
    MakeChecks(checks);

    QPushButton* save = makeButton(tr("Save"), ButtonKind::Primary, card);
    save->setObjectName("saveUser");
    m_remove->setObjectName("removeUser");
    connect(save, &QPushButton::clicked, this, &CUsersPage::SaveUser);
    connect(m_remove, &QPushButton::clicked, this, &CUsersPage::RemoveUser);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_remove);
    buttons->addStretch();
    buttons->addWidget(save);

    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(Grid::Wide, Grid::Wide, Grid::Wide, Grid::Wide);
    layout->setSpacing(Grid::Large);
    layout->addWidget(m_refusal);
    layout->addWidget(m_form);
    layout->addWidget(makeLabel(tr("May use"), TextRole::Heading, card));
    layout->addWidget(checks);
    layout->addLayout(buttons);
    return card;
}

void CUsersPage::MakeChecks(QWidget* parent)
{
    auto* grid = new QGridLayout(parent);
    grid->setContentsMargins({});
    grid->setVerticalSpacing(Grid::Medium);
    const auto& permissions = AllPermissions();
    for (int index = 0; index < static_cast<int>(permissions.size()); ++index) {
        const std::string& permission = permissions[static_cast<std::size_t>(index)];
        auto* check = new QCheckBox(PermissionText(permission), parent);
        check->setObjectName("may_" + QString::fromStdString(permission));
        grid->addWidget(check, index / 2, index % 2);
        m_checks.push_back(check);
    }
}

void CUsersPage::Reload()
{
    const QString chosen = m_list->currentItem() ? m_list->currentItem()->text() : QString();
    {
        const QSignalBlocker blocker(m_list);
        m_list->clear();
        for (const User& user : m_users.All())
            m_list->addItem(new QListWidgetItem(icon("user"), QString::fromStdString(user.name)));
    }
    const auto found = m_list->findItems(chosen, Qt::MatchExactly);
    m_list->setCurrentItem(found.isEmpty() ? m_list->item(0) : found.front());
    ShowUser();
}

void CUsersPage::ShowUser()
{
    const int row = m_list->currentRow();
    const std::vector<User> users = m_users.All();
    if (row < 0 || row >= static_cast<int>(users.size()))
        return;
    m_isNew = false;
    m_password->setPlaceholderText(tr("Unchanged"));
    const User& user = users[static_cast<std::size_t>(row)];
    m_name->setText(QString::fromStdString(user.name));
    m_name->setReadOnly(true);
    m_password->clear();
    for (std::size_t index = 0; index < m_checks.size(); ++index)
        m_checks[index]->setChecked(user.May(AllPermissions()[index]));
    m_remove->show();
    m_refusal->hide();
    m_form->setFieldError(m_name, {});
}

void CUsersPage::NewUser()
{
    m_list->setCurrentRow(-1);
    m_isNew = true;
    m_password->setPlaceholderText({});
    m_name->setReadOnly(false);
    m_name->clear();
    m_form->setFieldError(m_name, {});
    m_password->clear();
    for (QCheckBox* check : m_checks)
        check->setChecked(false);
    m_remove->hide();
    m_refusal->hide();
    m_name->setFocus();
}

User CUsersPage::Entered() const
{
    User user;
    user.name = m_name->text().trimmed().toStdString();
    for (std::size_t index = 0; index < m_checks.size(); ++index)
        if (m_checks[index]->isChecked())
            user.permissions.push_back(AllPermissions()[index]);
    return user;
}

void CUsersPage::SaveUser()
{
    const User user = Entered();
    const std::vector<User> all = m_users.All();
    const bool taken =
        std::any_of(all.begin(), all.end(), [&](const User& each) { return each.name == user.name; });
    const QString nameError = user.name.empty()  ? tr("Enter a name.")
                              : m_isNew && taken ? tr("There is a user of this name.")
                                                 : QString();
    m_form->setFieldError(m_name, nameError);
    if (m_form->FocusFirstError())
        return;
    std::optional<std::string> password;
    if (m_isNew || !m_password->text().isEmpty())
        password = m_password->text().toStdString();
    std::string error;
    if (m_users.Put(user, password, error))
        error.clear();
    ShowResult(error, tr("The user was saved."));
    if (const auto found = m_list->findItems(QString::fromStdString(user.name), Qt::MatchExactly);
        !found.isEmpty())
        m_list->setCurrentItem(found.front());
}

void CUsersPage::RemoveUser()
{
    const QString name = m_name->text();
    if (CWarningDlg::CheckDangerousAction(tr("Remove the user \"%1\"?").arg(name), tr("Remove user"),
                                          tr("Remove"), this) != 1)
        return;
    std::string error;
    if (m_users.Remove(name.toStdString(), error))
        error.clear();
    ShowResult(error, tr("The user was removed."));
}

void CUsersPage::ShowResult(const std::string& error, const QString& done)
{
    if (error.empty()) {
        Reload();
        return CNotice::Show(done, Tone::Ok, this);
    }
    m_refusal->Set(InUserLanguage(error), Tone::Error);
    m_refusal->show();
}

} // namespace framework
