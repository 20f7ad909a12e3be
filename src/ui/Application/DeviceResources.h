#pragma once

#include "UiDataController/IGroupManager.h"
#include "UiDataController/IResourceTreeManager.h"
#include "logical/SDK/Session/ResourceCentre.h"

namespace video {

/// The process's devices; it lives as long as the process. Any thread.
CResourceCentre& DeviceResources();

/// The same for the logical libraries.
vantor::IResourceTreeManager& DeviceTree();
vantor::IGroupManager& DeviceGroups();

} // namespace video
