#pragma once

#include "framework/core/DeviceLinks.h"
#include "framework/ui/pages/DeviceDialog.h"
#include "framework/ui/parts/CoreElements.h"

#include <QWidget>

#include <functional>

class QPushButton;
class QStackedWidget;

namespace UiDataController {
class CResourceTree;
}

namespace VantorGUIToolkit {
class CPageHeader;
}

namespace framework {

class CDeviceDetails;

/// The devices with their channels and states, and what is known of the chosen one; adds, changes and removes
/// them, and raises alarms for trying things out. GUI thread.
class CDevicesPage : public QWidget
{
    Q_OBJECT

public:
    /// Raises a test alarm of a device.
    using RaiseAlarm = std::function<void(const std::string& guid, const std::string& text)>;

    CDevicesPage(CResources& resources, CDeviceLinks& devices, CDeviceDialog::Test test,
                 RaiseAlarm raiseAlarm, QWidget* parent = nullptr);
    /// Ends the tree before its elements, which child widgets would outlive.
    ~CDevicesPage() override;

    /// Something has changed.
    void Reload();
    void AddDevice();
    /// Chooses a device or channel.
    void Select(const QString& id);

private:
    QWidget* MakeHeader();
    QWidget* MakeTreeSide();
    QWidget* MakeDetailsSide();
    QPushButton* AddButton(const QString& text, const char* name, void (CDevicesPage::*action)());
    std::string SelectedDevice() const;
    void EditDevice();
    void RemoveDevice();
    void TryNow();
    void Simulate();
    void ShowMenu(const QString& id, const QPoint& place);
    void ShowDetails();

    CResources& m_resources;
    CDeviceLinks& m_devices;
    const CDeviceDialog::Test m_test;
    const RaiseAlarm m_raiseAlarm;
    CCoreElements m_elements;
    VantorGUIToolkit::CPageHeader* m_header;
    QPushButton* m_edit = nullptr;
    QPushButton* m_remove = nullptr;
    UiDataController::CResourceTree* m_tree;
    QStackedWidget* m_sides; ///< nothing chosen, or the details
    CDeviceDetails* m_details = nullptr;
};

} // namespace framework
