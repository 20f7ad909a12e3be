#include "UiDataController/Tree/StateMark.h"

#include <QColor>
#include <QPainter>

namespace UiDataController {

using VantorGUIToolkit::Tone;

namespace {

constexpr qreal kDot = 4;
constexpr qreal kRing = 5.25;
constexpr qreal kArm = 3;

void PaintDot(QPainter& painter, const QPointF& middle, qreal radius)
{
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(middle, radius, radius);
}

void PaintRing(QPainter& painter, const QPointF& middle, qreal radius)
{
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(middle, radius, radius);
}

void PaintCross(QPainter& painter, const QPointF& middle)
{
    const QPointF down(kArm, kArm);
    const QPointF up(kArm, -kArm);
    painter.drawLine(middle - down, middle + down);
    painter.drawLine(middle - up, middle + up);
}

} // namespace

Tone stateTone(ElementState state)
{
    switch (state) {
    case ElementState::Online:
    case ElementState::Recording:
        return Tone::Ok;
    case ElementState::Offline:
        return Tone::Error;
    case ElementState::NotSupported:
        return Tone::Warn;
    case ElementState::Connecting:
        break;
    }
    return Tone::Idle;
}

void paintStateMark(QPainter& painter, const QRectF& place, ElementState state, const QColor& color)
{
    const QPointF middle = place.center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.75, Qt::SolidLine, Qt::RoundCap));
    switch (state) {
    case ElementState::Online:
        PaintDot(painter, middle, kDot);
        break;
    case ElementState::Recording:
        PaintRing(painter, middle, kRing);
        PaintDot(painter, middle, kDot - 1.5);
        break;
    case ElementState::Offline:
        PaintCross(painter, middle);
        break;
    case ElementState::NotSupported:
        painter.drawLine(middle - QPointF(kDot, 0), middle + QPointF(kDot, 0));
        break;
    case ElementState::Connecting:
        PaintRing(painter, middle, kDot);
        break;
    }
    painter.restore();
}

} // namespace UiDataController
