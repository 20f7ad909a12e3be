#pragma once

#include "VantorGUIToolkit/Widgets/Dialog.h"
#include "framework/core/Users.h"

#include <functional>

class QComboBox;

namespace VantorGUIToolkit {
class CFormGrid;
class CPasswordEdit;
} // namespace VantorGUIToolkit

namespace framework {

/// Asks who takes over. GUI thread.
class CSwitchUserDialog : public VantorGUIToolkit::CDialog
{
    Q_OBJECT

public:
    /// Makes a user the current one; false for a wrong password.
    using Switch = std::function<bool(const std::string& name, const std::string& password)>;

    CSwitchUserDialog(const std::vector<User>& users, const std::string& current, Switch switchUser,
                      QWidget* parent);

private:
    void Apply();

    const Switch m_switch;
    VantorGUIToolkit::CFormGrid* m_form;
    QComboBox* m_user;
    VantorGUIToolkit::CPasswordEdit* m_password;
};

} // namespace framework
