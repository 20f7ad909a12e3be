#include "QxNetSDK/library/voice/Listener.h"

namespace sdk {

namespace {

constexpr std::chrono::seconds kMostDelay{1};
/// A third of what a device waits for more; see docs/device-protocol.md.
constexpr std::chrono::seconds kSilenceEvery{20};
/// How soon a device is missed while nothing is said.
constexpr std::chrono::milliseconds kLookEvery{500};

} // namespace

CListener::CListener(std::unique_ptr<CSession::CUpload> upload, VoicePacket silence)
    : m_silence(std::move(silence)), m_upload(upload.get()),
      m_thread([this, taken = std::move(upload)]() mutable { Run(std::move(taken)); })
{}

CListener::~CListener()
{
    End(Clock::now());
    {
        std::unique_lock lock(m_mutex);
        if (!m_changed.wait_until(lock, m_endDeadline, [this] { return !m_upload; }))
            m_upload->Abort();
    }
    m_thread.join();
}

bool CListener::IsOver() const
{
    const std::lock_guard lock(m_mutex);
    return !m_upload;
}

void CListener::Push(const VoicePacket& packet)
{
    const auto now = Clock::now();
    {
        const std::lock_guard lock(m_mutex);
        while (!m_queue.empty() && now - m_queue.front().since > kMostDelay)
            m_queue.pop_front();
        if (!m_isEnding)
            m_queue.push_back({packet, now});
    }
    m_changed.notify_all();
}

void CListener::End(Deadline deadline)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_isEnding)
            return;
        m_isEnding = true;
        m_endDeadline = deadline;
    }
    m_changed.notify_all();
}

void CListener::Wake()
{
    End(Clock::now());
}

void CListener::Run(std::unique_ptr<CSession::CUpload> upload)
{
    try {
        const CInterrupt::CGuard guard(upload->Interrupt(), *this);
        if (!Speak(*upload))
            (void)upload->Finish(m_endDeadline);
    } catch (const std::exception&) {
        // Memory: the device is left, as if it had broken off.
    }
    {
        const std::lock_guard lock(m_mutex);
        m_upload = nullptr;
    }
    m_changed.notify_all();
}

/// Until the end, which is a success.
Failure CListener::Speak(CSession::CUpload& upload)
{
    Deadline silentUntil = Clock::now() + kSilenceEvery;
    for (;;) {
        const VoicePacket packet = Next(silentUntil);
        if (!packet && IsEnding())
            return {};
        const Failure failure = packet ? upload.Send(*packet) : upload.Look();
        if (failure)
            return failure;
        if (packet)
            silentUntil = Clock::now() + kSilenceEvery;
    }
}

/// Null when there is nothing to be sent now.
VoicePacket CListener::Next(Deadline silentUntil)
{
    std::unique_lock lock(m_mutex);
    const auto isDue = [this] { return m_isEnding || !m_queue.empty(); };
    if (!m_changed.wait_until(lock, std::min(silentUntil, Clock::now() + kLookEvery), isDue))
        return Clock::now() >= silentUntil ? m_silence : nullptr;
    if (m_queue.empty() || (m_isEnding && Clock::now() >= m_endDeadline))
        return nullptr;
    const VoicePacket packet = std::move(m_queue.front().packet);
    m_queue.pop_front();
    return packet;
}

bool CListener::IsEnding()
{
    const std::lock_guard lock(m_mutex);
    return m_isEnding;
}

} // namespace sdk
