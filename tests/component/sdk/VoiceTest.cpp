#include "SdkClient.h"
#include "support/DeviceSim.h"
#include "support/FileContent.h"
#include "support/WaitUntil.h"

#include <atomic>
#include <chrono>
#include <cmath>
#include <thread>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kTone = 1000; ///< Hz

/// A tone as the program's own source of sound.
class CTone
{
public:
    CTone() { EXPECT_EQ(QxNet_SetAudioSource(&CTone::Fill, this), 1); }
    ~CTone()
    {
        EXPECT_EQ(NET_DVR_ClientAudioStop(), 1);
        EXPECT_EQ(QxNet_SetAudioSource(nullptr, nullptr), 1);
    }

    int Blocks() const { return m_blocks; }
    void WaitFor(int blocks) const
    {
        const int wanted = m_blocks + blocks;
        EXPECT_TRUE(WaitUntil([&] { return m_blocks >= wanted; }));
    }

private:
    static int Fill(std::int16_t* samples, std::uint32_t count, void* user)
    {
        auto& self = *static_cast<CTone*>(user);
        for (std::uint32_t i = 0; i < count; ++i)
            samples[i] = static_cast<std::int16_t>(12000 * std::sin(2 * kPi * kTone * self.m_at++ / 16000));
        ++self.m_blocks;
        return 1;
    }

    std::uint32_t m_at = 0;
    std::atomic<int> m_blocks = 0;
};

std::int32_t LogIn(const DeviceSim& sim, std::size_t device = 0)
{
    QxNetLogin login = CSdk::To(sim.Port(device), 10000);
    std::strcpy(login.password, "vantor-device");
    return QxNet_Login(&login, nullptr);
}

std::string Wav(const DeviceSim& sim)
{
    return FileContent(sim.StateFolder() + "voice-0-1.wav");
}

/// The sound of a WAV file as the simulator writes it.
std::string SoundOf(const std::string& wav)
{
    return wav.size() < 44 ? std::string() : wav.substr(44);
}

/// The part of the power of 16-bit samples that is at the frequency (Goertzel).
double ShareOfTone(const std::string& sound, int rate, int tone)
{
    const double coefficient = 2 * std::cos(2 * kPi * tone / rate);
    const std::size_t count = sound.size() / 2;
    double before = 0, last = 0, all = 0;
    for (std::size_t i = 0; i < count; ++i) {
        std::int16_t sample = 0;
        std::memcpy(&sample, &sound[i * 2], sizeof sample);
        const double next = sample + coefficient * last - before;
        before = std::exchange(last, next);
        all += double(sample) * sample;
    }
    const double power = last * last + before * before - coefficient * last * before;
    return all == 0 ? 0 : power / (all * double(count) / 2);
}

/// The time of whole ADTS frames, 1024 samples each; 0 when they do not follow each other to the end.
double SecondsOfAdts(const std::string& sound, int rate)
{
    std::size_t at = 0;
    int frames = 0;
    for (; at + 7 <= sound.size(); ++frames) {
        const auto octet = [&](std::size_t i) { return static_cast<unsigned char>(sound[at + i]); };
        const std::size_t length = (octet(3) & 3u) << 11 | octet(4) << 3 | octet(5) >> 5;
        if (octet(0) != 0xFF || octet(1) != 0xF1 || length < 7)
            return 0;
        at += length;
    }
    return at == sound.size() ? frames * 1024.0 / rate : 0;
}

bool IsOver(std::int32_t session)
{
    // The channel is free again when the upload has ended.
    const std::int32_t again = NET_DVR_AddDVR_V30(session, 1);
    return again >= 0 && NET_DVR_DelDVR_V30(again) == 1;
}

ErrorTriple Refusal(int encoding)
{
    return {QXNET_ERROR_AUDIO_ENCODING, static_cast<std::uint32_t>(encoding), 0};
}

} // namespace

struct Spoken
{
    const char* name;
    const char* option; ///< of the simulator
    int encoding;
    int rate;
    double bytesPerSecond; ///< in the file; 0: frames that tell their length
    bool isDecoded;        ///< in the file
};

void PrintTo(const Spoken& spoken, std::ostream* out)
{
    *out << spoken.name;
}

class SdkSpoken : public testing::TestWithParam<Spoken>
{};

