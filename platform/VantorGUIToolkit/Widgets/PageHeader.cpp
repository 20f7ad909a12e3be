#include "VantorGUIToolkit/Widgets/PageHeader.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace VantorGUIToolkit {

CPageHeader::CPageHeader(const QString& title, const QString& sentence, QWidget* parent)
    : QWidget(parent), m_title(makeLabel({}, TextRole::Title, this)),
      m_sentence(makeLabel({}, TextRole::Hint, this)), m_actions(new QHBoxLayout)
{
    m_title->setObjectName("pageTitle");
    auto* texts = new QVBoxLayout;
    texts->setSpacing(Grid::Tight);
    texts->addWidget(m_title);
    texts->addWidget(m_sentence);
    m_actions->setSpacing(Grid::Small);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Grid::Large);
    row->addLayout(texts, 1);
    row->addLayout(m_actions);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    SetTexts(title, sentence);
}

void CPageHeader::SetTexts(const QString& title, const QString& sentence)
{
    m_title->setText(title);
    m_sentence->setText(sentence);
    m_sentence->setVisible(!sentence.isEmpty());
}

QPushButton* CPageHeader::AddAction(const QString& text, ButtonKind kind)
{
    QPushButton* button = makeButton(text, kind, this);
    AddWidget(button);
    return button;
}

void CPageHeader::AddWidget(QWidget* widget)
{
    m_actions->addWidget(widget, 0, Qt::AlignVCenter);
}

} // namespace VantorGUIToolkit
