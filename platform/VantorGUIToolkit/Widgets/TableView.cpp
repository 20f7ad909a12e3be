#include "VantorGUIToolkit/Widgets/TableView.h"

#include "VantorGUIToolkit/Widgets/Dress.h"
#include "VantorGUIToolkit/Widgets/EmptyState.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>

namespace VantorGUIToolkit {

CTableView::CTableView(QWidget* parent) : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideRight);
    setTabKeyNavigation(false);
    setSortingEnabled(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(Grid::Huge);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
}

void CTableView::SetEmptyState(const QString& iconName, const QString& title, const QString& sentence)
{
    delete m_empty;
    m_empty = new CEmptyState(iconName, title, sentence, viewport());
    m_empty->setGeometry(viewport()->rect());
    ShowEmptyState();
}

void CTableView::setModel(QAbstractItemModel* model)
{
    for (const QMetaObject::Connection& connection : m_watched)
        disconnect(connection);
    m_watched.clear();
    QTableView::setModel(model);
    if (model) {
        m_watched = {
            connect(model, &QAbstractItemModel::rowsInserted, this, &CTableView::ShowEmptyState),
            connect(model, &QAbstractItemModel::rowsRemoved, this, &CTableView::ShowEmptyState),
            connect(model, &QAbstractItemModel::modelReset, this, &CTableView::ShowEmptyState),
            connect(model, &QAbstractItemModel::layoutChanged, this, &CTableView::ShowEmptyState),
        };
    }
    ShowEmptyState();
}

void CTableView::ShowEmptyState()
{
    if (m_empty)
        m_empty->setVisible(!model() || model()->rowCount() == 0);
}

void CTableView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    if (m_empty)
        m_empty->setGeometry(viewport()->rect());
}

// False for a cell whose text fits, or whose model has a tool tip of its own.
bool CTableView::ShowFullText(const QPoint& position, const QPoint& global)
{
    const QModelIndex index = indexAt(position);
    if (!index.isValid() || index.data(Qt::ToolTipRole).isValid())
        return false;
    const QString text = index.data(Qt::DisplayRole).toString();
    if (sizeHintForIndex(index).width() <= visualRect(index).width())
        return false;
    QToolTip::showText(global, text.toHtmlEscaped(), viewport(), visualRect(index));
    return true;
}

bool CTableView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        if (ShowFullText(help->pos(), help->globalPos()))
            return true;
    }
    return QTableView::viewportEvent(event);
}

} // namespace VantorGUIToolkit
