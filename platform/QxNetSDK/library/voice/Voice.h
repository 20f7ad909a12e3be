#pragma once

#include "QxNetSDK/library/voice/Capture.h"
#include "QxNetSDK/library/voice/Listener.h"

#include <map>

namespace sdk {

/// Everything of voice: what is captured goes to all devices that were added, encoded once for each format.
/// For any thread.
class CVoice
{
public:
    void SetSource(const VoiceSource& source);
    /// See NET_DVR_ClientAudioStart_V30.
    Failure Start(QxNetAudioCallback callback, void* user);
    void Stop() { m_capture.Stop(); }

    /// See NET_DVR_AddDVR_V30. login: by which the session is known.
    Failure Add(std::int32_t login, std::shared_ptr<CSession> session, std::uint32_t channel,
                std::int32_t& handle);
    Failure Remove(std::int32_t handle);
    /// Ends what a session's device hears, in order if the device is quick.
    void RemoveAllOf(std::int32_t login);
    /// Ends everything.
    void End();

private:
    /// A format that devices take, and its encoder.
    struct Encoding
    {
        VoiceFormat format;
        std::unique_ptr<IVoiceEncoder> encoder;
        VoicePacket silence;
    };
    using EncodingPointer = std::shared_ptr<Encoding>;
    struct Device
    {
        std::int32_t login = -1;
        EncodingPointer encoding;
        std::unique_ptr<CListener> listener;
    };
    using Devices = std::map<std::int32_t, Device>;

    EncodingPointer FindEncoding(const VoiceFormat& format) const;
    static EncodingPointer MakeEncoding(const VoiceFormat& format);
    Failure Admit(Device device, std::unique_ptr<CSession::CUpload> upload, std::int32_t& handle);
    void Distribute(const VoiceBlock& block);
    template<typename Condition>
    void RemoveWhere(Condition&& isMeant);

    std::mutex m_mutex;
    VoiceSource m_source;
    Devices m_devices;
    std::int64_t m_nextHandle = 0;
    CCapture m_capture;
};

} // namespace sdk
