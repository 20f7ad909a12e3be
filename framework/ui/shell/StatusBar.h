#pragma once

#include "framework/core/FrameworkEvents.h"

#include <QFrame>

class QLabel;

namespace framework {

/// A component's state as users read it, for example "Ready", and the tone that goes with it.
QString TextOf(ComponentState state);
const char* ToneOf(ComponentState state);

/// The bar at the bottom: the component's state and the last event. GUI thread.
class CStatusBar : public QFrame
{
    Q_OBJECT

public:
    explicit CStatusBar(QWidget* parent = nullptr);

    void SetComponent(ComponentState state, const QString& detail);
    void ShowEvent(const QString& text);

private:
    QLabel* m_state;
    QLabel* m_event;
};

} // namespace framework
