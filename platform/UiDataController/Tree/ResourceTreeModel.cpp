#include "UiDataController/Tree/ResourceTreeModel.h"

#include "UiDataController/Tree/ElementTexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QMimeData>

namespace UiDataController {

const QString CResourceTreeModel::kMimeType = QStringLiteral("application/x-vantor-elements+json");

CResourceTreeModel::CResourceTreeModel(IElementSource& source, ResourceOrder order, QObject* parent)
    : QAbstractItemModel(parent), m_source(source),
      m_feed(source, this,
             [this](std::uint64_t version, const ElementChanges& changes) { TakeChanges(version, changes); })
{
    m_forest.Rebuild({}, order);
    TakeSnapshot();
}

void CResourceTreeModel::SetOrder(ResourceOrder order)
{
    if (order == Order())
        return;
    Relayout([&] {
        m_forest.Rebuild(m_forest.Elements(), order);
        m_hits = m_search.Run(m_forest.Root());
    });
}

bool CResourceTreeModel::IsOtherSearch(const QString& text) const
{
    CElementSearch search;
    search.SetText(text);
    return search.Needle() != Search();
}

void CResourceTreeModel::SetSearch(const QString& text)
{
    if (!IsOtherSearch(text))
        return;
    Relayout([&] {
        m_search.SetText(text);
        m_hits = m_search.Run(m_forest.Root());
    });
}

void CResourceTreeModel::AppendParentsOfHits(const ElementNode* node, QModelIndexList& parents) const
{
    for (const ElementNode* row : m_search.Rows(node)) {
        if (!row->leadsToHit)
            continue;
        parents.append(IndexOfNode(row));
        AppendParentsOfHits(row, parents);
    }
}

QModelIndexList CResourceTreeModel::ParentsOfHits() const
{
    QModelIndexList parents;
    AppendParentsOfHits(m_forest.Root(), parents);
    return parents;
}

ElementNode* CResourceTreeModel::NodeOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<ElementNode*>(index.internalPointer())
                           : const_cast<ElementNode*>(m_forest.Root());
}

QModelIndex CResourceTreeModel::IndexOfNode(const ElementNode* node) const
{
    const bool isRow = node && node->parent && node->row >= 0;
    return isRow ? createIndex(node->row, 0, const_cast<ElementNode*>(node)) : QModelIndex();
}

void CResourceTreeModel::FetchAbove(const ElementNode* node)
{
    for (ElementNode* above = node ? node->parent : nullptr; above; above = above->parent)
        above->isFetched = true;
}

QModelIndex CResourceTreeModel::IndexOf(const QID& id)
{
    const ElementNode* node = m_forest.Find(id);
    std::vector<const ElementNode*> path;
    for (const ElementNode* above = node; above && above != m_forest.Root(); above = above->parent)
        path.push_back(above);
    const bool isThere =
        !path.empty() && path.back()->parent &&
        std::all_of(path.begin(), path.end(), [](const auto* step) { return step->row >= 0; });
    if (!isThere)
        return {};
    for (auto above = path.rbegin(); *above != node; ++above)
        if (const QModelIndex index = IndexOfNode(*above); canFetchMore(index))
            fetchMore(index);
    return IndexOfNode(node);
}

QModelIndex CResourceTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column != 0 || parent.column() > 0 || row >= rowCount(parent))
        return {};
    return createIndex(row, 0, m_search.Rows(NodeOf(parent))[std::size_t(row)]);
}

QModelIndex CResourceTreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? IndexOfNode(NodeOf(child)->parent) : QModelIndex();
}

int CResourceTreeModel::rowCount(const QModelIndex& parent) const
{
    const ElementNode* node = NodeOf(parent);
    return parent.column() <= 0 && node->isFetched ? int(m_search.Rows(node).size()) : 0;
}

int CResourceTreeModel::columnCount(const QModelIndex&) const
{
    return 1;
}

bool CResourceTreeModel::hasChildren(const QModelIndex& parent) const
{
    return parent.column() <= 0 && !m_search.Rows(NodeOf(parent)).empty();
}

bool CResourceTreeModel::canFetchMore(const QModelIndex& parent) const
{
    return !NodeOf(parent)->isFetched && hasChildren(parent);
}

void CResourceTreeModel::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent))
        return;
    ElementNode* node = NodeOf(parent);
    beginInsertRows(parent, 0, int(m_search.Rows(node).size()) - 1);
    node->isFetched = true;
    endInsertRows();
}

Qt::ItemFlags CResourceTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
    return NodeOf(index)->IsChannel() ? flags | Qt::ItemNeverHasChildren : flags;
}

const QIcon& CResourceTreeModel::IconOf(const ElementInfo& info) const
{
    const auto key = std::make_pair(info.type, info.state);
    const auto known = m_icons.find(key);
    return known != m_icons.end() ? known->second : m_icons[key] = elementIcon(info.type, info.state);
}

QString CResourceTreeModel::DeviceNameOf(const ElementNode& node) const
{
    const ElementNode* device = node.IsChannel() ? m_forest.Find(node.info.deviceId) : nullptr;
    return device ? device->info.name : QString();
}

QVariant CResourceTreeModel::LookOf(const ElementNode& node, int role) const
{
    const ElementInfo& info = node.info;
    switch (role) {
    case Qt::DisplayRole:
        return info.name;
    case Qt::DecorationRole:
        return IconOf(info);
    case Qt::ToolTipRole:
        return elementToolTip(info, DeviceNameOf(node));
    case Qt::AccessibleTextRole:
        return info.type == ElementType::Group ? info.name : info.name + ", " + stateText(info.state);
    default:
        return {};
    }
}

QVariant CResourceTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const ElementNode& node = *NodeOf(index);
    switch (role) {
    case ElementIdRole:
        return node.info.id;
    case IsChannelRole:
        return node.IsChannel();
    case IsServerRole:
        return node.info.type == ElementType::StorageServer;
    case ElementTypeRole:
        return int(node.info.type);
    case ElementStateRole:
        return int(node.info.state);
    case ProblemRole:
        return node.info.problem;
    case ChannelsRole:
        return node.channels;
    case IsHitRole:
        return node.isHit;
    case DeviceIdRole:
        return node.info.deviceId;
    default:
        return LookOf(node, role);
    }
}

QStringList CResourceTreeModel::mimeTypes() const
{
    return {kMimeType};
}

QMimeData* CResourceTreeModel::mimeData(const QModelIndexList& indexes) const
{
    QJsonArray ids;
    for (const QModelIndex& index : indexes)
        ids.append(index.data(ElementIdRole).toString());
    auto* data = new QMimeData;
    data->setData(kMimeType, QJsonDocument(ids).toJson(QJsonDocument::Compact));
    return data;
}

std::vector<QID> CResourceTreeModel::IdsOf(const QMimeData& data)
{
    std::vector<QID> ids;
    for (const QJsonValue& id : QJsonDocument::fromJson(data.data(kMimeType)).array())
        if (id.isString())
            ids.push_back(id.toString());
    return ids;
}

} // namespace UiDataController