TEST_P(SdkSpoken, IsHeardWholeAndAtItsPitchUntilTheDeviceIsRemoved)
{
    const Spoken& spoken = GetParam();
    CSdk sdk;
    DeviceSim sim({"--devices", "1", "--channels", "1", "--voice", spoken.option}, DeviceSim::Keeps::State);
    const std::int32_t session = LogIn(sim);
    QxNetAudioCompress compress{};
    ASSERT_EQ(NET_DVR_GetCurrentAudioCompress(session, &compress), 1) << testing::PrintToString(LastError());
    EXPECT_EQ(compress.encoding, spoken.encoding);
    CTone tone;
    const std::int32_t device = NET_DVR_AddDVR_V30(session, 1);
    ASSERT_GE(device, 0) << testing::PrintToString(LastError());
    ASSERT_EQ(NET_DVR_ClientAudioStart_V30(nullptr, nullptr), 1);
    EXPECT_EQ(NET_DVR_ClientAudioStart_V30(nullptr, nullptr), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_AUDIO_STARTED, 0, 0}));
    tone.WaitFor(40);
    EXPECT_EQ(NET_DVR_ClientAudioStop(), 1);
    EXPECT_EQ(NET_DVR_DelDVR_V30(device), 1);
    EXPECT_EQ(NET_DVR_DelDVR_V30(device), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_HANDLE, 0, 0}));

    const std::string sound = SoundOf(Wav(sim));
    // All but what encoders and filters still hold: a frame, and some milliseconds.
    const double seconds = tone.Blocks() * 0.02;
    const double heard = spoken.bytesPerSecond == 0
                             ? SecondsOfAdts(sound, spoken.rate)
                             : static_cast<double>(sound.size()) / spoken.bytesPerSecond;
    EXPECT_NEAR(heard, seconds - 0.13, 0.15);
    EXPECT_GT(spoken.isDecoded ? ShareOfTone(sound, spoken.rate, kTone) : 1, 0.97);
}

INSTANTIATE_TEST_SUITE_P(Encodings, SdkSpoken,
                         testing::Values(Spoken{"MuLaw", "0/8", QXNET_AUDIO_G711_MU, 8000, 16000, true},
                                         Spoken{"ALaw", "1/16", QXNET_AUDIO_G711_A, 16000, 32000, true},
                                         Spoken{"G722", "2/16", QXNET_AUDIO_G722, 16000, 8000, false},
                                         Spoken{"Pcm", "3/48", QXNET_AUDIO_PCM, 48000, 96000, true},
                                         Spoken{"Mp2", "4/16", QXNET_AUDIO_MP2, 16000, 8000, false},
                                         Spoken{"Mp3", "5/16", QXNET_AUDIO_MP3, 16000, 8000, false},
                                         Spoken{"G726", "6/8", QXNET_AUDIO_G726, 8000, 4000, false},
                                         Spoken{"Opus", "7/16", QXNET_AUDIO_OPUS, 16000, 8000, false},
                                         Spoken{"Aac", "8/16", QXNET_AUDIO_AAC, 16000, 0, false},
                                         Spoken{"Adpcm", "9/8", QXNET_AUDIO_ADPCM_IMA, 8000, 4055, false}),
                         [](const auto& info) { return info.param.name; });

TEST(SdkVoice, ADeviceTellsHowItTakesVoice)
{
    CSdk sdk;
    DeviceSim sim({"--devices", "1", "--channels", "1"});
    const std::int32_t session = LogIn(sim);
    QxNetAudioCompress compress{};
    ASSERT_EQ(NET_DVR_GetCurrentAudioCompress(session, &compress), 1) << testing::PrintToString(LastError());
    EXPECT_EQ(compress.encoding, QXNET_AUDIO_G711_MU);
    EXPECT_EQ(compress.sampleRate, 8);
    EXPECT_EQ(NET_DVR_GetCurrentAudioCompress(session, nullptr), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_ARGUMENT, 0, 0}));
    ASSERT_EQ(QxNet_Logout(session), 1);
    EXPECT_EQ(NET_DVR_GetCurrentAudioCompress(session, &compress), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_HANDLE, 0, 0}));
}

