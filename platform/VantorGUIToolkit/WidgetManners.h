#pragma once

#include <QObject>

class QWidget;

namespace VantorGUIToolkit {

/// How widgets behave in every program of the toolkit, whatever the style:
///   - the wheel over a combo box, spin box or slider without the focus scrolls the page;
///   - buttons, tabs and sliders show the focus only where it came by keys, not by a press of the mouse: the
///     property "keyboardFocus", by which style sheets draw the ring, says so;
///   - dates and times run from left to right also where the layout doesn't, since Qt would turn their format
///     around and show "41:09 17.05"; numbers and plain texts then begin at the right;
///   - the edits inside combo boxes and spin boxes use all of the room that these leave.
/// GUI thread.
class CWidgetManners : public QObject
{
    Q_OBJECT

public:
    /// For the whole application and as long as it lives. Again is the same as once.
    static void Install();

    /// For a widget that draws its ring itself.
    static bool ShowsFocus(const QWidget* widget);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};

} // namespace VantorGUIToolkit
