#include "FakeSdk.h"

#include <algorithm>
#include <atomic>
#include <cstring>

namespace {

std::atomic<FakeSdk*> g_sdk{nullptr};
thread_local FakeSdk::Errors t_errors;

FakeSdk::Bytes BytesOf(const void* data, uint32_t size)
{
    const auto* bytes = static_cast<const uint8_t*>(data);
    return data == nullptr ? FakeSdk::Bytes() : FakeSdk::Bytes(bytes, bytes + size);
}

uint32_t FirstWord(const void* data, uint32_t size)
{
    uint32_t word = 0;
    if (data != nullptr && size >= sizeof(word))
        std::memcpy(&word, data, sizeof(word));
    return word;
}

void Fill(void* out, uint32_t size, const FakeSdk::Bytes& answer)
{
    if (out == nullptr)
        return;
    std::memset(out, 0, size);
    std::memcpy(out, answer.data(), std::min<std::size_t>(size, answer.size()));
}

/// Notes the call; null when it fails.
FakeSdk* Enter(const FakeSdk::Call& call)
{
    FakeSdk* sdk = g_sdk;
    if (sdk == nullptr)
        t_errors = {QXNET_ERROR_NOT_INITIALISED, 0, 0};
    return sdk != nullptr && sdk->Take(call) ? sdk : nullptr;
}

FakeSdk::Call Named(const char* function, int32_t login = -1, int32_t channel = -1, uint32_t command = 0)
{
    FakeSdk::Call call;
    call.function = function;
    call.login = login;
    call.channel = channel;
    call.command = command;
    return call;
}

FakeSdk::Call WithStructures(FakeSdk::Call call, const void* structures, uint32_t size)
{
    call.size = size;
    call.firstWord = FirstWord(structures, size);
    return call;
}

FakeSdk::Call BatchOf(FakeSdk::Call call, uint32_t count, const void* condition, uint32_t conditionSize)
{
    call.count = count;
    call.condition = BytesOf(condition, conditionSize);
    return call;
}

void FillStatus(const FakeSdk& sdk, uint32_t* status, uint32_t count)
{
    for (uint32_t i = 0; i < count; ++i)
        status[i] = sdk.StatusOf(i);
}

} // namespace

FakeSdk::FakeSdk()
{
    t_errors = {};
    g_sdk = this;
}

FakeSdk::~FakeSdk()
{
    g_sdk = nullptr;
}

void FakeSdk::Fail(const std::string& function, const Errors& errors)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_failures[function] = errors;
}

void FakeSdk::Answer(uint32_t command, Bytes bytes)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_answers[command] = std::move(bytes);
}

void FakeSdk::AnswerStatus(std::vector<uint32_t> status)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_status = std::move(status);
}

std::vector<FakeSdk::Call> FakeSdk::Calls() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_calls;
}

void FakeSdk::ForgetCalls()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_calls.clear();
}

bool FakeSdk::Take(const Call& call)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_calls.push_back(call);
    m_calls.back().thread = std::this_thread::get_id();
    const auto failure = m_failures.find(call.function);
    if (failure == m_failures.end())
        return true;
    t_errors = failure->second;
    return false;
}

FakeSdk::Bytes FakeSdk::AnswerOf(uint32_t command) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto answer = m_answers.find(command);
    return answer == m_answers.end() ? Bytes() : answer->second;
}

uint32_t FakeSdk::StatusOf(uint32_t item) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return item < m_status.size() ? m_status[item] : 0;
}

int32_t FakeSdk::NextHandle()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_nextHandle++;
}

