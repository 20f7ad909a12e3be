#pragma once

#include "framework/core/FrameworkSettings.h"

namespace framework {

/// Gives the program skin, language, direction and formats, also in the place of others. Windows that were
/// made before keep their texts and icons. GUI thread.
void ApplyLook(const FrameworkChoices& choices);

/// Dates and times only.
void ApplyFormats(const FrameworkChoices& choices);

/// The number of the language that the system is set to; English when it is none of ours.
int SystemLanguage();

} // namespace framework
