#include "QxNetSDK/library/session/DeviceChecks.h"

#include <cstring>

namespace sdk {

namespace {

/// The least and the most code point that a sequence may stand for, by its length.
constexpr std::uint32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
constexpr std::uint32_t kMost = 0x10FFFF;

std::size_t SequenceLength(unsigned char first)
{
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first < 0xE0)
        return 2;
    if (first >= 0xE0 && first < 0xF0)
        return 3;
    return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

bool IsSequence(const char* text, std::size_t length)
{
    std::uint32_t point = static_cast<unsigned char>(text[0]) & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) != 0x80)
            return false;
        point = point << 6 | (byte & 0x3Fu);
    }
    const bool isSurrogate = point >= 0xD800 && point < 0xE000;
    return point >= kLeast[length] && point <= kMost && !isSurrogate;
}

template<std::size_t size>
bool IsText(const char (&text)[size])
{
    const void* end = std::memchr(text, 0, size);
    return end && IsUtf8(text, static_cast<std::size_t>(static_cast<const char*>(end) - text));
}

template<typename Structure>
Structure CopyOf(const char* bytes)
{
    Structure structure;
    std::memcpy(&structure, bytes, sizeof structure);
    return structure;
}

Failure Unless(bool isGood)
{
    return isGood ? Failure{} : Failure{QXNET_ERROR_UNREADABLE};
}

bool IsChannelState(const QxNetChannelState& state)
{
    return state.channel >= 1 && state.channel <= 512 && state.state <= 255 && IsText(state.name);
}

Failure CheckChannelPage(const QxNetChannelPage& page)
{
    bool isGood = page.total <= 512 && page.count <= QXNET_CHANNELS_PER_PAGE && page.count <= page.total;
    for (std::uint32_t i = 0; isGood && i < page.count; ++i)
        isGood = IsChannelState(page.channels[i]);
    return Unless(isGood);
}

} // namespace

bool IsUtf8(const char* text, std::size_t size)
{
    for (std::size_t at = 0; at < size;) {
        const std::size_t length = SequenceLength(static_cast<unsigned char>(text[at]));
        if (length == 0 || length > size - at || (length > 1 && !IsSequence(text + at, length)))
            return false;
        at += length;
    }
    return true;
}

Failure CheckDeviceInfo(const QxNetDeviceInfo& info)
{
    if (info.size != sizeof info)
        return {QXNET_ERROR_WRONG_SIZE, info.size};
    const bool hasTexts =
        IsText(info.name) && IsText(info.serial) && IsText(info.model) && IsText(info.firmware);
    const bool isInRange = info.channels <= 512 && info.alarmInputs <= 512 && info.alarmOutputs <= 512 &&
                           info.voiceChannels <= 16 && info.disks <= 64;
    return Unless(hasTexts && isInRange);
}

Failure CheckStructure(std::uint32_t command, const char* structure, std::size_t size)
{
    // The one record that is too small to tell its own size.
    if (command == QXNET_GET_AUDIO_COMPRESS)
        return {};
    std::uint32_t told = 0;
    if (size >= sizeof told)
        std::memcpy(&told, structure, sizeof told);
    if (told != size)
        return {QXNET_ERROR_WRONG_SIZE, told};
    if (command == QXNET_GET_DEVICE_INFO && size == sizeof(QxNetDeviceInfo))
        return CheckDeviceInfo(CopyOf<QxNetDeviceInfo>(structure));
    if (command == QXNET_GET_CHANNEL_PAGE && size == sizeof(QxNetChannelPage))
        return CheckChannelPage(CopyOf<QxNetChannelPage>(structure));
    return {};
}

} // namespace sdk
