#include "QxNetSDK/library/LastError.h"
#include "QxNetSDK/library/http/Headers.h"
#include "QxNetSDK/library/session/DeviceChecks.h"
#include "QxNetSDK/library/session/Library.h"

#include <cstring>

using sdk::Failure;

namespace {

using sdk::kRoot;

std::string Text(const void* data, std::size_t size)
{
    return size == 0 ? std::string() : std::string(static_cast<const char*>(data), size);
}

bool IsConfigCall(std::uint32_t command, std::int32_t channel, const void* structure, std::uint32_t size)
{
    return command != 0 && channel >= 0 && structure && size > 0 && size <= sdk::kMostBodyBytes;
}

std::string ConfigTarget(std::uint32_t command, std::int32_t channel)
{
    return kRoot + ("config/" + std::to_string(command)) + "?channel=" + std::to_string(channel);
}

Failure GetConfig(std::int32_t login, std::uint32_t command, std::int32_t channel, void* structure,
                  std::uint32_t size)
{
    if (!IsConfigCall(command, channel, structure, size))
        return {QXNET_ERROR_ARGUMENT};
    const sdk::Request request{"GET", ConfigTarget(command, channel), {}, {200, size, size}, true};
    sdk::Answer answer;
    if (const Failure failure = sdk::CallDevice(login, request, answer))
        return failure;
    if (const Failure failure = sdk::CheckStructure(command, answer.body.data(), size))
        return failure;
    std::memcpy(structure, answer.body.data(), size);
    return {};
}

Failure SetConfig(std::int32_t login, std::uint32_t command, std::int32_t channel, const void* structure,
                  std::uint32_t size)
{
    if (!IsConfigCall(command, channel, structure, size))
        return {QXNET_ERROR_ARGUMENT};
    const sdk::Request request{
        "PUT", ConfigTarget(command, channel), Text(structure, size), {204, 0, 0}, false};
    sdk::Answer answer;
    return sdk::CallDevice(login, request, answer);
}

/// A batch: its items and the sizes of one condition and one structure.
struct Batch
{
    std::uint32_t command = 0;
    std::uint32_t count = 0;
    std::uint32_t condition = 0;
    std::uint32_t structure = 0;
};

/// False when the sizes are not those of count items, or are too large for one exchange.
bool ReadBatch(std::uint32_t command, std::uint32_t count, std::uint32_t conditionSize, std::uint32_t size,
               Batch& batch)
{
    if (command == 0 || count == 0 || count > sdk::kMostBatchItems || conditionSize == 0 || size == 0)
        return false;
    batch = {command, count, conditionSize / count, size / count};
    const std::uint64_t all = std::uint64_t{conditionSize} + size + count * sizeof(std::uint32_t);
    return conditionSize % count == 0 && size % count == 0 && all <= sdk::kMostBodyBytes;
}

std::string BatchTarget(const char* kind, const Batch& batch)
{
    return kRoot + std::string("batch/") + kind + "/" + std::to_string(batch.command) +
           "?count=" + std::to_string(batch.count) + "&condition=" + std::to_string(batch.condition) +
           "&size=" + std::to_string(batch.structure);
}

std::vector<std::uint32_t> StatusWords(const std::string& body, std::uint32_t count)
{
    std::vector<std::uint32_t> words(count);
    std::memcpy(words.data(), body.data(), count * sizeof words[0]);
    for (std::uint32_t& word : words) {
        if (word != 0 && !sdk::IsDeviceError(word))
            word = QXNET_ERROR_DEVICE;
    }
    return words;
}

/// Checks the structures behind the status words; those of failed items become zero.
Failure CheckItems(const Batch& batch, const std::vector<std::uint32_t>& words, char* structures)
{
    for (std::uint32_t i = 0; i < batch.count; ++i, structures += batch.structure) {
        if (words[i] != 0)
            std::memset(structures, 0, batch.structure);
        else if (const Failure failure = sdk::CheckStructure(batch.command, structures, batch.structure))
            return failure;
    }
    return {};
}

Failure GetBatch(std::int32_t login, const Batch& batch, const void* condition, std::uint32_t* status,
                 void* structures)
{
    const std::uint32_t statusBytes = batch.count * static_cast<std::uint32_t>(sizeof *status);
    const std::uint32_t size = batch.count * batch.structure;
    const sdk::Request request{"POST",
                               BatchTarget("get", batch),
                               Text(condition, batch.count * batch.condition),
                               {200, statusBytes + size, statusBytes + size},
                               true};
    sdk::Answer answer;
    if (const Failure failure = sdk::CallDevice(login, request, answer))
        return failure;
    const std::vector<std::uint32_t> words = StatusWords(answer.body, batch.count);
    if (const Failure failure = CheckItems(batch, words, answer.body.data() + statusBytes))
        return failure;
    std::memcpy(status, words.data(), statusBytes);
    std::memcpy(structures, answer.body.data() + statusBytes, size);
    return {};
}

Failure SetBatch(std::int32_t login, const Batch& batch, const void* condition, std::uint32_t* status,
                 const void* structures)
{
    const std::uint32_t statusBytes = batch.count * static_cast<std::uint32_t>(sizeof *status);
    const sdk::Request request{"POST",
                               BatchTarget("set", batch),
                               Text(condition, batch.count * batch.condition) +
                                   Text(structures, batch.count * batch.structure),
                               {200, statusBytes, statusBytes},
                               false};
    sdk::Answer answer;
    if (const Failure failure = sdk::CallDevice(login, request, answer))
        return failure;
    std::memcpy(status, StatusWords(answer.body, batch.count).data(), statusBytes);
    return {};
}

} // namespace

extern "C" {

int NET_DVR_GetDVRConfig(int32_t login, uint32_t command, int32_t channel, void* structure, uint32_t size)
{
    return sdk::Outcome([=] { return GetConfig(login, command, channel, structure, size); });
}

int NET_DVR_SetDVRConfig(int32_t login, uint32_t command, int32_t channel, const void* structure,
                         uint32_t size)
{
    return sdk::Outcome([=] { return SetConfig(login, command, channel, structure, size); });
}

int NET_DVR_GetDeviceConfig(int32_t login, uint32_t command, uint32_t count, const void* condition,
                            uint32_t conditionSize, uint32_t* status, void* structures, uint32_t size)
{
    return sdk::Outcome([=]() -> Failure {
        Batch batch;
        if (!condition || !status || !structures || !ReadBatch(command, count, conditionSize, size, batch))
            return {QXNET_ERROR_ARGUMENT};
        return GetBatch(login, batch, condition, status, structures);
    });
}

int NET_DVR_SetDeviceConfig(int32_t login, uint32_t command, uint32_t count, const void* condition,
                            uint32_t conditionSize, uint32_t* status, const void* structures, uint32_t size)
{
    return sdk::Outcome([=]() -> Failure {
        Batch batch;
        if (!condition || !status || !structures || !ReadBatch(command, count, conditionSize, size, batch))
            return {QXNET_ERROR_ARGUMENT};
        return SetBatch(login, batch, condition, status, structures);
    });
}

} // extern "C"
