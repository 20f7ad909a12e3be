#include "UiDataController/Tree/ResourceTreeView.h"

#include "UiDataController/Tree/ResourceDelegate.h"

#include <QKeyEvent>

namespace UiDataController {

CResourceTreeView::CResourceTreeView(QWidget* parent) : QTreeView(parent)
{
    setItemDelegate(new CResourceDelegate(*this));
    setUniformRowHeights(true);
    setHeaderHidden(true);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setTextElideMode(Qt::ElideRight);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setExpandsOnDoubleClick(true);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setTabKeyNavigation(false);
}

void CResourceTreeView::SetMarked(const QString& folded)
{
    m_marked = folded;
    viewport()->update();
}

void CResourceTreeView::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        emit SignalLeave();
    else if (isEnter && currentIndex().isValid())
        emit SignalEnter(currentIndex());
    else
        QTreeView::keyPressEvent(event);
}

void CResourceTreeView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    emit SignalResized();
}

} // namespace UiDataController
