#include "VantorGUIToolkit/Widgets/Switch.h"

#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QPainter>
#include <QStyle>

namespace VantorGUIToolkit {

namespace {

constexpr QSize kTrack(36, 20);
constexpr int kKnobGap = 3;
constexpr int kHeight = Grid::Wide;

} // namespace

CSwitch::CSwitch(const QString& text, QWidget* parent) : QCheckBox(text, parent)
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

QSize CSwitch::sizeHint() const
{
    const QSize label = fontMetrics().size(Qt::TextShowMnemonic, text());
    const int labelWidth = text().isEmpty() ? 0 : Grid::Small + label.width();
    return {kTrack.width() + Grid::Tight + labelWidth, qMax(kHeight, label.height())};
}

bool CSwitch::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

QRect CSwitch::TrackRect() const
{
    const QRect place(QPoint(2, (height() - kTrack.height()) / 2), kTrack);
    return QStyle::visualRect(layoutDirection(), rect(), place);
}

void CSwitch::PaintTrack(QPainter& painter) const
{
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QRectF track = TrackRect();
    const qreal round = track.height() / 2;
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(group, QPalette::WindowText), 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(track.adjusted(-1.5, -1.5, 1.5, 1.5), round + 1.5, round + 1.5);
    }
    painter.setPen(Qt::NoPen);
    const QColor off = palette().color(group, QPalette::Dark);
    painter.setBrush(isChecked() ? palette().color(group, QPalette::Highlight) : off);
    painter.drawRoundedRect(track, round, round);
    const qreal side = track.height() - 2 * kKnobGap;
    const bool atEnd = isChecked() != (layoutDirection() == Qt::RightToLeft);
    const qreal left = atEnd ? track.right() - kKnobGap - side : track.left() + kKnobGap;
    painter.setBrush(palette().color(group, isChecked() ? QPalette::HighlightedText : QPalette::Base));
    painter.drawEllipse(QRectF(left, track.top() + kKnobGap, side, side));
}

void CSwitch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintTrack(painter);
    const int before = kTrack.width() + Grid::Tight + Grid::Small;
    const QRect place = rect().adjusted(before, 0, 0, 0);
    style()->drawItemText(&painter, QStyle::visualRect(layoutDirection(), rect(), place),
                          QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter) |
                              Qt::TextShowMnemonic,
                          palette(), isEnabled(), text(), foregroundRole());
}

} // namespace VantorGUIToolkit
