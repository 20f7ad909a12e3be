#pragma once

#include "QxNetSDK/library/session/Upload.h"
#include "QxNetSDK/voice/VoiceModule.h"

namespace sdk {

/// Asks a device how it takes voice. What it says is not looked at: who speaks checks it.
Failure ReadAudioCompress(CSession& session, QxNetAudioCompress& compress);

/// What the device says as a format that may be one; AUDIO_ENCODING with the encoding's number.
Failure ReadFormat(const QxNetAudioCompress& compress, VoiceFormat& format);

/// Begins to speak through a voice channel. AUDIO_BUSY, AUDIO_ENCODING, or why it cannot be.
Failure BeginVoice(std::shared_ptr<CSession> session, std::uint32_t channel, const VoiceFormat& format,
                   std::unique_ptr<CSession::CUpload>& upload);

} // namespace sdk
