#pragma once

#include "QxNetSDK/voice/VoiceModule.h"

#include <memory>

/// The plug-in, loaded at the first call and never unloaded: sound libraries have threads of their own. It is
/// looked for in "../plugins/voice" beside the folder of this library. For any thread.
namespace sdk::plugin {

/// Null when there is no sound input, with the sound library's number, or no plug-in (0).
std::unique_ptr<IVoiceInput> OpenInput(std::int32_t& error);

/// Null when the format cannot be encoded here.
std::unique_ptr<IVoiceEncoder> MakeEncoder(const VoiceFormat& format);

} // namespace sdk::plugin
