#pragma once

#include "framework/ui/pages/ListPage.h"

#include <functional>

class QPushButton;

namespace framework {

class CResources;

/// The devices with their states; adds, changes and removes them, and raises events for trying things out.
/// GUI thread.
class CDevicesPage : public CListPage
{
    Q_OBJECT

public:
    /// Raises a test alarm of a device.
    using RaiseAlarm = std::function<void(const std::string& guid, const std::string& text)>;

    CDevicesPage(CResources& resources, RaiseAlarm raiseAlarm, QWidget* parent = nullptr);

    void Reload();
    void AddDevice();

private:
    void EditDevice();
    void RemoveDevice();
    void ShowMenu(const QPoint& position);
    void UpdateButtons();
    void Simulate();

    CResources& m_resources;
    const RaiseAlarm m_raiseAlarm;
    QPushButton* m_edit;
    QPushButton* m_remove;
};

} // namespace framework
