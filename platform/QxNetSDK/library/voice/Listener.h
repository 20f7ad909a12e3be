#pragma once

#include "QxNetSDK/library/session/Upload.h"

#include <deque>
#include <thread>

namespace sdk {

/// A piece of encoded sound, shared by all devices that take it.
using VoicePacket = std::shared_ptr<const std::string>;

/// A device that hears what is said, with the thread that sends it. For any thread.
class CListener : public IWaiting
{
public:
    /// silence: what is sent when nothing was said for long, so that the device does not end the upload.
    CListener(std::unique_ptr<CSession::CUpload> upload, VoicePacket silence);
    /// Ends at once, or no later than the deadline of an End before.
    ~CListener() override;

    /// Never waits. A device that is slower than sound loses what is older than a second.
    void Push(const VoicePacket& packet);

    /// Sends what is left and ends the upload in order; no longer than until the deadline. Does not wait.
    void End(Deadline deadline);

    /// The device has broken off, or the upload was ended.
    bool IsOver() const;

    void Wake() override;

private:
    struct Waiting
    {
        VoicePacket packet;
        Deadline since;
    };

    void Run(std::unique_ptr<CSession::CUpload> upload);
    Failure Speak(CSession::CUpload& upload);
    VoicePacket Next(Deadline silentUntil);
    bool IsEnding();

    const VoicePacket m_silence;
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Waiting> m_queue;
    CSession::CUpload* m_upload = nullptr; ///< while it is under way
    bool m_isEnding = false;
    Deadline m_endDeadline;
    std::thread m_thread;
};

} // namespace sdk
