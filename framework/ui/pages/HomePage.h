#pragma once

#include "framework/core/FrameworkEvents.h"
#include "framework/core/Users.h"

#include <QWidget>

class QGridLayout;
class QLabel;
class QVBoxLayout;

namespace VantorGUIToolkit {
class CBadge;
}

namespace framework {

class CJournal;
class CResources;

/// The overview: the devices, the component, ways to the most used tabs and the last events. GUI thread.
class CHomePage : public QWidget
{
    Q_OBJECT

public:
    CHomePage(const CResources& resources, const CJournal& operations, QWidget* parent = nullptr);

    void ShowDevices();
    void ShowComponent(ComponentState state, const QString& detail);
    void ShowUser(const User& user);
    void ShowEvents();

signals:
    void OpenRequested(const QString& name);
    void RestartRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowShortcuts();
    QWidget* MakeDevicesCard();
    QWidget* MakeComponentCard();
    QWidget* MakeShortcutsCard();
    QWidget* MakeEventsCard();

    const CResources& m_resources;
    const CJournal& m_operations;
    QLabel* m_deviceCount = nullptr;
    QLabel* m_deviceText = nullptr;
    VantorGUIToolkit::CBadge* m_state = nullptr;
    QLabel* m_stateText = nullptr;
    QWidget* m_devicesButton = nullptr;
    QWidget* m_restartButton = nullptr;
    QWidget* m_eventsCard = nullptr;
    User m_user;
    int m_columns = 0; ///< of the shortcuts
    QGridLayout* m_shortcuts = nullptr;
    QGridLayout* m_events = nullptr;
};

} // namespace framework