TEST(SdkVoice, WhatADeviceDoesNotTakeIsRefused)
{
    CSdk sdk;
    CTone tone;
    DeviceSim sim({"--devices", "1", "--channels", "1"});
    const std::int32_t session = LogIn(sim);
    const std::int32_t other = LogIn(sim);
    const std::int32_t device = NET_DVR_AddDVR_V30(session, 1);
    ASSERT_GE(device, 0) << testing::PrintToString(LastError());
    EXPECT_EQ(NET_DVR_AddDVR_V30(other, 1), -1);
    EXPECT_EQ(LastError().code, static_cast<std::uint32_t>(QXNET_ERROR_AUDIO_BUSY));
    EXPECT_EQ(NET_DVR_AddDVR_V30(other, 2), -1);
    EXPECT_EQ(LastError().code, static_cast<std::uint32_t>(QXNET_ERROR_CHANNEL));
    EXPECT_EQ(NET_DVR_AddDVR_V30(other, 0), -1);
    EXPECT_EQ(LastError().code, static_cast<std::uint32_t>(QXNET_ERROR_ARGUMENT));
    ASSERT_EQ(QxNet_Logout(session), 1);
    EXPECT_EQ(NET_DVR_DelDVR_V30(device), 0);
    EXPECT_TRUE(WaitUntil([&] { return IsOver(other); }));

    sim.SetFaults(R"([{"path": "voice", "fault": "error", "status": 400, "error": 502}])");
    EXPECT_EQ(NET_DVR_AddDVR_V30(other, 1), -1);
    EXPECT_EQ(LastError(), Refusal(QXNET_AUDIO_G711_MU));
    for (const char* option : {"7/32", "10/8", "0/11"}) {
        DeviceSim unheard({"--devices", "1", "--channels", "1", "--voice", option});
        EXPECT_EQ(NET_DVR_AddDVR_V30(LogIn(unheard), 1), -1) << option;
        EXPECT_EQ(LastError(), Refusal(std::atoi(option)));
    }
}

TEST(SdkVoice, ADeviceThatIsGoneOrStallsIsLeftWhileTheOthersHearOn)
{
    using std::chrono::steady_clock;
    CSdk sdk;
    CTone tone;
    DeviceSim dying({"--devices", "1", "--channels", "1"});
    DeviceSim stalled({"--devices", "1", "--channels", "1", "--voice", "3/48", "--tls"});
    DeviceSim hearing({"--devices", "1", "--channels", "1", "--tls"}, DeviceSim::Keeps::State);
    QxNetLogin login = CSdk::To(stalled.Port(), 10000);
    std::strcpy(login.password, "vantor-device");
    login.useTls = 1;
    const std::int32_t slow = NET_DVR_AddDVR_V30(QxNet_Login(&login, nullptr), 1);
    login.port = hearing.Port();
    const std::int32_t heard = NET_DVR_AddDVR_V30(QxNet_Login(&login, nullptr), 1);
    const std::int32_t gone = NET_DVR_AddDVR_V30(LogIn(dying), 1);
    ASSERT_GE(std::min({slow, heard, gone}), 0) << testing::PrintToString(LastError());
    ASSERT_EQ(NET_DVR_ClientAudioStart_V30(nullptr, nullptr), 1);
    dying.Kill();
    stalled.Pause();
    tone.WaitFor(50);
    EXPECT_EQ(NET_DVR_DelDVR_V30(gone), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_HANDLE, 0, 0}));
    const auto begin = steady_clock::now();
    EXPECT_EQ(NET_DVR_DelDVR_V30(slow), 1);
    EXPECT_LT(steady_clock::now() - begin, std::chrono::seconds(2));
    EXPECT_EQ(NET_DVR_DelDVR_V30(heard), 1);
    EXPECT_GT(SoundOf(Wav(hearing)).size(), 16000u);
}

TEST(SdkVoice, StoppingEndsTheCallbackAlsoFromWithinIt)
{
    CSdk sdk;
    CTone tone;
    std::atomic<int> calls = 0;
    const auto count = [](const std::int16_t*, std::uint32_t samples, void* user) {
        EXPECT_EQ(samples, 320u);
        if (++*static_cast<std::atomic<int>*>(user) == 5) {
            EXPECT_EQ(NET_DVR_ClientAudioStop(), 1);
        }
    };
    ASSERT_EQ(NET_DVR_ClientAudioStart_V30(count, &calls), 1);
    EXPECT_TRUE(WaitUntil([&] { return calls >= 5; }));
    ASSERT_EQ(NET_DVR_ClientAudioStart_V30(nullptr, nullptr), 1);
    tone.WaitFor(5);
    EXPECT_EQ(calls, 5);
}
