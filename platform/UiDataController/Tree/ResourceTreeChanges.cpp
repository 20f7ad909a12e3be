// How the model follows its source.

#include "UiDataController/Tree/ResourceTreeModel.h"

#include <algorithm>

namespace UiDataController {

namespace {

/// While a search is on, each element that moves makes it run again; with more changes than this, once for
/// all of them is quicker.
constexpr std::size_t kManyChanges = 64;

bool MayMove(const ElementInfo& before, const ElementInfo& now)
{
    return before.deviceId != now.deviceId || before.groupId != now.groupId || before.number != now.number;
}

} // namespace

void CResourceTreeModel::TakeSnapshot()
{
    ElementSnapshot snapshot = m_source.Snapshot();
    m_version = snapshot.version;
    RemoveAllBut(snapshot.elements);
    Relayout([&] {
        m_forest.Rebuild(std::move(snapshot.elements), Order());
        m_hits = m_search.Run(m_forest.Root());
    });
    m_mustSearchAgain = false;
    m_touched.clear();
    if (m_search.IsOn())
        emit SignalSearchedAgain();
    emit SignalCountChanged();
}

void CResourceTreeModel::RemoveAllBut(const std::vector<ElementInfo>& elements)
{
    QSet<QID> staying;
    staying.reserve(int(elements.size()));
    for (const ElementInfo& info : elements)
        staying.insert(info.id);
    std::vector<ElementInfo> gone;
    for (ElementInfo& info : m_forest.Elements())
        if (!staying.contains(info.id))
            gone.push_back(std::move(info));
    // Channels were added after what they stand in, and groups after those above them.
    for (auto info = gone.rbegin(); info != gone.rend(); ++info)
        Remove(m_forest.Find(info->id));
}

void CResourceTreeModel::TakeChanges(std::uint64_t version, const ElementChanges& changes)
{
    if (version <= m_version)
        return;
    const bool hasReset = std::any_of(changes.begin(), changes.end(), [](const ElementChange& change) {
        return change.kind == ElementChange::Kind::Reset;
    });
    const bool isTooMuch = m_search.IsOn() && changes.size() > kManyChanges;
    if (version != m_version + 1 || hasReset || isTooMuch)
        return TakeSnapshot();
    m_version = version;
    const int count = m_forest.Count();
    for (const ElementChange& change : changes)
        TakeChange(change);
    EndChanges(count);
}

void CResourceTreeModel::TakeChange(const ElementChange& change)
{
    ElementNode* node = m_forest.Find(change.element.id);
    if (node && (change.kind == ElementChange::Kind::Remove || node->info.type != change.element.type)) {
        Remove(node);
        node = nullptr;
    }
    if (change.kind == ElementChange::Kind::Remove)
        return;
    if (node)
        Change(node, change.element);
    else
        Add(change.element);
}

void CResourceTreeModel::EndChanges(int countBefore)
{
    if (m_mustSearchAgain)
        Relayout([this] { m_hits = m_search.Run(m_forest.Root()); });
    for (const QID& id : std::exchange(m_touched, {}))
        if (const ElementNode* node = m_forest.Find(id))
            TellChanged(node, {ChannelsRole});
    if (std::exchange(m_mustSearchAgain, false))
        emit SignalSearchedAgain();
    if (countBefore != m_forest.Count())
        emit SignalCountChanged();
}

void CResourceTreeModel::TellChanged(const ElementNode* node, const QVector<int>& roles)
{
    const QModelIndex index = IndexOfNode(node);
    if (index.isValid() && node->parent->isFetched)
        emit dataChanged(index, index, roles);
}

void CResourceTreeModel::Touch(const ElementNode* node)
{
    for (const ElementNode* above = node->parent; above && above->parent; above = above->parent)
        m_touched.insert(above->info.id);
}

void CResourceTreeModel::Add(const ElementInfo& info)
{
    ElementNode* node = m_forest.Create(info);
    PutInPlace(node);
    if (!node->IsChannel())
        for (ElementNode* waiting : m_forest.WaitingFor(node))
            waiting->parent ? Move(waiting) : PutInPlace(waiting);
}

void CResourceTreeModel::Change(ElementNode* node, const ElementInfo& info)
{
    const ElementInfo before = std::exchange(node->info, info);
    if (before.name != info.name) {
        node->folded = QString();
        m_mustSearchAgain = m_mustSearchAgain || m_search.IsOn();
    }
    if (MayMove(before, info))
        node->parent ? Move(node) : PutInPlace(node);
    TellChanged(node);
}

void CResourceTreeModel::Remove(ElementNode* node)
{
    const std::vector<ElementNode*> left = node->children;
    for (auto child = left.rbegin(); child != left.rend(); ++child)
        TakeOut(*child);
    if (node->parent)
        TakeOut(node);
    const QID id = node->info.id;
    m_forest.Erase(node);
    for (ElementNode* child : left)
        PutInPlace(child);
    emit SignalElementRemoved(id);
}

// While a search is on, rows come with its next run.
void CResourceTreeModel::PutInPlace(ElementNode* node)
{
    const CElementForest::Place place = m_forest.PlaceOf(node);
    if (!place.parent)
        return;
    const bool isTold = place.parent->isFetched && !m_search.IsOn();
    if (isTold)
        beginInsertRows(IndexOfNode(place.parent), place.at, place.at);
    m_forest.Insert(node, place);
    if (!m_search.IsOn())
        m_search.Number(place.parent, place.at);
    if (isTold)
        endInsertRows();
    m_mustSearchAgain = m_search.IsOn();
    Touch(node);
}

void CResourceTreeModel::TakeOut(ElementNode* node)
{
    ElementNode* parent = node->parent;
    const int row = node->row;
    Touch(node);
    // A view was told that there is something to fetch, and now there would be nothing.
    if (row >= 0 && m_search.Rows(parent).size() == 1)
        fetchMore(IndexOfNode(parent));
    const bool isTold = row >= 0 && parent->isFetched;
    if (isTold)
        beginRemoveRows(IndexOfNode(parent), row, row);
    if (m_search.IsOn())
        m_search.Hide(node);
    m_forest.Take(node);
    if (!m_search.IsOn())
        m_search.Number(parent, row);
    if (isTold)
        endRemoveRows();
    parent->isFetched = parent->isFetched || parent->children.empty();
    m_mustSearchAgain = m_search.IsOn();
}

void CResourceTreeModel::Move(ElementNode* node)
{
    const CElementForest::Place place = m_forest.PlaceOf(node);
    if (!place.parent)
        return TakeOut(node);
    ElementNode* parent = node->parent;
    if (place.parent == parent && parent->children.at(std::size_t(place.at)) == node)
        return;
    Touch(node);
    Relayout([&] {
        m_forest.Take(node);
        m_forest.Insert(node, place);
        parent->isFetched = parent->isFetched || parent->children.empty();
        m_search.IsOn() ? void(m_hits = m_search.Run(m_forest.Root())) : m_search.Number(parent);
        if (!m_search.IsOn())
            m_search.Number(place.parent);
    });
    m_mustSearchAgain = m_search.IsOn();
    Touch(node);
}

} // namespace UiDataController
