#pragma once

#include "UiDataController/Tree/ResourceTreeModel.h"

#include <QPersistentModelIndex>
#include <QSet>
#include <QWidget>

class QLabel;

namespace VantorGUIToolkit {
class CEmptyState;
class CSearchEdit;
} // namespace VantorGUIToolkit

namespace UiDataController {

class CResourceTreeView;

/// The resource tree of a page: a search field, the tree, and a line that counts. The current element
/// outlasts searches: one that a search hides stays current until another is chosen. What was expanded before
/// a search is expanded again behind it. Ctrl+F goes to the search field, Down and Enter from there to the
/// tree, Escape ends the search. GUI thread.
class CResourceTree : public QWidget
{
    Q_OBJECT

public:
    /// The source outlives the widget.
    explicit CResourceTree(IElementSource& source, ResourceOrder order = ResourceOrder::ByDevice,
                           QWidget* parent = nullptr);

    CResourceTreeModel* Model() const { return m_model; }
    CResourceTreeView* View() const { return m_view; }

    /// By devices or by groups. What is current, selected or expanded stays so where it is in both.
    void SetOrder(ResourceOrder order);

    /// Empty when there is none.
    const QID& CurElement() const { return m_current; }
    /// Makes an element current and shows it, ending a search that hides it. False when the tree has no such
    /// element.
    bool SetCurElement(const QID& id);

    void SetSearch(const QString& text);

    /// A button where the tree is empty ("Add device"); an empty text takes it away.
    void SetEmptyAction(const QString& text);

signals:
    void SignalCurElementChanged(UiDataController::QID id);
    void SignalCurrentIndexChanged(const QModelIndex& index);
    /// A double click on an element, or Enter.
    void SignalActivated(const QString& id);
    /// A menu is asked for, by mouse or key; id is empty beside the rows. The place is that of the screen.
    void SignalContextMenu(const QString& id, const QPoint& place);
    /// The button where the tree is empty.
    void SignalEmptyAction();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetUpSearch();
    void SetUpView();
    void SetUpModel();
    void SetUpLayout();
    bool IsSearching() const { return !m_model->Search().isEmpty(); }

    void OnSearchChanged(const QString& text);
    void OnSearchedAgain();
    void OnCurrentChanged(const QModelIndex& index);
    void OnElementRemoved(const QString& id);
    void OnMenu(const QPoint& place);
    void ExpandNew(const QModelIndex& parent, int first, int last);
    void ExpandHits();
    void AppendExpanded(const QModelIndex& parent, std::vector<QID>& ids) const;
    void ExpandAgain(const std::vector<QID>& ids);
    void RestoreCurrent();
    void GoToTree(bool toHit);
    QModelIndex FirstHit() const;
    void ShowCounts();

    CResourceTreeModel* m_model;
    VantorGUIToolkit::CSearchEdit* m_search;
    CResourceTreeView* m_view;
    QLabel* m_count;
    VantorGUIToolkit::CEmptyState* m_noElements;
    VantorGUIToolkit::CEmptyState* m_noHits;
    QID m_current;
    std::vector<QID> m_expandedBefore; ///< the search that is on
    QSet<QID> m_closed;                ///< by the user since the text of the search changed
    bool m_isArranging = false;        ///< expands and collapses by itself, not by the user
};

} // namespace UiDataController
