#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

namespace framework {

/// Threads that may wait for a slow or lost drive.
QThreadPool& DiskThreads();

/// At the program's end: what has been begun gets a second; what is stuck ends with the process.
void EndDiskLooks();

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
