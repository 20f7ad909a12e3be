#pragma once

#include <QDeadlineTimer>
#include <QObject>

#include <chrono>
#include <functional>

namespace video {

/// Ends the event loop after the application was taken down, but never under the feet of a page: a dialog or
/// menu runs an event loop of its own above the main one, and its page must not go before that has ended. GUI
/// thread.
class COrderlyQuit : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds kPatience{2000};

    /// takeDown is called once, with no other loop than the main one running, or directly after its end.
    /// patience: how long dialogs are asked to close before every loop is ended from outside.
    explicit COrderlyQuit(std::function<void()> takeDown, std::chrono::milliseconds patience = kPatience);

    /// Further calls do nothing.
    void Ask();

private:
    void Try();
    void EndAllLoops();
    void TakeDown();

    std::function<void()> m_takeDown;
    const std::chrono::milliseconds m_patience;
    QDeadlineTimer m_deadline;
    bool m_asked = false;
};

} // namespace video
