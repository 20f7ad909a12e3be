#include "UiDataController/Tree/ResourceTree.h"

#include "UiDataController/Tree/ResourceTreeView.h"
#include "VantorGUIToolkit/Widgets/Dress.h"
#include "VantorGUIToolkit/Widgets/EmptyState.h"
#include "VantorGUIToolkit/Widgets/SearchEdit.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

namespace UiDataController {

using namespace VantorGUIToolkit;

CResourceTree::CResourceTree(IElementSource& source, ResourceOrder order, QWidget* parent)
    : QWidget(parent), m_model(new CResourceTreeModel(source, order, this)), m_search(new CSearchEdit(this)),
      m_view(new CResourceTreeView(this)), m_count(makeLabel({}, TextRole::Hint, this)),
      m_noElements(new CEmptyState("device", tr("No devices yet"),
                                   tr("Devices that are added appear here with their cameras."),
                                   m_view->viewport())),
      m_noHits(new CEmptyState("search", tr("Nothing found"),
                               tr("No camera, device or group has such a name."), m_view->viewport()))
{
    setObjectName("resourceTree");
    SetUpSearch();
    SetUpView();
    SetUpModel();
    SetUpLayout();
    ExpandNew({}, 0, m_model->rowCount() - 1);
    ShowCounts();
}

void CResourceTree::SetUpSearch()
{
    m_search->setObjectName("resourceSearch");
    m_search->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, this, &CResourceTree::OnSearchChanged);
    auto* find = new QShortcut(QKeySequence::Find, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, this, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
}

void CResourceTree::SetUpView()
{
    m_view->setObjectName("resourceView");
    m_view->setAccessibleName(tr("Devices and cameras"));
    m_view->setModel(m_model);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &CResourceTree::OnCurrentChanged);
    connect(m_view, &CResourceTreeView::SignalLeave, m_search, &QLineEdit::clear);
    const auto activate = [this](const QModelIndex& index) {
        emit SignalActivated(index.data(ElementIdRole).toString());
    };
    connect(m_view, &CResourceTreeView::SignalEnter, this, activate);
    connect(m_view, &QTreeView::doubleClicked, this, activate);
    connect(m_view, &QTreeView::customContextMenuRequested, this, &CResourceTree::OnMenu);
    connect(m_view, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        if (!m_isArranging && IsSearching())
            m_closed.insert(index.data(ElementIdRole).toString());
    });
    connect(m_view, &CResourceTreeView::SignalResized, this, [this] {
        m_noElements->setGeometry(m_view->viewport()->rect());
        m_noHits->setGeometry(m_view->viewport()->rect());
    });
    connect(m_noElements, &CEmptyState::SignalAction, this, &CResourceTree::SignalEmptyAction);
}

void CResourceTree::SetUpModel()
{
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &CResourceTree::ExpandNew);
    connect(m_model, &CResourceTreeModel::SignalSearchedAgain, this, &CResourceTree::OnSearchedAgain);
    connect(m_model, &CResourceTreeModel::SignalElementRemoved, this, &CResourceTree::OnElementRemoved);
    connect(m_model, &CResourceTreeModel::SignalCountChanged, this, &CResourceTree::ShowCounts);
}

void CResourceTree::SetUpLayout()
{
    m_count->setObjectName("resourceCount");
    m_count->setWordWrap(false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Grid::Small);
    column->addWidget(m_search);
    column->addWidget(m_view, 1);
    column->addWidget(m_count);
    setFocusProxy(m_view);
}

void CResourceTree::SetOrder(ResourceOrder order)
{
    m_model->SetOrder(order);
    if (IsSearching())
        ExpandHits();
    else
        ExpandNew({}, 0, m_model->rowCount() - 1);
    RestoreCurrent();
    ShowCounts();
}

bool CResourceTree::SetCurElement(const QID& id)
{
    if (m_model->Has(id) && !m_model->IndexOf(id).isValid())
        m_search->clear();
    const QModelIndex index = m_model->IndexOf(id);
    if (!index.isValid())
        return false;
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
    return true;
}

void CResourceTree::SetSearch(const QString& text)
{
    m_search->setText(text);
}

void CResourceTree::SetEmptyAction(const QString& text)
{
    m_noElements->SetAction(text);
}

// Few elements are better seen than opened one by one.
void CResourceTree::ExpandNew(const QModelIndex& parent, int first, int last)
{
    constexpr int few = 64;
    if (m_model->Count() > few || IsSearching())
        return;
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = m_model->index(row, 0, parent);
        const bool isExpanded = m_view->isExpanded(index);
        if (isExpanded || index.flags().testFlag(Qt::ItemNeverHasChildren))
            continue;
        m_view->expand(index);
        ExpandNew(index, 0, m_model->rowCount(index) - 1);
    }
}

