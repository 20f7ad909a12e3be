#pragma once

#include "UiDataController/Model/Element.h"

#include <mutex>

namespace UiDataController {

/// A source of elements that are told by hand, for galleries, benchmarks and tests. Any thread; observers are
/// called on the thread that tells.
class CSampleElements : public IElementSource
{
public:
    CSampleElements() = default;
    explicit CSampleElements(std::vector<ElementInfo> elements) : m_elements(std::move(elements)) {}

    /// Makes the changes, which are taken as they are, and tells the observers.
    void Apply(const ElementChanges& changes);
    /// The same without telling anybody.
    void ApplyInSecret(const ElementChanges& changes);
    /// Everything at once, told as a Reset.
    void Replace(std::vector<ElementInfo> elements);

    ElementSnapshot Snapshot() const override;
    void AddObserver(IElementObserver& observer) override;
    void RemoveObserver(IElementObserver& observer) override;

private:
    void Take(const ElementChange& change);

    mutable std::recursive_mutex m_mutex;
    std::uint64_t m_version = 1;
    std::vector<ElementInfo> m_elements; ///< in the order of their addition
    std::vector<IElementObserver*> m_observers;
};

/// Elements with made-up names in any number: channelsEach a device, and groups of four devices' channels.
std::vector<ElementInfo> manyElements(int channels, int channelsEach);

/// The elements of a small site, in every state, with a storage server and groups.
std::vector<ElementInfo> siteElements();

ElementInfo sampleDevice(const QString& id, const QString& name, ElementState state = ElementState::Online);
ElementInfo sampleChannel(const QString& deviceId, int number, const QString& name,
                          ElementState state = ElementState::Online, const QString& groupId = {});
ElementInfo sampleGroup(const QString& id, const QString& name, const QString& above = {});
ElementInfo sampleServer(const QString& id, const QString& name, ElementState state = ElementState::Online);

} // namespace UiDataController
