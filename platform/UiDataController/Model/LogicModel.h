#pragma once

#include "Base/MessageLoop.h"
#include "Base/Noncopyable.h"
#include "Base/ObserverRegistry.h"
#include "UiDataController/Model/Camera.h"
#include "UiDataController/Model/ElementTable.h"

#include <memory>
#include <mutex>
#include <optional>
#include <unordered_map>

namespace UiDataController {

class CCamera;
class CTask;

/// The devices, channels, storage servers and groups that there are, for all pages. Nothing here waits for a
/// device or for the network. Any thread.
class CLogicModel final : public IElementSource, Base::CNoncopyable
{
public:
    /// notifications: calls the observers. logins: asked by the cameras. Both outlive the model.
    CLogicModel(Base::CMessageLoop& notifications, const IDeviceLogins& logins);
    /// Cameras that are still held are then removed ones.
    ~CLogicModel() override;

    /// Makes the edits at one moment: one set of changes, or none when nothing differs.
    void Apply(const ModelEdits& edits);

    ElementSnapshot Snapshot() const override;
    void AddObserver(IElementObserver& observer) override;
    void RemoveObserver(IElementObserver& observer) override;

    /// The element of an identifier, whatever its type.
    std::optional<ElementInfo> Find(const QID& id) const;
    /// The same object for the same camera, as long as it is there; null when there is no such camera.
    std::shared_ptr<ICamera> Camera(const QID& id) const;
    /// The same for a storage server.
    std::shared_ptr<ITask> Task(const QID& id) const;
    /// All elements of a type, in the order of ElementSnapshot.
    std::vector<ElementInfo> All(ElementType type) const;
    ModelCounts Counts() const;

private:
    void Publish(ElementChanges changes);
    void TellHolders(const ElementChange& change);
    /// Null for an identifier that is not of the type.
    const ElementInfo* Find(const QID& id, ElementType type) const;

    mutable std::mutex m_mutex; ///< of what follows, up to the observers
    CElementTable m_table;
    std::uint64_t m_version = 0;
    /// Made when somebody asks for them.
    mutable std::unordered_map<QID, std::shared_ptr<CCamera>> m_cameras;
    mutable std::unordered_map<QID, std::shared_ptr<CTask>> m_tasks;

    Base::CMessageLoop& m_notifications;
    const IDeviceLogins& m_logins;
    Base::CObserverRegistry<IElementObserver> m_observers;
    Base::details::CWeakPtrBase m_anchor;
};

} // namespace UiDataController
