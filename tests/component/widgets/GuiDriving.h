#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>

#include <functional>

/// Runs the event loop until the condition holds. False after ten seconds.
inline bool WaitFor(const std::function<bool()>& condition)
{
    QElapsedTimer time;
    time.start();
    while (!condition() && time.elapsed() < 10'000)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    return condition();
}

/// A key pressed and released as the window system would send it to the widget.
inline void Press(QWidget* widget, int key, const QString& text = {})
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(widget, &event);
    }
}

/// Does something with the dialog that opens next, from inside its event loop.
inline void WhenDialogOpens(std::function<void(QWidget*)> act)
{
    auto* poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, act = std::move(act)] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible())
            return;
        poll->stop();
        poll->deleteLater();
        act(dialog);
    });
    poll->start(5);
}
