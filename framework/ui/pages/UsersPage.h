#pragma once

#include "framework/core/Users.h"

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace VantorGUIToolkit {
class CBanner;
class CFormGrid;
class CPasswordEdit;
} // namespace VantorGUIToolkit

namespace framework {

/// A permission in the language of the user.
QString PermissionText(const std::string& permission);

/// The users, what each of them may do, and their passwords. GUI thread.
class CUsersPage : public QWidget
{
    Q_OBJECT

public:
    explicit CUsersPage(CUsers& users, QWidget* parent = nullptr);

    void Reload();

private:
    QWidget* MakeList();
    QWidget* MakeForm();
    void MakeChecks(QWidget* parent);
    void ShowUser();
    void NewUser();
    void SaveUser();
    void RemoveUser();
    void ShowResult(const std::string& error, const QString& done);
    User Entered() const;

    CUsers& m_users;
    QListWidget* m_list;
    VantorGUIToolkit::CBanner* m_refusal;
    VantorGUIToolkit::CFormGrid* m_form;
    QLineEdit* m_name;
    VantorGUIToolkit::CPasswordEdit* m_password;
    std::vector<QCheckBox*> m_checks; ///< in the order of AllPermissions()
    QPushButton* m_remove;
    bool m_isNew = false;
};

} // namespace framework
