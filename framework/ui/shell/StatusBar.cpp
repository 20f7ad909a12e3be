#include "framework/ui/shell/StatusBar.h"

#include "VantorGUIToolkit/Restyle.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>

namespace framework {

namespace {

using namespace VantorGUIToolkit;

constexpr int kHeight = 32;

struct StateLook
{
    const char* text;
    const char* tone;
};

StateLook LookOf(ComponentState state)
{
    switch (state) {
    case ComponentState::Stopped:
        return {QT_TRANSLATE_NOOP("ComponentState", "Stopped"), "idle"};
    case ComponentState::Starting:
        return {QT_TRANSLATE_NOOP("ComponentState", "Starting"), "info"};
    case ComponentState::Ready:
        return {QT_TRANSLATE_NOOP("ComponentState", "Ready"), "ok"};
    case ComponentState::Waiting:
        return {QT_TRANSLATE_NOOP("ComponentState", "Restarting"), "warn"};
    case ComponentState::GivenUp:
        return {QT_TRANSLATE_NOOP("ComponentState", "Ended"), "error"};
    }
    return {"", "idle"};
}

} // namespace

QString TextOf(ComponentState state)
{
    return QCoreApplication::translate("ComponentState", LookOf(state).text);
}

const char* ToneOf(ComponentState state)
{
    return LookOf(state).tone;
}

CStatusBar::CStatusBar(QWidget* parent)
    : QFrame(parent), m_state(makeLabel({}, TextRole::Badge, this)), m_event(makeLabel({}, TextRole::Hint, this))
{
    setObjectName("statusBar");
    setSurface(this, Surface::Bar);
    setFixedHeight(kHeight);
    m_state->setObjectName("componentState");
    m_event->setObjectName("lastEvent");
    m_event->setWordWrap(false);
    m_event->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(Grid::Large, 0, Grid::Large, 0);
    layout->setSpacing(Grid::Medium);
    layout->addWidget(makeLabel(tr("Video component"), TextRole::Hint, this));
    layout->addWidget(m_state);
    layout->addWidget(m_event, 1);
}

void CStatusBar::SetComponent(ComponentState state, const QString& detail)
{
    m_state->setText(TextOf(state));
    m_state->setToolTip(detail);
    m_state->setProperty("tone", ToneOf(state));
    repolish(m_state);
}

void CStatusBar::ShowEvent(const QString& text)
{
    m_event->setText(text);
    m_event->setToolTip(text);
}

} // namespace framework
