#pragma once

#include "VantorGUIToolkit/Widgets/Dialog.h"
#include "framework/core/Resources.h"
#include "framework/ui/pages/DeviceForm.h"

class QComboBox;
class QLineEdit;
class QSpinBox;

namespace VantorGUIToolkit {
class CBanner;
class CFormGrid;
class CPasswordEdit;
} // namespace VantorGUIToolkit

namespace framework {

/// Adds a device, or changes one. What cannot be taken is shown at the fields, and the dialog stays. GUI
/// thread.
class CDeviceDialog : public VantorGUIToolkit::CDialog
{
    Q_OBJECT

public:
    /// guid: the device to change; empty for a new one.
    CDeviceDialog(CResources& resources, const QString& guid, QWidget* parent);

    /// The device that was added or changed.
    QString Guid() const { return m_guid; }

private:
    void BuildForm();
    void Fill(const DeviceEntry& entry);
    DeviceEntry Entered() const;
    void Check(const DeviceEntry& entry);
    void Apply();
    std::vector<std::string> OtherNames() const;

    CResources& m_resources;
    QString m_guid;
    VantorGUIToolkit::CBanner* m_refusal;
    VantorGUIToolkit::CFormGrid* m_form;
    QLineEdit* m_name;
    QComboBox* m_type;
    QLineEdit* m_address;
    QSpinBox* m_port;
    QLineEdit* m_user;
    VantorGUIToolkit::CPasswordEdit* m_password;
    QSpinBox* m_channels;
    bool m_tried = false; ///< from the first try on, errors follow the typing
};

} // namespace framework
