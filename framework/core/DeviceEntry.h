#pragma once

#include "framework/core/Resources.h"

namespace framework {

/// Why the entry cannot be taken, in one sentence naming the field; empty: it can.
std::string ProblemOf(const DeviceEntry& entry);

} // namespace framework
