#pragma once

#include <QCheckBox>

namespace VantorGUIToolkit {

/// A check box for what takes effect at once, drawn as a switch in the colours of the palette. Keys, signals
/// and label are those of a check box.
class CSwitch : public QCheckBox
{
    Q_OBJECT

public:
    explicit CSwitch(const QString& text = {}, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& position) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect TrackRect() const;
    void PaintTrack(class QPainter& painter) const;
};

} // namespace VantorGUIToolkit
