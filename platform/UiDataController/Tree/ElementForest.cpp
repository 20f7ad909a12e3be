#include "UiDataController/Tree/ElementForest.h"

#include <algorithm>
#include <utility>

namespace UiDataController {

namespace {

void CountChannels(ElementNode* from, int more)
{
    for (ElementNode* node = from; node; node = node->parent)
        node->channels += more;
}

int ChannelsWith(const ElementNode* node)
{
    return node->channels + (node->IsChannel() ? 1 : 0);
}

/// What holds others stands before channels, and storage servers behind.
int Rank(const ElementNode* node)
{
    switch (node->info.type) {
    case ElementType::Channel:
        return 1;
    case ElementType::StorageServer:
        return 2;
    default:
        return 0;
    }
}

} // namespace

ElementNode* CElementForest::Find(const QID& id) const
{
    const auto found = m_nodes.find(id);
    return found == m_nodes.end() ? nullptr : found->second.get();
}

ElementNode* CElementForest::Create(const ElementInfo& info)
{
    auto node = std::make_unique<ElementNode>();
    node->info = info;
    node->addition = ++m_additions;
    ++m_counts[int(info.type)];
    ElementNode* created = node.get();
    m_nodes[info.id] = std::move(node);
    return created;
}

void CElementForest::Erase(ElementNode* node)
{
    --m_counts[int(node->info.type)];
    m_nodes.erase(QID(node->info.id));
}

std::vector<ElementInfo> CElementForest::Elements() const
{
    std::vector<const ElementNode*> nodes;
    nodes.reserve(m_nodes.size());
    for (const auto& [id, node] : m_nodes)
        nodes.push_back(node.get());
    std::sort(nodes.begin(), nodes.end(), [](const ElementNode* left, const ElementNode* right) {
        return left->addition < right->addition;
    });
    std::vector<ElementInfo> elements;
    elements.reserve(nodes.size());
    for (const ElementNode* node : nodes)
        elements.push_back(node->info);
    return elements;
}

void CElementForest::Rebuild(std::vector<ElementInfo> elements, ResourceOrder order)
{
    const auto before = std::move(m_nodes);
    m_nodes.clear();
    m_nodes.reserve(elements.size());
    m_counts.clear();
    m_missed.clear();
    m_additions = 0;
    m_order = order;
    m_root = ElementNode();
    std::vector<ElementNode*> nodes;
    nodes.reserve(elements.size());
    for (const ElementInfo& info : elements) {
        if (m_nodes.count(info.id) == 0)
            nodes.push_back(Create(info));
    }
    PlaceAll(nodes);
    for (ElementNode* node : nodes) {
        const auto old = before.find(node->info.id);
        const bool wasFetched = old != before.end() && old->second->isFetched && old->second->parent;
        node->isFetched = wasFetched || node->children.empty();
    }
}

// Places are found by looking up parents only; each parent's children are sorted once, in the end.
void CElementForest::PlaceAll(const std::vector<ElementNode*>& nodes)
{
    for (ElementNode* node : nodes)
        if (ElementNode* parent = ParentOf(node))
            Insert(node, {parent, int(parent->children.size())});
    const auto before = [this](const ElementNode* left, const ElementNode* right) {
        return IsBefore(left, right);
    };
    const auto sort = [&](ElementNode& node) {
        if (!std::is_sorted(node.children.begin(), node.children.end(), before))
            std::sort(node.children.begin(), node.children.end(), before);
    };
    sort(m_root);
    for (ElementNode* node : nodes)
        sort(*node);
}

ElementNode* CElementForest::FindContainer(const QID& id)
{
    if (id.isEmpty())
        return nullptr;
    ElementNode* found = Find(id);
    if (!found)
        m_missed.insert(id);
    return found && !found->IsChannel() ? found : nullptr;
}

ElementNode* CElementForest::ParentOf(const ElementNode* node)
{
    const ElementType type = node->info.type;
    if (type == ElementType::StorageServer)
        return &m_root;
    if (m_order == ResourceOrder::ByDevice) {
        if (type == ElementType::Channel)
            return FindContainer(node->info.deviceId);
        return type == ElementType::Device ? &m_root : nullptr;
    }
    if (type == ElementType::Device)
        return nullptr;
    ElementNode* group = FindContainer(node->info.groupId);
    if (!group || group->info.type != ElementType::Group)
        return &m_root;
    // Groups that stand in each other in a circle would be seen nowhere.
    for (const ElementNode* above = group; above; above = above->parent)
        if (above == node)
            return &m_root;
    return group;
}

std::uint64_t CElementForest::OrderOfDevice(const ElementNode* channel) const
{
    const ElementNode* device = Find(channel->info.deviceId);
    return device ? device->addition : 0;
}

bool CElementForest::IsBefore(const ElementNode* left, const ElementNode* right) const
{
    if (Rank(left) != Rank(right))
        return Rank(left) < Rank(right);
    if (left->IsChannel() && left->info.deviceId != right->info.deviceId)
        return std::make_pair(OrderOfDevice(left), left->info.deviceId) <
               std::make_pair(OrderOfDevice(right), right->info.deviceId);
    if (left->IsChannel() && left->info.number != right->info.number)
        return left->info.number < right->info.number;
    return left->addition < right->addition;
}

CElementForest::Place CElementForest::PlaceOf(const ElementNode* node)
{
    ElementNode* parent = ParentOf(node);
    if (!parent)
        return {};
    const auto& children = parent->children;
    const auto before = [this](const ElementNode* left, const ElementNode* right) {
        return IsBefore(left, right);
    };
    // The node itself may stand at a place that is no longer its own, where no binary search gets by.
    int at = 0;
    if (node->parent != parent) {
        at = int(std::lower_bound(children.begin(), children.end(), node, before) - children.begin());
    } else {
        for (const ElementNode* child : children)
            at += child != node && IsBefore(child, node) ? 1 : 0;
    }
    return {parent, at};
}

std::vector<ElementNode*> CElementForest::WaitingFor(const ElementNode* node)
{
    std::vector<ElementNode*> waiting;
    if (!m_missed.remove(node->info.id))
        return waiting;
    for (const auto& [id, other] : m_nodes) {
        const bool belongs = other->info.deviceId == node->info.id || other->info.groupId == node->info.id;
        if (belongs && other.get() != node && other->parent != node && ParentOf(other.get()) == node)
            waiting.push_back(other.get());
    }
    std::sort(waiting.begin(), waiting.end(), [](const ElementNode* left, const ElementNode* right) {
        return left->addition < right->addition;
    });
    return waiting;
}

void CElementForest::Insert(ElementNode* node, const Place& place)
{
    auto& children = place.parent->children;
    children.insert(children.begin() + place.at, node);
    node->parent = place.parent;
    CountChannels(place.parent, ChannelsWith(node));
}

void CElementForest::Take(ElementNode* node)
{
    auto& children = node->parent->children;
    const bool atItsRow =
        node->row >= 0 && node->row < int(children.size()) && children[std::size_t(node->row)] == node;
    children.erase(atItsRow ? children.begin() + node->row
                            : std::find(children.begin(), children.end(), node));
    CountChannels(node->parent, -ChannelsWith(node));
    node->parent = nullptr;
    node->row = -1;
}

} // namespace UiDataController
