#pragma once

#include "VantorSkin/SkinPalette.h"

#include <QProxyStyle>

/// What style sheets cannot say about the look: metrics of the 4-pixel grid, the focus ring of items,
/// standard icons from the skin, behaviour, and surfaces. Fusion draws the rest. The colours are those of the
/// skin that was loaded when the style was made; without one, Fusion's. GUI thread.
class CVantorStyle : public QProxyStyle
{
    Q_OBJECT

public:
    CVantorStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    QIcon standardIcon(StandardPixmap standard, const QStyleOption* option,
                       const QWidget* widget) const override;
    QPixmap standardPixmap(StandardPixmap standard, const QStyleOption* option,
                           const QWidget* widget) const override;
    QPalette standardPalette() const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawItemText(QPainter* painter, const QRect& place, int flags, const QPalette& palette, bool enabled,
                      const QString& text, QPalette::ColorRole role) const override;

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    /// Lets a widget that has the property "surface" draw the background that sheets give it, sets the titles
    /// of columns where their texts are, lets sheets dress the lists of combo boxes,
    /// and gives calendars readable days off.
    void polish(QWidget* widget) override;
    /// Watches the Alt key, which shows the underlines of mnemonics.
    void polish(QApplication* application) override;
    void unpolish(QApplication* application) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::optional<VantorGUIToolkit::SkinPalette> m_colors;
};
