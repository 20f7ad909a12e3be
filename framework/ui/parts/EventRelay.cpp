#include "framework/ui/parts/EventRelay.h"

#include <QSize>

namespace framework {

CEventRelay::CEventRelay() = default;

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
    Post([this] { emit ResourcesChanged(); });
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
