#include "framework/ui/pages/SwitchUserDialog.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/FormGrid.h"
#include "VantorGUIToolkit/Widgets/PasswordEdit.h"

#include <QComboBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace framework {

using namespace VantorGUIToolkit;

namespace {

constexpr int kWidth = 400;

} // namespace

CSwitchUserDialog::CSwitchUserDialog(const std::vector<User>& users, const std::string& current,
                                     Switch switchUser, QWidget* parent)
    : CDialog(tr("Switch user"), parent), m_switch(std::move(switchUser)), m_form(new CFormGrid(this)),
      m_user(new QComboBox(this)), m_password(new CPasswordEdit(this))
{
    setObjectName("switchUserDialog");
    setMinimumWidth(kWidth);
    m_user->setObjectName("switchUserName");
    m_password->setObjectName("switchUserPassword");
    for (const User& user : users)
        m_user->addItem(icon("user"), QString::fromStdString(user.name));
    m_user->setCurrentText(QString::fromStdString(current));
    m_form->AddRow(tr("User"), m_user);
    m_form->AddRow(tr("Password"), m_password);
    ContentLayout()->addWidget(m_form);
    AddButton(tr("Cancel"), ButtonKind::Normal, Rejected)->setObjectName("cancel");
    QPushButton* apply = AddButton(tr("Switch"), ButtonKind::Primary);
    apply->setObjectName("apply");
    connect(apply, &QPushButton::clicked, this, &CSwitchUserDialog::Apply);
    connect(m_password, &QLineEdit::textChanged, this, [this] { m_form->setFieldError(m_password, {}); });
}

void CSwitchUserDialog::Apply()
{
    if (m_switch(m_user->currentText().toStdString(), m_password->text().toStdString()))
        return accept();
    m_form->setFieldError(m_password, tr("The password is wrong."));
    m_password->selectAll();
    m_password->setFocus();
}

} // namespace framework
