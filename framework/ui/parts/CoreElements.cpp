#include "framework/ui/parts/CoreElements.h"

#include "framework/ui/parts/DeviceText.h"

#include <QHash>

#include <algorithm>
#include <map>

namespace framework {

using namespace UiDataController;

namespace {

ElementState StateOf(devices::SessionState state)
{
    switch (state) {
    case devices::SessionState::Online:
        return ElementState::Online;
    case devices::SessionState::Offline:
        return ElementState::Offline;
    case devices::SessionState::Connecting:
        break;
    }
    return ElementState::Connecting;
}

ElementInfo ElementOf(const protocol::DeviceResponseData& device, const devices::DeviceStatus& status,
                      int place)
{
    ElementInfo element;
    element.id = QString::fromStdString(device.guid);
    element.type = device.typeCode == StorageServer ? ElementType::StorageServer : ElementType::Device;
    element.name = QString::fromStdString(device.name);
    element.state = StateOf(status.state);
    if (status.state == devices::SessionState::Offline)
        element.problem = DeviceErrorText(status.error, status.moduleError);
    element.typeCode = device.typeCode;
    element.subType = device.subType;
    element.number = place;
    return element;
}

// The numbers of ElementState are those of the device SDK.
ElementState ChannelStateOf(const devices::DeviceStatus& status, int number)
{
    const auto& heard = status.channels;
    const bool isKnown = number >= 1 && number <= static_cast<int>(heard.size());
    if (status.state != devices::SessionState::Online || !isKnown)
        return StateOf(status.state) == ElementState::Online ? ElementState::Offline : StateOf(status.state);
    return static_cast<ElementState>(heard[static_cast<std::size_t>(number) - 1].state);
}

ElementInfo ElementOf(const protocol::DeviceChannelInfo& channel, const ElementInfo& device,
                      const devices::DeviceStatus& status)
{
    ElementInfo element;
    element.id = QString::fromStdString(channel.guid);
    element.deviceId = device.id;
    element.name = QString::fromStdString(channel.name);
    element.state = ChannelStateOf(status, channel.channelNo);
    element.problem = device.problem;
    element.typeCode = device.typeCode;
    element.subType = device.subType;
    element.number = channel.channelNo;
    return element;
}

std::vector<ElementInfo> ElementsOf(const CResources& resources, const CDeviceLinks& links)
{
    std::vector<ElementInfo> elements;
    std::map<std::string, std::pair<ElementInfo, devices::DeviceStatus>> known;
    for (const protocol::DeviceResponseData& device : resources.Devices()) {
        const devices::DeviceStatus status = links.Status(device.guid);
        elements.push_back(ElementOf(device, status, static_cast<int>(elements.size())));
        known[device.guid] = {elements.back(), status};
    }
    for (const protocol::DeviceChannelInfo& channel : resources.Channels({})) {
        const auto device = known.find(channel.deviceGuid);
        if (device != known.end())
            elements.push_back(ElementOf(channel, device->second.first, device->second.second));
    }
    return elements;
}

/// What makes the second list of the first one; a set of Reset alone where single changes cannot.
ElementChanges Difference(const std::vector<ElementInfo>& before, const std::vector<ElementInfo>& now)
{
    QHash<QID, const ElementInfo*> old;
    for (const ElementInfo& element : before)
        old.insert(element.id, &element);
    ElementChanges news;
    for (const ElementInfo& element : now) {
        const ElementInfo* was = old.take(element.id);
        if (was && was->type != element.type)
            return {{ElementChange::Kind::Reset, {}}};
        if (!was)
            news.push_back({ElementChange::Kind::Add, element});
        else if (*was != element)
            news.push_back({ElementChange::Kind::Change, element});
    }
    ElementChanges changes;
    for (auto element = before.rbegin(); element != before.rend(); ++element) // channels before their device
        if (old.contains(element->id))
            changes.push_back({ElementChange::Kind::Remove, *element});
    changes.insert(changes.end(), news.begin(), news.end());
    return changes;
}

} // namespace

CCoreElements::CCoreElements(const CResources& resources, const CDeviceLinks& devices)
    : m_resources(resources), m_devices(devices)
{
    m_now.elements = ElementsOf(resources, devices);
}

void CCoreElements::Update()
{
    std::lock_guard<std::recursive_mutex> telling(m_telling);
    std::vector<ElementInfo> elements = ElementsOf(m_resources, m_devices);
    const ElementChanges changes = Difference(m_now.elements, elements);
    if (changes.empty())
        return;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_now.elements = std::move(elements);
        ++m_now.version;
    }
    const auto observers = m_observers;
    for (IElementObserver* observer : observers)
        if (std::find(m_observers.begin(), m_observers.end(), observer) != m_observers.end())
            observer->OnElements(m_now.version, changes);
}

ElementSnapshot CCoreElements::Snapshot() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_now;
}

void CCoreElements::AddObserver(IElementObserver& observer)
{
    std::lock_guard<std::recursive_mutex> lock(m_telling);
    m_observers.push_back(&observer);
}

void CCoreElements::RemoveObserver(IElementObserver& observer)
{
    std::lock_guard<std::recursive_mutex> lock(m_telling);
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), &observer), m_observers.end());
}

} // namespace framework
