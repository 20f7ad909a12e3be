#pragma once

#include "framework/core/FrameworkEvents.h"

#include <QObject>
#include <QString>
#include <QTimer>

namespace framework {

/// Brings the events of the core to the GUI thread, as signals. Changes of the resources come in floods when
/// a network fails, and whoever hears of them looks at all devices: those of some milliseconds are one
/// signal.
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

    QTimer m_resources; ///< runs from the first change to its signal
};

} // namespace framework
