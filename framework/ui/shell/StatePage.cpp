#include "framework/ui/shell/StatePage.h"

#include "VantorGUIToolkit/Widgets/Dress.h"
#include "VantorGUIToolkit/Widgets/EmptyState.h"

#include <QLabel>
#include <QProgressBar>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace framework {

using namespace VantorGUIToolkit;

namespace {

constexpr int kBusyWidth = 160;
constexpr int kBusyHeight = 4;

} // namespace

CStatePage::CStatePage(QWidget* parent)
    : QWidget(parent), m_stack(new QStackedLayout(this)), m_busy(new QWidget(this)),
      m_heading(makeLabel({}, TextRole::Heading, m_busy)), m_sentence(makeLabel({}, TextRole::Hint, m_busy))
{
    setSurface(this, Surface::Page);
    auto* bar = new QProgressBar(m_busy);
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setFixedSize(kBusyWidth, kBusyHeight);
    auto* layout = new QVBoxLayout(m_busy);
    layout->setSpacing(Grid::Medium);
    layout->addStretch();
    for (QLabel* label : {m_heading, m_sentence}) {
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    layout->addSpacing(Grid::Small);
    layout->addWidget(bar, 0, Qt::AlignHCenter);
    layout->addStretch();
    m_stack->addWidget(m_busy);
}

void CStatePage::ShowBusy(const QString& heading, const QString& sentence)
{
    m_heading->setText(heading);
    m_sentence->setText(sentence);
    m_stack->setCurrentWidget(m_busy);
}

void CStatePage::ShowReason(const QString& icon, const QString& heading, const QString& sentence,
                            const QString& button)
{
    delete m_reason;
    m_reason = new CEmptyState(icon, heading, sentence, this);
    m_reason->SetAction(button);
    connect(m_reason, &CEmptyState::SignalAction, this, &CStatePage::ButtonPressed, Qt::QueuedConnection);
    m_stack->addWidget(m_reason);
    m_stack->setCurrentWidget(m_reason);
}

} // namespace framework
