#include "UiDataController/Tree/Samples/SampleElements.h"

#include <QHash>

#include <algorithm>
#include <tuple>

namespace UiDataController {

void CSampleElements::Take(const ElementChange& change)
{
    const auto known = std::find_if(m_elements.begin(), m_elements.end(),
                                    [&](const ElementInfo& info) { return info.id == change.element.id; });
    switch (change.kind) {
    case ElementChange::Kind::Add:
        m_elements.push_back(change.element);
        break;
    case ElementChange::Kind::Change:
        *known = change.element;
        break;
    case ElementChange::Kind::Remove:
        m_elements.erase(known);
        break;
    case ElementChange::Kind::Reset:
        break;
    }
}

void CSampleElements::ApplyInSecret(const ElementChanges& changes)
{
    std::lock_guard<std::recursive_mutex> lock(m_mutex);
    ++m_version;
    for (const ElementChange& change : changes)
        Take(change);
}

void CSampleElements::Apply(const ElementChanges& changes)
{
    std::lock_guard<std::recursive_mutex> lock(m_mutex);
    ApplyInSecret(changes);
    for (IElementObserver* observer : m_observers)
        observer->OnElements(m_version, changes);
}

void CSampleElements::Replace(std::vector<ElementInfo> elements)
{
    std::lock_guard<std::recursive_mutex> lock(m_mutex);
    m_elements = std::move(elements);
    Apply({{ElementChange::Kind::Reset, {}}});
}

ElementSnapshot CSampleElements::Snapshot() const
{
    std::lock_guard<std::recursive_mutex> lock(m_mutex);
    ElementSnapshot snapshot{m_version, m_elements};
    QHash<QID, std::ptrdiff_t> places;
    for (std::size_t at = 0; at < m_elements.size(); ++at)
        places.insert(m_elements[at].id, std::ptrdiff_t(at));
    const auto placeOf = [&](const ElementInfo& info) {
        return info.type == ElementType::Channel ? 1 + places.value(info.deviceId) : 0;
    };
    std::vector<std::tuple<std::ptrdiff_t, int, std::size_t>> order;
    for (std::size_t at = 0; at < m_elements.size(); ++at) {
        const bool isChannel = m_elements[at].type == ElementType::Channel;
        order.emplace_back(placeOf(m_elements[at]), isChannel ? m_elements[at].number : 0, at);
    }
    std::sort(order.begin(), order.end());
    std::transform(order.begin(), order.end(), snapshot.elements.begin(),
                   [&](const auto& place) { return m_elements[std::get<2>(place)]; });
    return snapshot;
}

void CSampleElements::AddObserver(IElementObserver& observer)
{
    std::lock_guard<std::recursive_mutex> lock(m_mutex);
    m_observers.push_back(&observer);
}

void CSampleElements::RemoveObserver(IElementObserver& observer)
{
    std::lock_guard<std::recursive_mutex> lock(m_mutex);
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), &observer), m_observers.end());
}

ElementInfo sampleDevice(const QString& id, const QString& name, ElementState state)
{
    ElementInfo info;
    info.id = id;
    info.type = ElementType::Device;
    info.name = name;
    info.state = state;
    return info;
}

ElementInfo sampleChannel(const QString& deviceId, int number, const QString& name, ElementState state,
                          const QString& groupId)
{
    ElementInfo info = sampleDevice(deviceId + '/' + QString::number(number), name, state);
    info.type = ElementType::Channel;
    info.deviceId = deviceId;
    info.groupId = groupId;
    info.number = number;
    return info;
}

ElementInfo sampleGroup(const QString& id, const QString& name, const QString& above)
{
    ElementInfo info = sampleDevice(id, name);
    info.type = ElementType::Group;
    info.groupId = above;
    return info;
}

ElementInfo sampleServer(const QString& id, const QString& name, ElementState state)
{
    ElementInfo info = sampleDevice(id, name, state);
    info.type = ElementType::StorageServer;
    return info;
}

std::vector<ElementInfo> manyElements(int channels, int channelsEach)
{
    static const char* const places[] = {"Entrance", "Lobby",     "Parking deck", "Loading bay",
                                         "Corridor", "Stairwell", "Roof",         "Gate"};
    std::vector<ElementInfo> elements;
    const int devices = (channels + channelsEach - 1) / channelsEach;
    for (int device = 0; device < devices; ++device) {
        elements.push_back(sampleDevice(QString("d%1").arg(device), QString("Recorder %1").arg(device + 1)));
        if (device % 4 == 0)
            elements.push_back(
                sampleGroup(QString("g%1").arg(device / 4), QString("Site %1").arg(device / 4)));
    }
    for (int channel = 0; channel < channels; ++channel) {
        const int device = channel / channelsEach;
        const auto state = channel % 9 == 0 ? ElementState::Offline : ElementState::Online;
        const QString name = QString("%1 %2").arg(places[channel % 8]).arg(channel + 1);
        elements.push_back(sampleChannel(QString("d%1").arg(device), channel % channelsEach + 1, name, state,
                                         QString("g%1").arg(device / 4)));
    }
    return elements;
}

std::vector<ElementInfo> siteElements()
{
    using State = ElementState;
    std::vector<ElementInfo> elements = {
        sampleDevice("r1", "Main building"),
        sampleDevice("r2", "Warehouse"),
        sampleDevice("r3", "Gatehouse", State::Offline),
        sampleServer("s1", "Archive north"),
        sampleGroup("g1", "Outside"),
        sampleGroup("g2", "Entrances", "g1"),
        sampleGroup("g3", "Inside"),
        sampleChannel("r1", 1, "Entrance", State::Recording, "g2"),
        sampleChannel("r1", 2, "Lobby", State::Online, "g3"),
        sampleChannel("r1", 3, "Reception", State::Online, "g3"),
        sampleChannel("r1", 4, QString::fromUtf8("Café terrace"), State::Offline, "g1"),
        sampleChannel("r2", 1, "Loading bay 1", State::Recording, "g1"),
        sampleChannel("r2", 2, "Loading bay 2", State::Recording, "g1"),
        sampleChannel("r2", 3, "High shelves, aisle 14 to 27, seen from the crane", State::Online, "g3"),
        sampleChannel("r2", 4, QString::fromUtf8("مدخل المستودع"), State::Online, "g2"),
        sampleChannel("r2", 5, "Cold store", State::NotSupported, "g3"),
        sampleChannel("r3", 1, "Barrier", State::Offline, "g2"),
        sampleChannel("r3", 2, "Number plates", State::Connecting),
    };
    elements[2].problem = "The device cannot be reached.";
    return elements;
}

} // namespace UiDataController
