#include "UiDataController/Tree/ResourceDelegate.h"

#include "UiDataController/Tree/ElementTexts.h"
#include "UiDataController/Tree/FoldedText.h"
#include "UiDataController/Tree/ResourceTreeView.h"
#include "UiDataController/Tree/Roles.h"
#include "UiDataController/Tree/StateMark.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QLocale>
#include <QPainter>
#include <QTextLayout>

namespace UiDataController {

namespace Grid = VantorGUIToolkit::Grid;

namespace {

constexpr int kIcon = 20;
constexpr int kMark = Grid::Medium;

ElementState StateOf(const QModelIndex& index)
{
    return ElementState(index.data(ElementStateRole).toInt());
}

bool IsGroup(const QModelIndex& index)
{
    return index.data(ElementTypeRole).toInt() == int(ElementType::Group);
}

bool IsAway(const QModelIndex& index)
{
    return !IsGroup(index) && !isReachable(StateOf(index));
}

bool IsSelected(const QStyleOptionViewItem& option)
{
    return option.state.testFlag(QStyle::State_Selected);
}

/// The part of a row between start and end, of a given width from one of these.
QRect AtStart(const QStyleOptionViewItem& option, const QRect& rest, int width)
{
    return QStyle::visualRect(option.direction, rest, {rest.left(), rest.top(), width, rest.height()});
}

QRect AtEnd(const QStyleOptionViewItem& option, const QRect& rest, int width)
{
    const QRect place(rest.right() + 1 - width, rest.top(), width, rest.height());
    return QStyle::visualRect(option.direction, rest, place);
}

QRect Without(const QStyleOptionViewItem& option, const QRect& rest, int atStart, int atEnd)
{
    return QStyle::visualRect(option.direction, rest, rest.adjusted(atStart, 0, -atEnd, 0));
}

void DrawLine(QPainter& painter, const QRect& place, const QStyleOptionViewItem& option, const QString& text,
              const QVector<QTextLayout::FormatRange>& formats)
{
    QTextLayout layout(text, option.font, painter.device());
    QTextOption how;
    how.setWrapMode(QTextOption::NoWrap);
    how.setTextDirection(Qt::LayoutDirectionAuto);
    how.setAlignment(option.direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft);
    layout.setTextOption(how);
    layout.setFormats(formats);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(place.width());
    layout.endLayout();
    // A text without an alignment of its own begins where it is read from; here all begin at the row's start.
    const qreal spare = place.width() - line.naturalTextWidth();
    const qreal x = option.direction == Qt::RightToLeft ? place.left() + spare : place.left();
    const qreal y = place.top() + (place.height() - line.height()) / 2;
    layout.draw(&painter, QPointF(x - line.naturalTextRect().left(), y));
}

} // namespace

CResourceDelegate::CResourceDelegate(CResourceTreeView& view) : QStyledItemDelegate(&view), m_view(view) {}

QSize CResourceDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {option.rect.width(), Grid::Huge};
}

void CResourceDelegate::PaintBackground(QPainter& painter, const QStyleOptionViewItem& option) const
{
    QStyle* style = m_view.style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, &painter, &m_view);
    const QStyle::State focus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    if ((option.state & focus) != focus)
        return;
    QStyleOptionFocusRect ring;
    static_cast<QStyleOption&>(ring) = option;
    ring.state |= QStyle::State_Item;
    style->drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, &m_view);
}

void CResourceDelegate::PaintState(QPainter& painter, const QRectF& place, const QModelIndex& index,
                                   bool isSelected) const
{
    if (IsGroup(index))
        return;
    const VantorGUIToolkit::Tone tone = stateTone(StateOf(index));
    QColor color = m_view.IdleColor();
    if (tone == VantorGUIToolkit::Tone::Ok)
        color = m_view.OkColor();
    else if (tone == VantorGUIToolkit::Tone::Error)
        color = m_view.ErrorColor();
    else if (tone == VantorGUIToolkit::Tone::Warn)
        color = m_view.WarnColor();
    else if (isSelected)
        color = m_view.palette().color(QPalette::HighlightedText);
    paintStateMark(painter, place, StateOf(index), color);
}

// Gives the width that it took.
int CResourceDelegate::PaintCount(QPainter& painter, const QRect& place, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const
{
    const int channels = index.data(ChannelsRole).toInt();
    if (channels == 0)
        return 0;
    const QString text = QLocale().toString(channels);
    const int width = option.fontMetrics.horizontalAdvance(text);
    painter.setPen(IsSelected(option) ? option.palette.color(QPalette::HighlightedText) : m_view.IdleColor());
    painter.drawText(AtEnd(option, place, width), Qt::AlignCenter, text);
    return width + Grid::Small;
}

void CResourceDelegate::PaintName(QPainter& painter, const QRect& place, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const
{
    const QString name = index.data().toString();
    const QString shown = option.fontMetrics.elidedText(name, Qt::ElideRight, place.width());
    QVector<QTextLayout::FormatRange> formats;
    const TextRange hit = index.data(IsHitRole).toBool() ? findFolded(name, m_view.Marked()) : TextRange();
    if (hit.length > 0 && hit.start < shown.size()) {
        QTextCharFormat mark;
        mark.setBackground(m_view.HitColor());
        mark.setForeground(m_view.HitTextColor());
        mark.setFontWeight(QFont::DemiBold);
        formats.append({hit.start, std::min(hit.length, shown.size() - hit.start), mark});
    }
    const bool isFaint = IsAway(index) && !IsSelected(option);
    const QPalette::ColorRole role = IsSelected(option) ? QPalette::HighlightedText : QPalette::Text;
    painter.setPen(isFaint ? m_view.IdleColor() : option.palette.color(role));
    DrawLine(painter, place, option, shown, formats);
}

void CResourceDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    painter->save();
    PaintBackground(*painter, option);
    QRect rest = option.rect.adjusted(Grid::Tight, 0, -Grid::Medium, 0);
    rest = QStyle::visualRect(option.direction, option.rect, rest);
    const QRect icon = AtStart(option, rest, kIcon);
    const auto mode = IsSelected(option) ? QIcon::Selected : QIcon::Normal;
    qvariant_cast<QIcon>(index.data(Qt::DecorationRole)).paint(painter, icon, Qt::AlignCenter, mode);
    const QRect mark = AtEnd(option, rest, kMark);
    PaintState(*painter, mark, index, IsSelected(option));
    rest = Without(option, rest, kIcon + Grid::Small, kMark + Grid::Medium);
    const int taken = PaintCount(*painter, rest, option, index);
    PaintName(*painter, Without(option, rest, 0, taken), option, index);
    painter->restore();
}

} // namespace UiDataController
