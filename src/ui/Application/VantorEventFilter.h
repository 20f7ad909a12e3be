#pragma once

#include <NativeMessage.h>

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace video {

/// Looks at the system's own messages before Qt does. Swallows Alt+F4, so that the user cannot close windows
/// that are embedded in the framework's. GUI thread.
class CVantorEventFilter : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool nativeEventFilter(const QByteArray& eventType, void* message, long* result) override;

signals:
    /// Every message that passes; the slot's result says whether it is swallowed.
    bool SignalEventFilter(MSG* message, long* result);
};

} // namespace video
