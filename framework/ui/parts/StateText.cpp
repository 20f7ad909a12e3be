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

#define WORDS(text) QT_TRANSLATE_NOOP("ComponentState", text)

StateLook LookOf(ComponentState state)
{
    switch (state) {
    case ComponentState::Starting:
        return {WORDS("Starting"), WORDS("The component is starting."), Tone::Info};
    case ComponentState::Ready:
        return {WORDS("Ready"), WORDS("The component is at work."), Tone::Ok};
    case ComponentState::Waiting:
        return {WORDS("Restarting"), WORDS("The component ended and will be started again."), Tone::Warn};
    case ComponentState::GivenUp:
        return {WORDS("Failed"), WORDS("The component ended too often and is not started again."),
                Tone::Error};
    case ComponentState::Stopped:
        break;
    }
    return {WORDS("Stopped"), WORDS("The component is not running."), Tone::Idle};
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
