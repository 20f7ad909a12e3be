#pragma once

#include "UiDataController/Tree/ElementFeed.h"
#include "UiDataController/Tree/ElementForest.h"
#include "UiDataController/Tree/ElementSearch.h"

#include <QAbstractItemModel>
#include <QIcon>

#include <map>
#include <utility>
#include <vector>

class QMimeData;

namespace UiDataController {

/// The elements of a source as a tree, for views; ResourceRole names what rows tell. Rows below an element
/// come to be when a view asks for them (fetchMore). Changes arrive from the source's thread and are applied
/// on the GUI thread, row by row; a change set that was missed makes the model take all elements anew, and
/// what views hold on to (current row, selection, expansion) stays where the elements are still there. A
/// search hides rows in the model itself: everything is told by one change of layout. GUI thread.
class CResourceTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// The source outlives the model.
    explicit CResourceTreeModel(IElementSource& source, ResourceOrder order = ResourceOrder::ByDevice,
                                QObject* parent = nullptr);

    ResourceOrder Order() const { return m_forest.Order(); }
    void SetOrder(ResourceOrder order);

    /// Leaves only elements whose name holds the text, whatever its case and accents, with everything that
    /// they stand in and everything that stands in them. An empty text ends the search.
    void SetSearch(const QString& text);
    /// Whether that would change anything.
    bool IsOtherSearch(const QString& text) const;
    /// The text searched for, folded (see foldedText); empty without a search.
    const QString& Search() const { return m_search.Needle(); }
    /// How many elements have a name that holds the text.
    int Hits() const { return m_hits; }
    /// The rows below which there are hits, outer ones first.
    QModelIndexList ParentsOfHits() const;

    /// Of all elements, hidden ones included.
    int Count() const { return m_forest.Count(); }
    int Count(ElementType type) const { return m_forest.Count(type); }
    /// Whether there is an element of this identifier, hidden or not.
    bool Has(const QID& id) const { return m_forest.Find(id) != nullptr; }
    /// The row of an element, for which everything that it stands in is fetched. Invalid for one that is not
    /// there, that a search hides, or that this order does not show.
    QModelIndex IndexOf(const QID& id);

    /// What a drag of rows carries, and reading it: the identifiers. Nothing for data that is none of that.
    static const QString kMimeType;
    static std::vector<QID> IdsOf(const QMimeData& data);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    using QObject::parent;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

signals:
    /// The rows that a search leaves were chosen anew because elements changed.
    void SignalSearchedAgain();
    /// An element is gone, whether a row showed it or not.
    void SignalElementRemoved(const QString& id);
    /// There are more or fewer elements.
    void SignalCountChanged();

private:
    // Changes; ResourceTreeChanges.cpp.
    void TakeSnapshot();
    void TakeChanges(std::uint64_t version, const ElementChanges& changes);
    void TakeChange(const ElementChange& change);
    void Add(const ElementInfo& info);
    void Change(ElementNode* node, const ElementInfo& info);
    void Remove(ElementNode* node);
    void PutInPlace(ElementNode* node);
    void TakeOut(ElementNode* node);
    void Move(ElementNode* node);
    void RemoveAllBut(const std::vector<ElementInfo>& elements);
    void TellChanged(const ElementNode* node, const QVector<int>& roles = {});
    void Touch(const ElementNode* node);
    void EndChanges(int countBefore);

    template<typename Rearrange>
    void Relayout(const Rearrange& rearrange);
    ElementNode* NodeOf(const QModelIndex& index) const;
    QModelIndex IndexOfNode(const ElementNode* node) const;
    void FetchAbove(const ElementNode* node);
    void AppendParentsOfHits(const ElementNode* node, QModelIndexList& parents) const;
    QVariant LookOf(const ElementNode& node, int role) const;
    QString DeviceNameOf(const ElementNode& node) const;
    const QIcon& IconOf(const ElementInfo& info) const;

    IElementSource& m_source;
    CElementForest m_forest;
    CElementSearch m_search;
    int m_hits = 0;
    bool m_mustSearchAgain = false;
    QSet<QID> m_touched; ///< elements whose counts changed by the changes at hand
    std::uint64_t m_version = 0;
    mutable std::map<std::pair<ElementType, ElementState>, QIcon> m_icons; ///< made when first asked for
    CElementFeed m_feed;                                                   ///< last: it calls this
};

/// Changes what stands where. What views hold on to follows its elements.
template<typename Rearrange>
void CResourceTreeModel::Relayout(const Rearrange& rearrange)
{
    emit layoutAboutToBeChanged();
    const QModelIndexList from = persistentIndexList();
    std::vector<QID> ids;
    for (const QModelIndex& index : from)
        ids.push_back(NodeOf(index)->info.id);
    rearrange();
    QModelIndexList to;
    for (const QID& id : ids) {
        const ElementNode* node = m_forest.Find(id);
        FetchAbove(node);
        to.append(IndexOfNode(node));
    }
    changePersistentIndexList(from, to);
    emit layoutChanged();
}

} // namespace UiDataController
