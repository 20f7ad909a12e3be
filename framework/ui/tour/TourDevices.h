#pragma once

#include "framework/ui/tour/TourSteps.h"

namespace framework {

/// What a person does with devices: adds one, mistypes, sees all go and come back, removes it.
void AddDeviceSteps(const TourStage& stage, std::vector<TourStep>& steps);

} // namespace framework
