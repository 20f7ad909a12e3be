#include "VantorGUIToolkit/Widgets/Switch.h"

#include "VantorGUIToolkit/WidgetManners.h"
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
    return {kTrack.width() + labelWidth, qMax(kHeight, label.height())};
}

bool CSwitch::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

QRect CSwitch::TrackRect() const
{
    const QRect place(QPoint(0, (height() - kTrack.height()) / 2), kTrack);
    return QStyle::visualRect(layoutDirection(), rect(), place);
}

QPen CSwitch::TrackPen() const
{
    if (CWidgetManners::ShowsFocus(this))
        return QPen(m_focusColor.isValid() ? m_focusColor : palette().color(QPalette::WindowText), 2);
    return QPen(palette().color(isChecked() ? QPalette::Highlight : QPalette::Dark), 1);
}

void CSwitch::PaintTrack(QPainter& painter) const
{
    const QPen pen = TrackPen();
    const qreal inside = pen.widthF() / 2;
    const QRectF track = QRectF(TrackRect()).adjusted(inside, inside, -inside, -inside);
    painter.setPen(pen);
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
    const int before = kTrack.width() + Grid::Small;
    const QRect place = rect().adjusted(before, 0, 0, 0);
    style()->drawItemText(&painter, QStyle::visualRect(layoutDirection(), rect(), place),
                          QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter) |
                              Qt::TextShowMnemonic,
                          palette(), isEnabled(), text(), foregroundRole());
}

} // namespace VantorGUIToolkit
