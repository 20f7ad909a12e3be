#pragma once

#include "VantorGUIToolkit/Widgets/Dialog.h"

namespace VantorGUIToolkit {

/// Questions and messages that have to be answered before anything else. GUI thread; each call runs an event
/// loop of its own until the answer is there. The parent may be null, and may be destroyed meanwhile.
class CWarningDlg : public CDialog
{
    Q_OBJECT

public:
    /// Asks a question. 1 = yes; 0 = no, closed, or the parent went away.
    static int CheckMessageInfo(const QString& text, const QString& title, QWidget* parent);

    /// The same for what cannot be undone: the button that does it carries its own words ("Remove") and the
    /// focus is on the harmless one.
    static int CheckDangerousAction(const QString& text, const QString& title, const QString& action,
                                    QWidget* parent);

    /// Messages with one button.
    static void ShowInformation(const QString& text, const QString& title, QWidget* parent);
    static void ShowError(const QString& text, const QString& title, QWidget* parent);

private:
    CWarningDlg(const QString& text, const QString& title, const QString& iconName, QWidget* parent);

    QWidget* MakeText(const QString& text);
    static int Ask(CWarningDlg* dialog);
};

} // namespace VantorGUIToolkit
