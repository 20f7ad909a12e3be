#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

/// What the device SDK and its plug-in "QxNetVoice" know of each other. The plug-in has the sound input and
/// the encoders; it is loaded when somebody wants to speak, and stays loaded.
namespace sdk {

constexpr unsigned kVoiceRate = 16000; ///< samples a second
constexpr std::chrono::milliseconds kVoiceBlockTime{20};

/// 20 ms of sound, one channel.
using VoiceBlock = std::array<std::int16_t, 320>;

/// How sound is encoded.
struct VoiceFormat
{
    unsigned encoding = 0; ///< of QxNetSDK/Structures/Device.h
    unsigned rate = 0;     ///< samples a second
    unsigned bitRate = 0;  ///< bits a second, for encodings that leave a choice

    bool operator==(const VoiceFormat& other) const
    {
        return encoding == other.encoding && rate == other.rate && bitRate == other.bitRate;
    }
};

/// Where sound comes from. One thread, from the opening to the end.
class IVoiceInput
{
public:
    virtual ~IVoiceInput() = default;
    /// The next 20 ms; false when they did not come within the time.
    [[nodiscard]] virtual bool Read(VoiceBlock& block, std::chrono::milliseconds wait) = 0;
};

/// Encodes one stream of sound. One thread at a time.
class IVoiceEncoder
{
public:
    virtual ~IVoiceEncoder() = default;
    /// Appends the frames that are whole by now, in each text one or, where their length is fixed, several.
    virtual void Encode(const VoiceBlock& block, std::vector<std::string>& packets) = 0;
};

/// What the plug-in exports. Both give an object that the caller deletes; null: the sound library's number in
/// error, or a format that cannot be encoded here.
using OpenVoiceInput = IVoiceInput*(std::int32_t* error);
using MakeVoiceEncoder = IVoiceEncoder*(const VoiceFormat* format);

constexpr char kOpenVoiceInput[] = "QxNetOpenVoiceInput";
constexpr char kMakeVoiceEncoder[] = "QxNetMakeVoiceEncoder";

} // namespace sdk
