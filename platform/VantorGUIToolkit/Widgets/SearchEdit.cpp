#include "VantorGUIToolkit/Widgets/SearchEdit.h"

#include <QKeyEvent>
#include <QToolButton>

namespace VantorGUIToolkit {

CSearchEdit::CSearchEdit(QWidget* parent) : CInlineEdit("close", tr("Clear"), parent)
{
    ShowLeadingIcon("search");
    setPlaceholderText(tr("Search"));
    setAccessibleName(tr("Search"));
    InlineButton()->setFocusPolicy(Qt::NoFocus); // Escape does the same
    InlineButton()->hide();
    connect(InlineButton(), &QToolButton::clicked, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, InlineButton(),
            [this](const QString& text) { InlineButton()->setVisible(!text.isEmpty()); });
}

// Without a text to clear, Escape belongs to the dialog.
void CSearchEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else
        CInlineEdit::keyPressEvent(event);
}

} // namespace VantorGUIToolkit
