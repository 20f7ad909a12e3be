#pragma once

#include <QCheckBox>
#include <QColor>
#include <QPen>

class QPainter;

namespace VantorGUIToolkit {

/// A check box for what takes effect at once, drawn as a switch in the colours of its palette: when it is on,
/// those that style sheets give a selection. Keys, signals and label are those of a check box.
class CSwitch : public QCheckBox
{
    Q_OBJECT
    /// Of the ring; style sheets set it.
    Q_PROPERTY(QColor focusColor MEMBER m_focusColor)

public:
    explicit CSwitch(const QString& text = {}, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& position) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect TrackRect() const;
    QPen TrackPen() const;
    void PaintTrack(QPainter& painter) const;
    void PaintKnob(QPainter& painter) const;

    QColor m_focusColor;
};

} // namespace VantorGUIToolkit
