#include "VantorGUIToolkit/Widgets/EmptyState.h"

#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace VantorGUIToolkit {

CEmptyState::CEmptyState(const QString& iconName, const QString& title, const QString& sentence,
                         QWidget* parent)
    : QWidget(parent), m_title(makeLabel({}, TextRole::Heading, this)),
      m_sentence(makeLabel({}, TextRole::Hint, this)), m_action(makeButton({}, ButtonKind::Normal, this))
{
    m_title->setObjectName("emptyTitle");
    m_sentence->setObjectName("emptySentence");
    m_action->setObjectName("emptyAction");
    m_title->setAlignment(Qt::AlignCenter);
    m_sentence->setAlignment(Qt::AlignCenter);
    m_action->hide();
    connect(m_action, &QPushButton::clicked, this, &CEmptyState::SignalAction);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Grid::Wide, Grid::Wide, Grid::Wide, Grid::Wide);
    column->setSpacing(Grid::Small);
    column->addStretch(1);
    column->addWidget(makeIconLabel(iconName, 48, this), 0, Qt::AlignCenter);
    column->addSpacing(Grid::Tight);
    column->addWidget(m_title);
    column->addWidget(m_sentence);
    column->addSpacing(Grid::Small);
    column->addWidget(m_action, 0, Qt::AlignCenter);
    column->addStretch(1);
    SetTexts(title, sentence);
}

void CEmptyState::SetTexts(const QString& title, const QString& sentence)
{
    m_title->setText(title);
    m_title->setVisible(!title.isEmpty());
    m_sentence->setText(sentence);
    m_sentence->setVisible(!sentence.isEmpty());
}

void CEmptyState::SetAction(const QString& text)
{
    m_action->setText(text);
    m_action->setVisible(!text.isEmpty());
}

} // namespace VantorGUIToolkit
