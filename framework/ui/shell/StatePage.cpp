#include "framework/ui/shell/StatePage.h"

#include "VantorGUIToolkit/Icons.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace framework {

namespace {

constexpr int kIconSize = 48;
constexpr int kBusyWidth = 160;
constexpr int kBusyHeight = 4;
constexpr int kTextWidth = 480;

} // namespace

CStatePage::CStatePage(QWidget* parent)
    : QWidget(parent), m_icon(new QLabel(this)), m_busy(new QProgressBar(this)), m_heading(new QLabel(this)),
      m_sentence(new QLabel(this)), m_button(new QPushButton(this))
{
    setProperty("surface", "page");
    m_heading->setProperty("role", "heading");
    m_heading->setAlignment(Qt::AlignCenter);
    m_sentence->setProperty("role", "hint");
    m_sentence->setAlignment(Qt::AlignCenter);
    m_sentence->setWordWrap(true);
    m_sentence->setFixedWidth(kTextWidth);
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    m_busy->setFixedSize(kBusyWidth, kBusyHeight);
    m_button->setObjectName("stateButton");
    m_button->setProperty("kind", "primary");
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addStretch();
    for (QWidget* each : {static_cast<QWidget*>(m_icon), static_cast<QWidget*>(m_heading),
                          static_cast<QWidget*>(m_sentence), static_cast<QWidget*>(m_busy),
                          static_cast<QWidget*>(m_button)})
        layout->addWidget(each, 0, Qt::AlignHCenter);
    layout->addStretch();
    connect(m_button, &QPushButton::clicked, this, &CStatePage::ButtonPressed);
}

void CStatePage::ShowBusy(const QString& heading, const QString& sentence)
{
    SetTexts(heading, sentence);
    m_icon->hide();
    m_button->hide();
    m_busy->show();
}

void CStatePage::ShowReason(const QString& icon, const QString& heading, const QString& sentence,
                            const QString& button)
{
    SetTexts(heading, sentence);
    m_icon->setPixmap(VantorGUIToolkit::icon(icon).pixmap(kIconSize));
    m_icon->show();
    m_busy->hide();
    m_button->setText(button);
    m_button->setVisible(!button.isEmpty());
}

void CStatePage::SetTexts(const QString& heading, const QString& sentence)
{
    m_heading->setText(heading);
    m_sentence->setText(sentence);
    m_sentence->setVisible(!sentence.isEmpty());
}

} // namespace framework
