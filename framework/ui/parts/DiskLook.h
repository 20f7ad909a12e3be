#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

namespace framework {

/// Threads that may wait for a slow or lost drive. They are never ended: the program's end does not wait for
/// them.
QThreadPool& DiskThreads();

/// Runs look() on one of these threads, and then take(what it returned) on the GUI thread, where owner lives,
/// if that is still there. Any thread while owner is there.
template<typename Look, typename Take>
void LookAtDisk(QObject* owner, Look look, Take take)
{
    DiskThreads().start([owner = QPointer<QObject>(owner), look, take] {
        const auto tell = [owner, take, seen = look()] {
            if (owner)
                take(seen);
        };
        QMetaObject::invokeMethod(qApp, tell, Qt::QueuedConnection);
    });
}

} // namespace framework
