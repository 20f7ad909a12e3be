#pragma once

#include "QxNetSDK/QxNetSDK.h"

#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// Stands in for the SDK while it lives: the whole C interface, with every call noted and the answers as the
/// test says. Without one alive every call fails as before QxNet_Init. One at a time; the C functions may be
/// called from any thread meanwhile. What a test does not script succeeds with zeros.
class FakeSdk
{
public:
    using Bytes = std::vector<uint8_t>;

    struct Call
    {
        std::string function;
        int32_t login = -1;
        uint32_t command = 0; ///< of an ability: the kind
        int32_t channel = -1;
        uint32_t count = 0;     ///< of a batch
        uint32_t size = 0;      ///< of all structures together, in bytes
        uint32_t firstWord = 0; ///< of the structure when the call was made: its size field
        Bytes input;            ///< what a Set sent
        Bytes condition;        ///< of a batch or a standard configuration
        std::thread::id thread;
    };

    /// What a failed call leaves behind for its thread.
    struct Errors
    {
        uint32_t error = QXNET_ERROR_NONE;
        uint32_t module = 0;
        uint32_t own = 0;
    };

    FakeSdk();
    ~FakeSdk();
    FakeSdk(const FakeSdk&) = delete;
    FakeSdk& operator=(const FakeSdk&) = delete;

    /// Every later call of the function fails.
    void Fail(const std::string& function, const Errors& errors);

    /// What a Get of the command, an ability of the kind, or a login (command QXNET_GET_DEVICE_INFO) and the
    /// voice encoding (QXNET_GET_AUDIO_COMPRESS) give; cut or filled with zeros to the caller's size.
    void Answer(uint32_t command, Bytes bytes);
    template<class Structure>
    void Answer(uint32_t command, const Structure& structure)
    {
        const auto* bytes = reinterpret_cast<const uint8_t*>(&structure);
        Answer(command, Bytes(bytes, bytes + sizeof(structure)));
    }

    /// The status words of every later batch; those missing are 0.
    void AnswerStatus(std::vector<uint32_t> status);

    std::vector<Call> Calls() const;
    void ForgetCalls();

    // For the C functions.
    bool Take(const Call& call);
    Bytes AnswerOf(uint32_t command) const;
    uint32_t StatusOf(uint32_t item) const;
    int32_t NextHandle();

private:
    mutable std::mutex m_mutex;
    std::vector<Call> m_calls;
    std::map<std::string, Errors> m_failures;
    std::map<uint32_t, Bytes> m_answers;
    std::vector<uint32_t> m_status;
    int32_t m_nextHandle = 0;
};
