#pragma once

#include "framework/core/FrameworkEvents.h"

#include <QFrame>

class QLabel;

namespace VantorGUIToolkit {
class CBadge;
}

namespace framework {

/// The bar at the bottom: the component's state and the last event. GUI thread.
class CStatusBar : public QFrame
{
    Q_OBJECT

public:
    explicit CStatusBar(QWidget* parent = nullptr);

    void SetComponent(ComponentState state, const QString& detail);
    void ShowEvent(const QString& text);

private:
    VantorGUIToolkit::CBadge* m_state;
    QLabel* m_event;
};

} // namespace framework
