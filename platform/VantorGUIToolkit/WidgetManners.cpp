#include "VantorGUIToolkit/WidgetManners.h"

#include "VantorGUIToolkit/Restyle.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTextDocument>
#include <QTextOption>
#include <QVariant>

namespace VantorGUIToolkit {

namespace {

/// What a line edit leaves free at both sides of its text, in pixels.
constexpr int kEditMargin = 2;
const char* const kKeyboardFocus = "keyboardFocus";

bool TakesTheWheel(const QWidget* widget)
{
    return qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget) ||
           (qobject_cast<const QAbstractSlider*>(widget) && !qobject_cast<const QScrollBar*>(widget));
}

/// Those where the focus is of no use to the mouse; one sees where one types.
bool HidesFocusFromTheMouse(const QWidget* widget)
{
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QTabBar*>(widget) ||
           qobject_cast<const QAbstractSlider*>(widget);
}

void SetKeyboardFocus(QWidget* widget, bool byKeys)
{
    const QVariant before = widget->property(kKeyboardFocus);
    if (before.isValid() && before.toBool() == byKeys)
        return;
    widget->setProperty(kKeyboardFocus, byKeys);
    repolish(widget);
}

// A focus that comes back with its window, or from a menu, is the one that it was.
void TellFocus(QWidget* widget, Qt::FocusReason reason)
{
    const bool comesBack = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
    if (comesBack && widget->property(kKeyboardFocus).isValid())
        return;
    SetKeyboardFocus(widget, reason != Qt::MouseFocusReason);
}

// Qt would choose the side by the direction of the text, and digits have none.
void BeginAtTheRight(QAbstractSpinBox* box)
{
    if (box->isRightToLeft() && !(box->alignment() & Qt::AlignHCenter))
        box->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
}

void ReadFromTheLeft(QDateTimeEdit* edit)
{
    if (!edit->isRightToLeft())
        return;
    const QString format = edit->displayFormat();
    edit->setLayoutDirection(Qt::LeftToRight);
    edit->setDisplayFormat(format);
}

void BeginAtTheRight(QPlainTextEdit* edit)
{
    if (!edit->isRightToLeft())
        return;
    QTextOption option = edit->document()->defaultTextOption();
    option.setAlignment(Qt::AlignRight);
    edit->document()->setDefaultTextOption(option);
}

// The outer input leaves room for its text only; the two pixels of an edit of its own would cut the text.
void FillTheOuterInput(QLineEdit* edit)
{
    const QWidget* outer = edit->parentWidget();
    if (qobject_cast<const QComboBox*>(outer) || qobject_cast<const QAbstractSpinBox*>(outer))
        edit->setTextMargins(-kEditMargin, 0, -kEditMargin, 0);
}

void Teach(QWidget* widget)
{
    if (TakesTheWheel(widget) && widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
    if (auto* edit = qobject_cast<QLineEdit*>(widget))
        FillTheOuterInput(edit);
    if (auto* box = qobject_cast<QAbstractSpinBox*>(widget))
        BeginAtTheRight(box);
    if (auto* moment = qobject_cast<QDateTimeEdit*>(widget))
        ReadFromTheLeft(moment);
    if (auto* text = qobject_cast<QPlainTextEdit*>(widget))
        BeginAtTheRight(text);
}

} // namespace

void CWidgetManners::Install()
{
    if (!qApp->findChild<CWidgetManners*>(QString(), Qt::FindDirectChildrenOnly))
        qApp->installEventFilter(new CWidgetManners(qApp));
}

bool CWidgetManners::ShowsFocus(const QWidget* widget)
{
    return widget->hasFocus() && widget->property(kKeyboardFocus).toBool();
}

bool CWidgetManners::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType())
        return false;
    auto* widget = static_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::Polish:
        Teach(widget);
        return false;
    case QEvent::FocusIn:
        if (HidesFocusFromTheMouse(widget))
            TellFocus(widget, static_cast<QFocusEvent*>(event)->reason());
        return false;
    case QEvent::KeyPress:
        if (HidesFocusFromTheMouse(widget) && widget->hasFocus())
            SetKeyboardFocus(widget, true);
        return false;
    case QEvent::MouseButtonPress: // the focus may be there already
        if (HidesFocusFromTheMouse(widget))
            SetKeyboardFocus(widget, false);
        return false;
    case QEvent::Wheel:
        if (!TakesTheWheel(widget) || widget->hasFocus())
            return false;
        event->ignore(); // Qt asks the parent next
        return true;
    default:
        return false;
    }
}

} // namespace VantorGUIToolkit
