#pragma once

#include "QxNetSDK/library/session/Session.h"

namespace sdk {

/// Asks a device how it takes voice. What it says is not looked at: who speaks checks it.
Failure ReadAudioCompress(CSession& session, QxNetAudioCompress& compress);

} // namespace sdk