extern "C" {

int QxNet_Init(void)
{
    return Enter(Named(__func__)) != nullptr;
}

int QxNet_Cleanup(void)
{
    return Enter(Named(__func__)) != nullptr;
}

int QxNet_SetTrustFile(const char* path)
{
    FakeSdk::Call call = Named(__func__);
    call.input = BytesOf(path, path == nullptr ? 0 : static_cast<uint32_t>(std::strlen(path)));
    return Enter(call) != nullptr;
}

int32_t QxNet_Login(const QxNetLogin* login, QxNetDeviceInfo* info)
{
    FakeSdk::Call call = WithStructures(Named(__func__), login, sizeof(*login));
    call.input = BytesOf(login, sizeof(*login));
    FakeSdk* sdk = Enter(call);
    if (sdk == nullptr)
        return -1;
    Fill(info, sizeof(*info), sdk->AnswerOf(QXNET_GET_DEVICE_INFO));
    return sdk->NextHandle();
}

int QxNet_Logout(int32_t login)
{
    return Enter(Named(__func__, login)) != nullptr;
}

int NET_DVR_GetDVRConfig(int32_t login, uint32_t command, int32_t channel, void* structure, uint32_t size)
{
    FakeSdk* sdk = Enter(WithStructures(Named(__func__, login, channel, command), structure, size));
    if (sdk != nullptr)
        Fill(structure, size, sdk->AnswerOf(command));
    return sdk != nullptr;
}

int NET_DVR_SetDVRConfig(int32_t login, uint32_t command, int32_t channel, const void* structure,
                         uint32_t size)
{
    FakeSdk::Call call = WithStructures(Named(__func__, login, channel, command), structure, size);
    call.input = BytesOf(structure, size);
    return Enter(call) != nullptr;
}

int NET_DVR_GetDeviceConfig(int32_t login, uint32_t command, uint32_t count, const void* condition,
                            uint32_t conditionSize, uint32_t* status, void* structures, uint32_t size)
{
    FakeSdk* sdk = Enter(BatchOf(WithStructures(Named(__func__, login, -1, command), structures, size), count,
                                 condition, conditionSize));
    if (sdk == nullptr)
        return 0;
    FillStatus(*sdk, status, count);
    Fill(structures, size, sdk->AnswerOf(command));
    return 1;
}

int NET_DVR_SetDeviceConfig(int32_t login, uint32_t command, uint32_t count, const void* condition,
                            uint32_t conditionSize, uint32_t* status, const void* structures, uint32_t size)
{
    FakeSdk::Call call = BatchOf(WithStructures(Named(__func__, login, -1, command), structures, size), count,
                                 condition, conditionSize);
    call.input = BytesOf(structures, size);
    FakeSdk* sdk = Enter(call);
    if (sdk != nullptr)
        FillStatus(*sdk, status, count);
    return sdk != nullptr;
}

int NET_DVR_GetSTDConfig(int32_t login, uint32_t command, tagNET_DVR_STD_CONFIG* config)
{
    FakeSdk::Call call = WithStructures(Named(__func__, login, -1, command), config, sizeof(*config));
    call.condition = BytesOf(config->condition, config->conditionSize);
    FakeSdk* sdk = Enter(call);
    if (sdk == nullptr)
        return 0;
    const FakeSdk::Bytes answer = sdk->AnswerOf(command);
    Fill(config->output, config->outputSize, answer);
    config->outputLength = static_cast<uint32_t>(std::min<std::size_t>(config->outputSize, answer.size()));
    return 1;
}

int NET_DVR_SetSTDConfig(int32_t login, uint32_t command, tagNET_DVR_STD_CONFIG* config)
{
    FakeSdk::Call call = WithStructures(Named(__func__, login, -1, command), config, sizeof(*config));
    call.condition = BytesOf(config->condition, config->conditionSize);
    call.input = BytesOf(config->input, config->inputSize);
    return Enter(call) != nullptr;
}

int QxNet_GetAbility(int32_t login, uint32_t kind, int32_t channel, char* text, uint32_t capacity,
                     uint32_t* length)
{
    FakeSdk* sdk = Enter(Named(__func__, login, channel, kind));
    if (sdk == nullptr)
        return 0;
    const FakeSdk::Bytes answer = sdk->AnswerOf(kind);
    *length = static_cast<uint32_t>(answer.size());
    if (capacity <= answer.size()) {
        t_errors = {QXNET_ERROR_BUFFER_TOO_SMALL, static_cast<uint32_t>(answer.size()) + 1, 0};
        return 0;
    }
    Fill(text, static_cast<uint32_t>(answer.size()) + 1, answer);
    return 1;
}

int NET_DVR_GetCurrentAudioCompress(int32_t login, QxNetAudioCompress* compress)
{
    FakeSdk* sdk = Enter(Named(__func__, login));
    if (sdk != nullptr)
        Fill(compress, sizeof(*compress), sdk->AnswerOf(QXNET_GET_AUDIO_COMPRESS));
    return sdk != nullptr;
}

int QxNet_SetAudioSource(QxNetAudioSource, void*)
{
    return Enter(Named(__func__)) != nullptr;
}

int NET_DVR_ClientAudioStart_V30(QxNetAudioCallback, void*)
{
    return Enter(Named(__func__)) != nullptr;
}

int NET_DVR_ClientAudioStop(void)
{
    return Enter(Named(__func__)) != nullptr;
}

int32_t NET_DVR_AddDVR_V30(int32_t login, uint32_t voiceChannel)
{
    FakeSdk* sdk = Enter(Named(__func__, login, static_cast<int32_t>(voiceChannel)));
    return sdk == nullptr ? -1 : sdk->NextHandle();
}

int NET_DVR_DelDVR_V30(int32_t handle)
{
    FakeSdk::Call call = Named(__func__);
    call.command = static_cast<uint32_t>(handle);
    return Enter(call) != nullptr;
}

uint32_t NET_DVR_GetLastError(void)
{
    return t_errors.error;
}

uint32_t NET_DVR_GetLastErrorModelCode(uint32_t* own)
{
    if (own != nullptr)
        *own = t_errors.own;
    return t_errors.module;
}

} // extern "C"
