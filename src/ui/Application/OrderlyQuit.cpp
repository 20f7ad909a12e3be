#include "ui/Application/OrderlyQuit.h"

#include "Base/Log.h"
#include "ui/Public/OpenPopups.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <utility>

namespace video {

namespace {

constexpr int kMainLoop = 1;
constexpr std::chrono::milliseconds kTryAgain{20};

} // namespace

COrderlyQuit::COrderlyQuit(std::function<void()> takeDown, std::chrono::milliseconds patience)
    : m_takeDown(std::move(takeDown)), m_patience(patience)
{}

void COrderlyQuit::Ask()
{
    if (std::exchange(m_asked, true))
        return;
    m_deadline.setRemainingTime(m_patience.count());
    Try();
}

void COrderlyQuit::Try()
{
    if (QThread::currentThread()->loopLevel() <= kMainLoop) {
        TakeDown();
        QCoreApplication::quit();
        return;
    }
    if (m_deadline.hasExpired())
        return EndAllLoops();
    QTimer::singleShot(kTryAgain, this, &COrderlyQuit::Try);
    CloseModalDialogs();
}

/// A dialog of the system, or one that refuses, must not keep the process alive without its framework.
void COrderlyQuit::EndAllLoops()
{
    BASE_WARN("A dialog did not close. All event loops are ended.");
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &COrderlyQuit::TakeDown);
    QCoreApplication::quit();
}

void COrderlyQuit::TakeDown()
{
    if (const auto takeDown = std::exchange(m_takeDown, nullptr))
        takeDown();
}

} // namespace video
