#pragma once

#include "framework/core/FrameworkEvents.h"

#include <QObject>
#include <QString>

namespace framework {

/// Brings the events of the core to the GUI thread, as signals.
class CEventRelay : public QObject, public IFrameworkEvents
{
    Q_OBJECT

public:
    CEventRelay();

    void OnComponentState(ComponentState state, const std::string& detail) override;
    void OnResourcesChanged() override;
    void OnUsersChanged() override;
    void OnNotice(const JournalEntry& entry) override;
    void OnOperation(const JournalEntry& entry) override;
    void OnFrameResize(const std::string& window, int width, int height) override;

signals:
    void ComponentChanged(framework::ComponentState state, const QString& detail);
    void ResourcesChanged();
    void UsersChanged();
    void NoticeAdded(const framework::JournalEntry& entry);
    void OperationAdded(const framework::JournalEntry& entry);
    void ResizeWished(const QString& window, const QSize& size);

private:
    template<typename Task>
    void Post(Task task);
};

} // namespace framework
