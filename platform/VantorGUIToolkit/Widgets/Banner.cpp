#include "VantorGUIToolkit/Widgets/Banner.h"

#include "VantorGUIToolkit/Icons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace VantorGUIToolkit {

CBanner::CBanner(const QString& text, Tone tone, QWidget* parent)
    : QFrame(parent), m_icon(makeIconLabel(toneIconName(tone), Grid::Large, this)),
      m_text(makeLabel({}, TextRole::Plain, this)), m_action(makeButton({}, ButtonKind::Quiet, this))
{
    setSurface(this, Surface::Card);
    m_text->setWordWrap(true);
    m_action->hide();
    connect(m_action, &QPushButton::clicked, this, &CBanner::SignalAction);
    auto* row = new QHBoxLayout(this);
    setReadingMargins(row, this, Grid::Large, Grid::Tight, Grid::Small, Grid::Tight);
    row->setSpacing(Grid::Small);
    row->addWidget(m_icon);
    row->addWidget(m_text, 1);
    row->addWidget(m_action);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setMinimumHeight(40);
    Set(text, tone);
}

void CBanner::Set(const QString& text, Tone tone)
{
    m_text->setText(breakable(text));
    setAccessibleName(text);
    m_icon->setPixmap(icon(toneIconName(tone)).pixmap(Grid::Large, Grid::Large));
    setTone(this, tone);
}

QString CBanner::Text() const
{
    return accessibleName();
}

void CBanner::SetAction(const QString& text)
{
    m_action->setText(text);
    m_action->setVisible(!text.isEmpty());
}

} // namespace VantorGUIToolkit
