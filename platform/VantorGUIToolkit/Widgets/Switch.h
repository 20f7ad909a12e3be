#pragma once

#include <QCheckBox>
#include <QColor>

class QPainter;

namespace VantorGUIToolkit {

/// A check box for what takes effect at once, drawn as a switch. Keys, signals and label are those of a check
/// box. Style sheets give its colours when it is on as properties; the others are the palette's.
class CSwitch : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(QColor onColor MEMBER m_onColor)
    Q_PROPERTY(QColor onKnobColor MEMBER m_onKnobColor)
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
    void PaintFocus(QPainter& painter) const;
    void PaintTrack(QPainter& painter) const;
    void PaintKnob(QPainter& painter) const;

    QColor m_onColor;
    QColor m_onKnobColor;
    QColor m_focusColor;
};

} // namespace VantorGUIToolkit
