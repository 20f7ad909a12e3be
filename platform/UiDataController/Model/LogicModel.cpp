#include "UiDataController/Model/LogicModel.h"

#include "UiDataController/Model/Elements.h"

#include <algorithm>

namespace UiDataController {

namespace {

/// Brings the holder of a changed or removed element up to date.
template<typename Holders>
void TellHolder(Holders& holders, const ElementChange& change)
{
    const auto holder = holders.find(change.element.id);
    if (holder == holders.end())
        return;
    if (change.kind != ElementChange::Kind::Remove)
        return holder->second->Update(change.element);
    holder->second->Detach();
    holders.erase(holder);
}

} // namespace

CLogicModel::CLogicModel(Base::CMessageLoop& notifications, const IDeviceLogins& logins)
    : m_notifications(notifications), m_logins(logins)
{}

CLogicModel::~CLogicModel()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (const auto& [id, camera] : m_cameras)
        camera->Detach();
    for (const auto& [id, task] : m_tasks)
        task->Detach();
}

void CLogicModel::Apply(const ModelEdits& edits)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ElementChanges changes = m_table.Apply(edits);
    if (changes.empty())
        return;
    ++m_version;
    for (const ElementChange& change : changes)
        TellHolders(change);
    Publish(std::move(changes));
}

/// Under the lock, so that the sets are queued in the order of their versions.
void CLogicModel::Publish(ElementChanges changes)
{
    m_notifications.PostTask(
        Base::CCancelableTask(m_anchor.Ref(), [this, version = m_version, changes = std::move(changes)] {
            m_observers.Notify([&](IElementObserver& observer) { observer.OnElements(version, changes); });
        }));
}

void CLogicModel::TellHolders(const ElementChange& change)
{
    if (change.element.type == ElementType::Channel)
        TellHolder(m_cameras, change);
    else if (change.element.type == ElementType::StorageServer)
        TellHolder(m_tasks, change);
}

ElementSnapshot CLogicModel::Snapshot() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return {m_version, m_table.All()};
}

void CLogicModel::AddObserver(IElementObserver& observer)
{
    m_observers.Add(&observer);
}

void CLogicModel::RemoveObserver(IElementObserver& observer)
{
    m_observers.Remove(&observer);
}

std::optional<ElementInfo> CLogicModel::Find(const QID& id) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const ElementInfo* const element = m_table.Find(id);
    return element ? std::optional<ElementInfo>(*element) : std::nullopt;
}

const ElementInfo* CLogicModel::Find(const QID& id, ElementType type) const
{
    const ElementInfo* const element = m_table.Find(id);
    return element && element->type == type ? element : nullptr;
}

std::shared_ptr<ICamera> CLogicModel::Camera(const QID& id) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const ElementInfo* const element = Find(id, ElementType::Channel);
    if (!element)
        return nullptr;
    std::shared_ptr<CCamera>& camera = m_cameras[id];
    if (!camera)
        camera = std::make_shared<CCamera>(*element, m_logins);
    return camera;
}

std::shared_ptr<ITask> CLogicModel::Task(const QID& id) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const ElementInfo* const element = Find(id, ElementType::StorageServer);
    if (!element)
        return nullptr;
    std::shared_ptr<CTask>& task = m_tasks[id];
    if (!task)
        task = std::make_shared<CTask>(*element, m_logins, m_table.AddressOf(id));
    return task;
}

std::vector<ElementInfo> CLogicModel::All(ElementType type) const
{
    std::vector<ElementInfo> all = Snapshot().elements;
    const auto isOther = [type](const ElementInfo& element) { return element.type != type; };
    all.erase(std::remove_if(all.begin(), all.end(), isOther), all.end());
    return all;
}

ModelCounts CLogicModel::Counts() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_table.Counts();
}

} // namespace UiDataController
