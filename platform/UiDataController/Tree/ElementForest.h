#pragma once

#include "UiDataController/Tree/ElementNode.h"
#include "UiDataController/Tree/Roles.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <unordered_map>

namespace UiDataController {

/// The elements of a resource tree by identifier, and the order in which they stand below each other. Knows
/// of no views: the model tells these what changes. One thread.
class CElementForest
{
public:
    /// Where an element stands: before which of the children of its parent. No parent for one that is not
    /// shown.
    struct Place
    {
        ElementNode* parent = nullptr;
        int at = 0;
    };

    ResourceOrder Order() const { return m_order; }
    ElementNode* Root() { return &m_root; }
    const ElementNode* Root() const { return &m_root; }
    /// Null when there is none.
    ElementNode* Find(const QID& id) const;
    int Count() const { return int(m_nodes.size()); }
    int Count(ElementType type) const { return m_counts.value(int(type)); }

    /// Takes these elements in the place of all others, in another order if so wanted. Rows of elements that
    /// were there before stay fetched.
    void Rebuild(std::vector<ElementInfo> elements, ResourceOrder order);
    std::vector<ElementInfo> Elements() const;

    /// A new element, which stands nowhere yet.
    ElementNode* Create(const ElementInfo& info);
    /// Forgets an element that stands nowhere and has nothing below it.
    void Erase(ElementNode* node);

    /// Where an element belongs now, that element itself left aside.
    Place PlaceOf(const ElementNode* node);
    /// Elements that stand elsewhere, or nowhere, but belong below this one, which has just come.
    std::vector<ElementNode*> WaitingFor(const ElementNode* node);

    /// Puts an element to its place and takes it out again. Rows are not counted anew.
    void Insert(ElementNode* node, const Place& place);
    void Take(ElementNode* node);

private:
    ElementNode* ParentOf(const ElementNode* node);
    ElementNode* FindContainer(const QID& id);
    bool IsBefore(const ElementNode* left, const ElementNode* right) const;
    std::uint64_t OrderOfDevice(const ElementNode* channel) const;
    void PlaceAll(const std::vector<ElementNode*>& nodes);

    ResourceOrder m_order = ResourceOrder::ByDevice;
    ElementNode m_root;
    struct HashOfId
    {
        std::size_t operator()(const QID& id) const { return qHash(id); }
    };
    std::unordered_map<QID, std::unique_ptr<ElementNode>, HashOfId> m_nodes;
    QHash<int, int> m_counts; ///< by type
    QSet<QID> m_missed;       ///< identifiers that elements belong below and that were not there
    std::uint64_t m_additions = 0;
};

} // namespace UiDataController
