#pragma once

#include "UiDataController/Model/Element.h"
#include "framework/core/DeviceLinks.h"

#include <mutex>
#include <vector>

namespace framework {

/// The devices of the core with their channels, for the resource tree. Observers are called on the thread of
/// Update; the rest is for any thread.
class CCoreElements : public UiDataController::IElementSource
{
public:
    /// Both outlive this object.
    CCoreElements(const CResources& resources, const CDeviceLinks& devices);

    /// Looks what has changed and tells it.
    void Update();

    UiDataController::ElementSnapshot Snapshot() const override;
    void AddObserver(UiDataController::IElementObserver& observer) override;
    void RemoveObserver(UiDataController::IElementObserver& observer) override;

private:
    const CResources& m_resources;
    const CDeviceLinks& m_devices;
    mutable std::mutex m_mutex;
    UiDataController::ElementSnapshot m_now;
    std::recursive_mutex m_telling; ///< guards the observers, and is held while they are called
    std::vector<UiDataController::IElementObserver*> m_observers;
};

} // namespace framework
