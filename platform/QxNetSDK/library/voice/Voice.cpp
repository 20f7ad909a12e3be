#include "QxNetSDK/library/voice/Voice.h"

#include "QxNetSDK/library/voice/VoicePlugin.h"
#include "QxNetSDK/library/voice/VoiceRequests.h"

#include <limits>

namespace sdk {

namespace {

constexpr std::size_t kMostDevices = 64;
constexpr std::chrono::milliseconds kEndTime{1000};
/// The longest frames have some tens of blocks.
constexpr int kMostBlocksOfFrame = 100;

/// The first frame of silence; null when the encoder gives none.
VoicePacket SilenceOf(const VoiceFormat& format)
{
    const std::unique_ptr<IVoiceEncoder> encoder = plugin::MakeEncoder(format);
    std::vector<std::string> packets;
    for (int i = 0; encoder && packets.empty() && i < kMostBlocksOfFrame; ++i)
        encoder->Encode(VoiceBlock{}, packets);
    return packets.empty() ? nullptr : std::make_shared<const std::string>(packets.front());
}

} // namespace

void CVoice::SetSource(const VoiceSource& source)
{
    const std::lock_guard lock(m_mutex);
    m_source = source;
}

Failure CVoice::Start(QxNetAudioCallback callback, void* user)
{
    VoiceSource source;
    {
        const std::lock_guard lock(m_mutex);
        source = m_source;
    }
    return m_capture.Start(source, [this, callback, user](const VoiceBlock& block) {
        if (callback)
            callback(block.data(), static_cast<std::uint32_t>(block.size()), user);
        Distribute(block);
    });
}

Failure CVoice::Add(std::int32_t login, std::shared_ptr<CSession> session, std::uint32_t channel,
                    std::int32_t& handle)
{
    QxNetAudioCompress compress{};
    VoiceFormat format;
    if (const Failure failure = ReadAudioCompress(*session, compress))
        return failure;
    if (const Failure failure = ReadFormat(compress, format))
        return failure;
    Device device;
    device.login = login;
    device.encoding = MakeEncoding(format);
    if (!device.encoding)
        return {QXNET_ERROR_AUDIO_ENCODING, format.encoding};
    std::unique_ptr<CSession::CUpload> upload;
    if (const Failure failure = BeginVoice(std::move(session), channel, format, upload))
        return failure;
    return Admit(std::move(device), std::move(upload), handle);
}

/// That of the devices that take the same; null when there is none. Under the lock.
CVoice::EncodingPointer CVoice::FindEncoding(const VoiceFormat& format) const
{
    for (const auto& [handle, device] : m_devices) {
        if (device.encoding->format == format)
            return device.encoding;
    }
    return nullptr;
}

/// Null when the format cannot be encoded here. The first one of a process loads libraries.
CVoice::EncodingPointer CVoice::MakeEncoding(const VoiceFormat& format)
{
    auto made = std::make_shared<Encoding>();
    made->format = format;
    made->encoder = plugin::MakeEncoder(format);
    made->silence = SilenceOf(format);
    return made->encoder && made->silence ? made : nullptr;
}

Failure CVoice::Admit(Device device, std::unique_ptr<CSession::CUpload> upload, std::int32_t& handle)
{
    RemoveWhere([](const Device& known) { return known.listener->IsOver(); });
    const std::lock_guard lock(m_mutex);
    if (m_devices.size() >= kMostDevices || m_nextHandle > std::numeric_limits<std::int32_t>::max())
        return {QXNET_ERROR_TOO_MANY_SESSIONS};
    if (EncodingPointer shared = FindEncoding(device.encoding->format))
        device.encoding = std::move(shared);
    device.listener = std::make_unique<CListener>(std::move(upload), device.encoding->silence);
    handle = static_cast<std::int32_t>(m_nextHandle++);
    m_devices.emplace(handle, std::move(device));
    return {};
}

Failure CVoice::Remove(std::int32_t handle)
{
    Devices::node_type removed;
    {
        const std::lock_guard lock(m_mutex);
        removed = m_devices.extract(handle);
    }
    if (!removed || removed.mapped().listener->IsOver())
        return {QXNET_ERROR_HANDLE};
    removed.mapped().listener->End(Clock::now() + kEndTime);
    return {};
}

void CVoice::RemoveAllOf(std::int32_t login)
{
    RemoveWhere([=](const Device& device) { return device.login == login; });
}

void CVoice::End()
{
    Stop();
    RemoveWhere([](const Device&) { return true; });
}

/// Ends them side by side and waits for it.
template<typename Condition>
void CVoice::RemoveWhere(Condition&& isMeant)
{
    std::vector<Device> removed;
    {
        const std::lock_guard lock(m_mutex);
        for (auto device = m_devices.begin(); device != m_devices.end();) {
            const auto each = device++;
            if (isMeant(each->second))
                removed.push_back(std::move(m_devices.extract(each).mapped()));
        }
    }
    for (const Device& device : removed)
        device.listener->End(Clock::now() + kEndTime);
}

void CVoice::Distribute(const VoiceBlock& block)
{
    const std::lock_guard lock(m_mutex);
    std::map<Encoding*, std::vector<VoicePacket>> said;
    for (auto& [handle, device] : m_devices) {
        const auto [packets, isNew] = said.try_emplace(device.encoding.get());
        if (isNew) {
            std::vector<std::string> encoded;
            device.encoding->encoder->Encode(block, encoded);
            for (std::string& packet : encoded)
                packets->second.push_back(std::make_shared<const std::string>(std::move(packet)));
        }
        for (const VoicePacket& packet : packets->second)
            device.listener->Push(packet);
    }
}

} // namespace sdk