void CResourceTree::AppendExpanded(const QModelIndex& parent, std::vector<QID>& ids) const
{
    for (int row = 0; row < m_model->rowCount(parent); ++row) {
        const QModelIndex index = m_model->index(row, 0, parent);
        if (index.flags().testFlag(Qt::ItemNeverHasChildren))
            continue;
        if (m_view->isExpanded(index))
            ids.push_back(index.data(ElementIdRole).toString());
        AppendExpanded(index, ids);
    }
}

void CResourceTree::ExpandAgain(const std::vector<QID>& ids)
{
    for (const QID& id : ids)
        if (const QModelIndex index = m_model->IndexOf(id); index.isValid())
            m_view->expand(index);
}

void CResourceTree::ExpandHits()
{
    const QScopedValueRollback<bool> arranging(m_isArranging, true);
    for (const QModelIndex& index : m_model->ParentsOfHits())
        if (m_closed.isEmpty() || !m_closed.contains(index.data(ElementIdRole).toString()))
            m_view->expand(index);
}

// Everything is collapsed first: views never forget expanded rows that a model hides without removing them.
void CResourceTree::OnSearchChanged(const QString& text)
{
    if (!m_model->IsOtherSearch(text))
        return;
    const QScopedValueRollback<bool> arranging(m_isArranging, true);
    const bool wasSearching = IsSearching();
    if (!wasSearching) {
        m_expandedBefore.clear();
        AppendExpanded({}, m_expandedBefore);
    }
    m_closed.clear();
    m_view->collapseAll();
    m_model->SetSearch(text);
    m_view->SetMarked(m_model->Search());
    if (IsSearching())
        ExpandHits();
    ExpandAgain(m_expandedBefore);
    RestoreCurrent();
    ShowCounts();
    if (IsSearching())
        m_view->verticalScrollBar()->setValue(0);
    else if (wasSearching && m_view->currentIndex().isValid())
        m_view->scrollTo(m_view->currentIndex());
}

void CResourceTree::OnSearchedAgain()
{
    ExpandHits();
    RestoreCurrent();
    ShowCounts();
}

void CResourceTree::OnCurrentChanged(const QModelIndex& index)
{
    const QID id = index.data(ElementIdRole).toString();
    emit SignalCurrentIndexChanged(index);
    if (id == m_current)
        return;
    m_current = id;
    emit SignalCurElementChanged(id);
}

// One that a row showed has lost its place as the current one already.
void CResourceTree::OnElementRemoved(const QString& id)
{
    if (id != m_current)
        return;
    m_current.clear();
    emit SignalCurElementChanged(m_current);
}

// Scrolling would expand what the current element stands in.
void CResourceTree::RestoreCurrent()
{
    const QModelIndex index = m_model->IndexOf(m_current);
    if (!index.isValid() || index == m_view->currentIndex())
        return;
    m_view->setAutoScroll(false);
    m_view->setCurrentIndex(index);
    m_view->setAutoScroll(true);
}

void CResourceTree::OnMenu(const QPoint& place)
{
    const QString id = m_view->indexAt(place).data(ElementIdRole).toString();
    emit SignalContextMenu(id, m_view->viewport()->mapToGlobal(place));
}

QModelIndex CResourceTree::FirstHit() const
{
    for (QModelIndex index = m_model->index(0, 0); index.isValid(); index = m_view->indexBelow(index))
        if (index.data(IsHitRole).toBool())
            return index;
    return {};
}

void CResourceTree::GoToTree(bool toHit)
{
    if (const QModelIndex hit = toHit ? FirstHit() : QModelIndex(); hit.isValid())
        m_view->setCurrentIndex(hit);
    else if (!m_view->currentIndex().isValid())
        m_view->setCurrentIndex(m_model->index(0, 0));
    m_view->setFocus(Qt::TabFocusReason);
}

bool CResourceTree::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_search || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (isEnter || key == Qt::Key_Down)
        GoToTree(isEnter);
    return isEnter || key == Qt::Key_Down;
}

void CResourceTree::ShowCounts()
{
    const int cameras = m_model->Count(ElementType::Channel);
    m_count->setText(IsSearching() ? tr("%Ln found", nullptr, m_model->Hits())
                                   : tr("%Ln camera(s)", nullptr, cameras));
    const bool isEmpty = !m_model->hasChildren();
    m_noElements->setVisible(isEmpty && !IsSearching());
    m_noHits->setVisible(isEmpty && IsSearching());
    m_count->setVisible(!isEmpty);
}

} // namespace UiDataController
