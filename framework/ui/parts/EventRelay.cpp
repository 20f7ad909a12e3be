#include "framework/ui/parts/EventRelay.h"

#include <QSize>

namespace framework {

namespace {

constexpr int kGatherMs = 50;

} // namespace

CEventRelay::CEventRelay()
{
    m_resources.setSingleShot(true);
    m_resources.setInterval(kGatherMs);
    connect(&m_resources, &QTimer::timeout, this, &CEventRelay::ResourcesChanged);
}

template<typename Task>
void CEventRelay::Post(Task task)
{
    QMetaObject::invokeMethod(this, std::move(task), Qt::QueuedConnection);
}

void CEventRelay::OnComponentState(ComponentState state, const std::string& detail)
{
    Post([this, state, text = QString::fromStdString(detail)] { emit ComponentChanged(state, text); });
}

void CEventRelay::OnResourcesChanged()
{
    Post([this] {
        if (!m_resources.isActive())
            m_resources.start();
    });
}

void CEventRelay::OnUsersChanged()
{
    Post([this] { emit UsersChanged(); });
}

void CEventRelay::OnNotice(const JournalEntry& entry)
{
    Post([this, entry] { emit NoticeAdded(entry); });
}

void CEventRelay::OnOperation(const JournalEntry& entry)
{
    Post([this, entry] { emit OperationAdded(entry); });
}

void CEventRelay::OnFrameResize(const std::string& window, int width, int height)
{
    Post([this, name = QString::fromStdString(window), size = QSize(width, height)] {
        emit ResizeWished(name, size);
    });
}

} // namespace framework
