#pragma once

#include "VantorGUIToolkit/Widgets/Dialog.h"
#include "framework/core/DeviceLinks.h"
#include "framework/ui/pages/DeviceForm.h"

#include <QPointer>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace VantorGUIToolkit {
class CBanner;
class CFormGrid;
class CPasswordEdit;
} // namespace VantorGUIToolkit

namespace framework {

/// Adds a device, or changes how one is reached, after it was reached so; one that is out of reach can be
/// taken all the same. What cannot be taken is said, and the dialog stays. GUI thread.
class CDeviceDialog : public VantorGUIToolkit::CDialog
{
    Q_OBJECT

public:
    /// Tries to reach a device and calls onTried later, on the GUI thread.
    using Test = std::function<void(const DeviceEntry& entry, CDeviceLinks::OnTried onTried)>;

    /// guid: the device to change; empty for a new one.
    CDeviceDialog(CResources& resources, Test test, const QString& guid, QWidget* parent);

    /// The device that was added or changed.
    QString Guid() const { return m_guid; }

    void done(int result) override;

private:
    void BuildForm();
    QWidget* MakeWaiting();
    void AddButtons();
    void Fill(const DeviceEntry& entry);
    DeviceEntry Entered() const;
    void Check(const DeviceEntry& entry);
    void Apply();
    void Begin(const DeviceEntry& entry);
    void End(const DeviceEntry& entry, const devices::TriedDevice& tried);
    void SetWaiting(bool isWaiting);
    void Refuse(const QString& why);
    void Take(DeviceEntry entry);
    bool IsReachedAsBefore(const DeviceEntry& entry) const;
    std::vector<std::string> OtherNames() const;

    CResources& m_resources;
    const Test m_test;
    QString m_guid;
    VantorGUIToolkit::CBanner* m_refusal;
    VantorGUIToolkit::CFormGrid* m_form;
    QLineEdit* m_address; ///< from here on in the order in which Tab goes through them
    QSpinBox* m_port;
    QCheckBox* m_tls;
    QLineEdit* m_user;
    VantorGUIToolkit::CPasswordEdit* m_password;
    QLineEdit* m_name;
    QWidget* m_waiting; ///< shown while a device is tried
    QPushButton* m_anyway = nullptr;
    QPushButton* m_apply = nullptr;
    QPointer<QWidget> m_focusBefore; ///< the wait
    bool m_tried = false;            ///< from the first try on, errors follow the typing
    int m_attempt = 0;               ///< the answer of an earlier one is not waited for any more
};

} // namespace framework
