#include "simulator/device/Exchanges.h"

#include "DeviceStructures/Values.h"

#include <charconv>

namespace simulator {

namespace {

constexpr std::string_view kRoot = "/vantor/device/v1/";
constexpr unsigned kBatchItems = 256;
constexpr std::size_t kStandardLimit = 1024 * 1024;

std::optional<unsigned> ParseNumber(std::string_view text)
{
    unsigned number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber ? std::optional<unsigned>(number) : std::nullopt;
}

using devices::ConfigCommand;
using devices::Scope;

/// The command that a request's number gets or sets, if it travels in batches or does not.
const ConfigCommand* FindOf(unsigned number, bool gets, bool inBatch)
{
    const ConfigCommand* command = devices::FindCommand(number);
    const bool fits = command && (gets ? command->get : command->set) == number &&
                      (command->scope == Scope::Item) == inBatch;
    return fits ? command : nullptr;
}

void PutWord(std::string& octets, std::size_t at, std::uint32_t word)
{
    std::memcpy(octets.data() + at, &word, sizeof word);
}

/// A batch whose sizes were checked.
struct Batch
{
    const ConfigCommand* command = nullptr;
    unsigned count = 0;
    std::size_t size = 0; ///< of a structure
    const std::string& body;

    std::string ConditionAt(unsigned item) const
    {
        return body.substr(item * sizeof(tagNET_DVR_CHANNEL_GROUP), sizeof(tagNET_DVR_CHANNEL_GROUP));
    }
    std::string StructureAt(unsigned item) const
    {
        return body.substr(count * sizeof(tagNET_DVR_CHANNEL_GROUP) + item * size, size);
    }
};

std::variant<Batch, Refused> BatchOf(const Call& call, bool gets)
{
    const ConfigCommand* command = FindOf(call.number, gets, true);
    if (!command)
        return kUnknownCommand;
    const std::string& query = call.request.query;
    const unsigned count = NumberIn(query, "count").value_or(0);
    Batch batch{command, count, command->layout().size, call.request.body};
    const std::size_t item = sizeof(tagNET_DVR_CHANNEL_GROUP) + (gets ? 0 : batch.size);
    if (count == 0 || count > kBatchItems ||
        NumberIn(query, "condition") != sizeof(tagNET_DVR_CHANNEL_GROUP) ||
        NumberIn(query, "size") != batch.size || batch.body.size() != count * item)
        return kBadRequest;
    return batch;
}

/// Does something for each item whose condition is good; the status words come first in what is returned.
template<class Work>
std::string ForEachItem(const Batch& batch, std::size_t answerSize, Work work)
{
    const std::size_t words = batch.count * sizeof(std::uint32_t);
    std::string octets(words + batch.count * answerSize, '\0');
    for (unsigned item = 0; item < batch.count; ++item) {
        const std::string condition = batch.ConditionAt(item);
        const auto group = StructureOf<tagNET_DVR_CHANNEL_GROUP>(condition);
        const bool isGood =
            !devices::Check(devices::ChannelGroupLayout(), condition.data(), condition.size());
        const std::optional<Refused> refused = isGood ? work(item, group, words + item * answerSize, octets)
                                                      : std::optional<Refused>(kBadRequest);
        if (refused)
            PutWord(octets, item * sizeof(std::uint32_t), refused->error);
    }
    return octets;
}

} // namespace

std::optional<unsigned> NumberIn(const std::string& query, const char* name)
{
    const std::string key = std::string(name) + '=';
    for (std::size_t at = 0; at < query.size();) {
        const std::size_t end = std::min(query.find('&', at), query.size());
        if (query.compare(at, key.size(), key) == 0)
            return ParseNumber(std::string_view(query).substr(at + key.size(), end - at - key.size()));
        at = end + 1;
    }
    return std::nullopt;
}

std::optional<Call> TakeApart(const HttpRequest& request)
{
    if (request.path.compare(0, kRoot.size(), kRoot) != 0)
        return std::nullopt;
    Call call{request, request.path.substr(kRoot.size()), 0};
    const std::size_t slash = call.stem.rfind('/');
    if (slash == std::string::npos)
        return call;
    const auto number = ParseNumber(std::string_view(call.stem).substr(slash + 1));
    if (!number)
        return std::nullopt;
    call.number = *number;
    call.stem.resize(slash);
    return call;
}

HttpAnswer AnswerOf(const Refused& refused)
{
    return Refusal(refused.status, refused.error);
}

HttpAnswer AnswerOf(const std::optional<Refused>& refused)
{
    if (refused)
        return AnswerOf(*refused);
    HttpAnswer answer;
    answer.status = 204;
    return answer;
}

HttpAnswer AnswerOf(const Outcome& outcome)
{
    if (const auto* refused = std::get_if<Refused>(&outcome))
        return AnswerOf(*refused);
    HttpAnswer answer;
    answer.body = std::get<Octets>(outcome);
    return answer;
}

HttpAnswer GetConfig(CConfiguration& configuration, const Call& call)
{
    const ConfigCommand* command = FindOf(call.number, true, false);
    const auto channel = NumberIn(call.request.query, "channel");
    if (!command)
        return AnswerOf(kUnknownCommand);
    return channel ? AnswerOf(configuration.Get(*command, *channel)) : AnswerOf(kBadRequest);
}

HttpAnswer SetConfig(CConfiguration& configuration, const Call& call)
{
    const ConfigCommand* command = FindOf(call.number, false, false);
    const auto channel = NumberIn(call.request.query, "channel");
    if (!command)
        return AnswerOf(kUnknownCommand);
    return channel ? AnswerOf(configuration.Set(*command, *channel, call.request.body))
                   : AnswerOf(kBadRequest);
}

HttpAnswer GetBatch(CConfiguration& configuration, const Call& call)
{
    const auto checked = BatchOf(call, true);
    if (const auto* refused = std::get_if<Refused>(&checked))
        return AnswerOf(*refused);
    const Batch& batch = std::get<Batch>(checked);
    const auto get = [&](unsigned, const tagNET_DVR_CHANNEL_GROUP& group, std::size_t at,
                         std::string& octets) -> std::optional<Refused> {
        const Outcome outcome = configuration.Get(*batch.command, group.channel, group.group);
        if (const auto* refused = std::get_if<Refused>(&outcome))
            return *refused;
        octets.replace(at, batch.size, *std::get<Octets>(outcome));
        return std::nullopt;
    };
    return AnswerOf(Outcome(std::make_shared<const std::string>(ForEachItem(batch, batch.size, get))));
}

HttpAnswer SetBatch(CConfiguration& configuration, const Call& call)
{
    const auto checked = BatchOf(call, false);
    if (const auto* refused = std::get_if<Refused>(&checked))
        return AnswerOf(*refused);
    const Batch& batch = std::get<Batch>(checked);
    const auto set = [&](unsigned item, const tagNET_DVR_CHANNEL_GROUP& group, std::size_t, std::string&) {
        return configuration.Set(*batch.command, group.channel, batch.StructureAt(item), group.group);
    };
    return AnswerOf(Outcome(std::make_shared<const std::string>(ForEachItem(batch, 0, set))));
}

/// The condition of every command that the simulator knows is the channel's number, in four octets.
HttpAnswer GetStandard(CConfiguration& configuration, const Call& call)
{
    const ConfigCommand* command = FindOf(call.number, true, false);
    const bool asksWiper = call.number == QXNET_SET_WIPER;
    if (!command && !asksWiper)
        return AnswerOf(kUnknownCommand);
    if (call.request.body.size() != sizeof(std::uint32_t))
        return AnswerOf(kBadRequest);
    const auto channel = StructureOf<std::uint32_t>(call.request.body);
    return asksWiper ? AnswerOf(Outcome(OctetsOf(configuration.WiperMoves(channel))))
                     : AnswerOf(configuration.Get(*command, channel));
}

HttpAnswer SetStandard(CConfiguration& configuration, const Call& call)
{
    const ConfigCommand* command = FindOf(call.number, false, false);
    const auto condition = NumberIn(call.request.query, "condition");
    const std::string& body = call.request.body;
    if (!command)
        return AnswerOf(kUnknownCommand);
    if (condition != sizeof(std::uint32_t) || body.size() < *condition || body.size() > kStandardLimit)
        return AnswerOf(kBadRequest);
    return AnswerOf(configuration.Set(*command, StructureOf<std::uint32_t>(body), body.substr(*condition)));
}

} // namespace simulator
