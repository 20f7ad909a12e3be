#include "QxNetSDK/library/LastError.h"
#include "QxNetSDK/library/ability/AbilityDocument.h"
#include "QxNetSDK/library/session/Library.h"

#include <cstring>

using sdk::Failure;

namespace {

bool IsBlock(const void* data, std::uint32_t size)
{
    return size <= sdk::kMostStandardBytes && (data || size == 0);
}

std::string Block(const void* data, std::uint32_t size)
{
    return size == 0 ? std::string() : std::string(static_cast<const char*>(data), size);
}

Failure GetStandard(std::int32_t login, std::uint32_t command, tagNET_DVR_STD_CONFIG* config)
{
    if (command == 0 || !config || !IsBlock(config->condition, config->conditionSize) ||
        !IsBlock(config->output, config->outputSize))
        return {QXNET_ERROR_ARGUMENT};
    const std::string target = sdk::kRoot + ("std/get/" + std::to_string(command));
    const sdk::Request request{"POST",
                               target,
                               Block(config->condition, config->conditionSize),
                               {200, 0, sdk::kMostStandardBytes},
                               true};
    sdk::Answer answer;
    if (const Failure failure = sdk::CallDevice(login, request, answer))
        return failure;
    const auto length = static_cast<std::uint32_t>(answer.body.size());
    if (length > config->outputSize)
        return {QXNET_ERROR_BUFFER_TOO_SMALL, length};
    if (length > 0)
        std::memcpy(config->output, answer.body.data(), length);
    config->outputLength = length;
    return {};
}

Failure SetStandard(std::int32_t login, std::uint32_t command, const tagNET_DVR_STD_CONFIG* config)
{
    if (command == 0 || !config || !IsBlock(config->condition, config->conditionSize) ||
        !IsBlock(config->input, config->inputSize))
        return {QXNET_ERROR_ARGUMENT};
    const std::string target = sdk::kRoot + ("std/set/" + std::to_string(command)) +
                               "?condition=" + std::to_string(config->conditionSize);
    const sdk::Request request{"POST",
                               target,
                               Block(config->condition, config->conditionSize) +
                                   Block(config->input, config->inputSize),
                               {204, 0, 0},
                               false};
    sdk::Answer answer;
    return sdk::CallDevice(login, request, answer);
}

Failure GetAbility(std::int32_t login, std::uint32_t kind, std::int32_t channel, char* text,
                   std::uint32_t capacity, std::uint32_t* length)
{
    if (kind < QXNET_ABILITY_CHANNEL_INPUT || kind > QXNET_ABILITY_VCA || channel < 0 || !length ||
        (!text && capacity > 0))
        return {QXNET_ERROR_ARGUMENT};
    const std::string target =
        sdk::kRoot + ("ability/" + std::to_string(kind)) + "?channel=" + std::to_string(channel);
    sdk::Answer answer;
    if (const Failure failure =
            sdk::CallDevice(login, {"GET", target, {}, {200, 1, sdk::kMostAbilityBytes}, true}, answer))
        return failure;
    if (!sdk::IsAbilityDocument(answer.body))
        return {QXNET_ERROR_UNREADABLE};
    *length = static_cast<std::uint32_t>(answer.body.size());
    if (answer.body.size() >= capacity)
        return {QXNET_ERROR_BUFFER_TOO_SMALL, *length + 1};
    std::memcpy(text, answer.body.c_str(), answer.body.size() + 1);
    return {};
}

} // namespace

extern "C" {

int NET_DVR_GetSTDConfig(int32_t login, uint32_t command, struct tagNET_DVR_STD_CONFIG* config)
{
    return sdk::Outcome([=] { return GetStandard(login, command, config); });
}

int NET_DVR_SetSTDConfig(int32_t login, uint32_t command, struct tagNET_DVR_STD_CONFIG* config)
{
    return sdk::Outcome([=] { return SetStandard(login, command, config); });
}

int QxNet_GetAbility(int32_t login, uint32_t kind, int32_t channel, char* text, uint32_t capacity,
                     uint32_t* length)
{
    return sdk::Outcome([=] { return GetAbility(login, kind, channel, text, capacity, length); });
}

} // extern "C"
