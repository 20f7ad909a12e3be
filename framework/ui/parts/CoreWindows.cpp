#include "framework/ui/parts/CoreWindows.h"

namespace framework {

// The object outlives the core's threads (its owner stops the core first), so that posting to it is safe.
void CCoreWindows::Ask(const QString& name, Answer onAnswer)
{
    m_core.GetWndHandle(name.toStdString(), [this, onAnswer = std::move(onAnswer)](auto window) {
        QMetaObject::invokeMethod(
            this, [onAnswer, window] { onAnswer(window); }, Qt::QueuedConnection);
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
