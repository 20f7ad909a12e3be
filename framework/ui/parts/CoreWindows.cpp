#include "framework/ui/parts/CoreWindows.h"

#include "framework/core/FrameworkCore.h"

#include <QPointer>

namespace framework {

// The object outlives the core's threads (its owner stops the core first), so that posting to it is safe.
void CCoreWindows::Ask(const QString& name, std::function<void(const WindowHandle&)> onAnswer)
{
    m_core.GetWndHandle(name.toStdString(), [this, onAnswer = std::move(onAnswer)](auto wnd) {
        WindowHandle handle;
        if (wnd)
            handle.wnd = *wnd;
        QMetaObject::invokeMethod(
            this, [onAnswer, handle] { onAnswer(handle); }, Qt::QueuedConnection);
    });
}

void CCoreWindows::Show(const QString& name)
{
    m_core.ShowWnd(name.toStdString());
}

void CCoreWindows::Removed(const QString& name)
{
    m_core.TabRemoved(name.toStdString());
}

void CCoreWindows::Start()
{
    m_core.StartComponent();
}

ComponentState CCoreWindows::State() const
{
    return m_core.State();
}

} // namespace framework
