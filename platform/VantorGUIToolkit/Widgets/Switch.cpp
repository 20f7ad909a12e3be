#include "VantorGUIToolkit/Widgets/Switch.h"

#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QPainter>
#include <QStyle>

namespace VantorGUIToolkit {

namespace {

constexpr QSize kTrack(36, 20);
constexpr int kKnobGap = 4;
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

void CSwitch::PaintFocus(QPainter& painter) const
{
    const QRectF ring = QRectF(TrackRect()).adjusted(-1, -1, 1, 1);
    painter.setPen(QPen(palette().windowText(), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(ring, ring.height() / 2, ring.height() / 2);
}

void CSwitch::PaintTrack(QPainter& painter) const
{
    const QRectF track = QRectF(TrackRect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(palette().color(isChecked() ? QPalette::Highlight : QPalette::Dark));
    painter.setBrush(palette().color(isChecked() ? QPalette::Highlight : QPalette::Base));
    painter.drawRoundedRect(track, track.height() / 2, track.height() / 2);
}

void CSwitch::PaintKnob(QPainter& painter) const
{
    const QRectF track = TrackRect();
    const qreal side = track.height() - 2 * kKnobGap;
    const bool atRight = isChecked() != (layoutDirection() == Qt::RightToLeft);
    const qreal left = atRight ? track.right() - kKnobGap - side : track.left() + kKnobGap;
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(isChecked() ? QPalette::HighlightedText : QPalette::PlaceholderText));
    painter.drawEllipse(QRectF(left, track.top() + kKnobGap, side, side));
}

void CSwitch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintTrack(painter);
    PaintKnob(painter);
    if (hasFocus())
        PaintFocus(painter);
    const int before = kTrack.width() + Grid::Tight + Grid::Small;
    const QRect place = rect().adjusted(before, 0, 0, 0);
    style()->drawItemText(&painter, QStyle::visualRect(layoutDirection(), rect(), place),
                          QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter) |
                              Qt::TextShowMnemonic,
                          palette(), isEnabled(), text(), foregroundRole());
}

} // namespace VantorGUIToolkit
