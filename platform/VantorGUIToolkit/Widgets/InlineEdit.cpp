#include "VantorGUIToolkit/Widgets/InlineEdit.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QEvent>
#include <QStyle>
#include <QToolButton>

namespace VantorGUIToolkit {

namespace {

constexpr int kButton = Grid::Wide;

} // namespace

CInlineEdit::CInlineEdit(const QString& iconName, const QString& buttonName, QWidget* parent)
    : QLineEdit(parent), m_button(makeIconButton(iconName, buttonName, this))
{
    m_button->setProperty("inline", true);
    m_button->setCursor(Qt::ArrowCursor);
    Arrange();
}

void CInlineEdit::ShowLeadingIcon(const QString& iconName)
{
    addAction(icon(iconName), LeadingPosition);
}

void CInlineEdit::Arrange()
{
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const int space = kButton + Grid::Tight;
    setTextMargins(mirrored ? space : 0, 0, mirrored ? 0 : space, 0);
    const QRect place(width() - kButton - Grid::Tight, (height() - kButton) / 2, kButton, kButton);
    m_button->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

void CInlineEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    Arrange();
}

void CInlineEdit::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        Arrange();
}

} // namespace VantorGUIToolkit
