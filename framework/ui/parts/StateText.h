#pragma once

#include "VantorGUIToolkit/Widgets/Dress.h"
#include "framework/core/FrameworkEvents.h"

#include <QString>

namespace framework {

/// A component's state in a word ("Ready") and in a sentence, in the language of the user, and the tone that
/// goes with it.
QString TextOf(ComponentState state);
QString SentenceOf(ComponentState state);
VantorGUIToolkit::Tone ToneOf(ComponentState state);

} // namespace framework
