#include "framework/ui/shell/StatusBar.h"

#include "VantorGUIToolkit/Widgets/Badge.h"
#include "framework/ui/parts/StateText.h"

#include <QHBoxLayout>
#include <QLabel>

namespace framework {

namespace {

using namespace VantorGUIToolkit;

constexpr int kHeight = 32;

} // namespace

CStatusBar::CStatusBar(QWidget* parent)
    : QFrame(parent), m_state(new CBadge({}, Tone::Idle, this)), m_event(makeLabel({}, TextRole::Hint, this))
{
    setObjectName("statusBar");
    setSurface(this, Surface::Bar);
    setFixedHeight(kHeight);
    m_state->setObjectName("componentState");
    m_event->setObjectName("lastEvent");
    m_event->setWordWrap(false);
    m_event->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QLabel* name = makeLabel(tr("Video component"), TextRole::Hint, this);
    name->setWordWrap(false);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(Grid::Large, 0, Grid::Large, 0);
    layout->setSpacing(Grid::Medium);
    layout->addWidget(name);
    layout->addWidget(m_state);
    layout->addWidget(m_event, 1);
}

void CStatusBar::SetComponent(ComponentState state, const QString& detail)
{
    m_state->Set(TextOf(state), ToneOf(state));
    m_state->setToolTip(detail);
}

void CStatusBar::ShowEvent(const QString& text)
{
    m_event->setText(text);
    m_event->setToolTip(text);
}

} // namespace framework
