#include "framework/ui/parts/StateText.h"

#include <QCoreApplication>

namespace framework {

namespace {

using VantorGUIToolkit::Tone;

constexpr char kContext[] = "ComponentState";

struct StateLook
{
    const char* text;
    const char* sentence;
    Tone tone;
};

StateLook LookOf(ComponentState state)
{
    switch (state) {
    case ComponentState::Starting:
        return {QT_TRANSLATE_NOOP("ComponentState", "Starting"),
                QT_TRANSLATE_NOOP("ComponentState", "The component is starting."), Tone::Info};
    case ComponentState::Ready:
        return {QT_TRANSLATE_NOOP("ComponentState", "Ready"),
                QT_TRANSLATE_NOOP("ComponentState", "The component is at work."), Tone::Ok};
    case ComponentState::Waiting:
        return {QT_TRANSLATE_NOOP("ComponentState", "Restarting"),
                QT_TRANSLATE_NOOP("ComponentState", "The component ended and will be started again."),
                Tone::Warn};
    case ComponentState::GivenUp:
        return {
            QT_TRANSLATE_NOOP("ComponentState", "Failed"),
            QT_TRANSLATE_NOOP("ComponentState", "The component ended too often and is not started again."),
            Tone::Error};
    case ComponentState::Stopped:
        break;
    }
    return {QT_TRANSLATE_NOOP("ComponentState", "Stopped"),
            QT_TRANSLATE_NOOP("ComponentState", "The component is not running."), Tone::Idle};
}

} // namespace

QString TextOf(ComponentState state)
{
    return QCoreApplication::translate(kContext, LookOf(state).text);
}

QString SentenceOf(ComponentState state)
{
    return QCoreApplication::translate(kContext, LookOf(state).sentence);
}

Tone ToneOf(ComponentState state)
{
    return LookOf(state).tone;
}

} // namespace framework
