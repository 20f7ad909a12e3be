#pragma once

#include "UiDataController/Model/Element.h"

#include <QStyledItemDelegate>

namespace UiDataController {

class CResourceTreeView;

/// Paints a row of a resource tree: picture, name with what was searched for marked, number of channels
/// below, and at the end side the state, which has a shape of its own beside its colour.
class CResourceDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The view owns the delegate.
    explicit CResourceDelegate(CResourceTreeView& view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void PaintBackground(QPainter& painter, const QStyleOptionViewItem& option) const;
    void PaintState(QPainter& painter, const QRectF& place, const QModelIndex& index, bool isSelected) const;
    int PaintCount(QPainter& painter, const QRect& place, const QStyleOptionViewItem& option,
                   const QModelIndex& index) const;
    void PaintName(QPainter& painter, const QRect& place, const QStyleOptionViewItem& option,
                   const QModelIndex& index) const;

    CResourceTreeView& m_view;
};

} // namespace UiDataController
