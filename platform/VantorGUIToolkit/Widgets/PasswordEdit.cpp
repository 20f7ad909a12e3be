#include "VantorGUIToolkit/Widgets/PasswordEdit.h"

#include "VantorGUIToolkit/Icons.h"

#include <QKeyEvent>
#include <QToolButton>

namespace VantorGUIToolkit {

CPasswordEdit::CPasswordEdit(QWidget* parent) : CInlineEdit("eye", tr("Show password"), parent)
{
    setEchoMode(Password);
    setInputMethodHints(Qt::ImhHiddenText | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
    connect(InlineButton(), &QToolButton::clicked, this, [this] { SetRevealed(!IsRevealed()); });
}

void CPasswordEdit::SetRevealed(bool revealed)
{
    setEchoMode(revealed ? Normal : Password);
    const QString name = revealed ? tr("Hide password") : tr("Show password");
    InlineButton()->setIcon(icon(revealed ? "eye-off" : "eye"));
    InlineButton()->setAccessibleName(name);
    InlineButton()->setToolTip(name);
}

// Keys that the button does not know arrive here as well, when somebody types on behind Tab.
void CPasswordEdit::keyPressEvent(QKeyEvent* event)
{
    if (InlineButton()->hasFocus())
        event->ignore();
    else
        CInlineEdit::keyPressEvent(event);
}

void CPasswordEdit::changeEvent(QEvent* event)
{
    CInlineEdit::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        SetRevealed(false);
}

void CPasswordEdit::hideEvent(QHideEvent* event)
{
    CInlineEdit::hideEvent(event);
    SetRevealed(false);
}

} // namespace VantorGUIToolkit
