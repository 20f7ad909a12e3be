#pragma once

#include "logical/Communication/RouteTable.h"
#include "logical/System/SystemConfig.h"

#include <functional>

namespace video {

/// The settings that the route works on, asked for by each call on its worker; it may wait until they are
/// loaded.
using SystemConfigSource = std::function<CSystemConfig&()>;

/// Puts in the route "systemConfigs".
///
/// A request of the method GET, and one without a body or with a body that names no field, is answered with
/// the whole record: every field of VideoSystemConfigStruct, flags as true or false, and the folders
/// "videoSaveFolder" and "captureSaveFolder".
///
/// Any other sets the fields that its "systemConfigs" names, saves and announces once, and is answered with
/// the whole record. Flags may also be 0 or 1. An unknown name, a wrong type, a value that may not be set or
/// a folder that has not 1 to CSystemConfig::kFolderBytes bytes refuses the whole: nothing changes, the log
/// has a line, and the answer is a "response" with status 400 whose message names the field. A body that
/// holds no "systemConfigs" object, or a name twice, has its line and no answer.
void ServeSystemConfigs(CRouteTable& http, SystemConfigSource settings, AnswerCall answer);

} // namespace video
