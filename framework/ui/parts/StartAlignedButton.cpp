#include "framework/ui/parts/StartAlignedButton.h"

#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace framework {

namespace {

constexpr int kIconColumn = 20; ///< icons stand in its middle, so that texts of large and small ones align
constexpr int kGap = 12;        ///< between icon and text

} // namespace

CStartAlignedButton::CStartAlignedButton(QWidget* parent) : QPushButton(parent)
{
    setAttribute(Qt::WA_Hover);
}

void CStartAlignedButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = {};
    painter.drawControl(QStyle::CE_PushButton, option);

    const bool onlyIcon = text().isEmpty();
    const QSize size = iconSize();
    const int left = onlyIcon ? (width() - size.width()) / 2 : m_indent + (kIconColumn - size.width()) / 2;
    const QRect picture(left, (height() - size.height()) / 2, size.width(), size.height());
    const QIcon::Mode mode = !isEnabled() ? QIcon::Disabled : isChecked() ? QIcon::Selected : QIcon::Normal;
    icon().paint(&painter, QStyle::visualRect(layoutDirection(), rect(), picture), Qt::AlignCenter, mode);
    if (onlyIcon)
        return;
    const int from = m_indent + (icon().isNull() ? 0 : kIconColumn + kGap);
    const QRect words =
        QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(from, 0, -m_indent / 2, 0));
    const auto side = layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    painter.setPen(palette().color(isChecked() ? QPalette::HighlightedText : QPalette::ButtonText));
    painter.drawText(words, int(side | Qt::AlignAbsolute | Qt::AlignVCenter) | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, words.width()));
}

} // namespace framework
