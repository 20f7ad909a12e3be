#include "simulator/device/Exchanges.h"

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

/// The sizes that a batch announces.
struct BatchShape
{
    unsigned count = 0;
    std::size_t condition = 0;
    std::size_t size = 0;
};

std::optional<BatchShape> ShapeOf(const Call& call)
{
    const auto count = NumberIn(call.request.query, "count");
    const auto condition = NumberIn(call.request.query, "condition");
    const auto size = NumberIn(call.request.query, "size");
    if (!count || !condition || !size || *count == 0 || *count > kBatchItems ||
        *condition != sizeof(std::uint32_t) * 19)
        return std::nullopt;
    return BatchShape{*count, *condition, *size};
}

/// The channel of a batch's item: the second word of its condition.
unsigned ChannelOf(const std::string& body, const BatchShape& shape, unsigned item)
{
    std::uint32_t channel = 0;
    std::memcpy(&channel, body.data() + item * shape.condition + 4, sizeof channel);
    return channel;
}

void PutWord(std::string& octets, std::size_t at, std::uint32_t word)
{
    std::memcpy(octets.data() + at, &word, sizeof word);
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
    const auto channel = NumberIn(call.request.query, "channel");
    return channel ? AnswerOf(configuration.Get(call.number, *channel)) : AnswerOf(kBadRequest);
}

HttpAnswer SetConfig(CConfiguration& configuration, const Call& call)
{
    const auto channel = NumberIn(call.request.query, "channel");
    return channel ? AnswerOf(configuration.Set(call.number, *channel, call.request.body))
                   : AnswerOf(kBadRequest);
}

HttpAnswer GetBatch(CConfiguration& configuration, const Call& call)
{
    const CommandRow* row = FindGet(call.number);
    if (!row)
        return AnswerOf(kUnknownCommand);
    const auto shape = ShapeOf(call);
    const std::string& body = call.request.body;
    if (!shape || shape->size != row->size || body.size() != shape->count * shape->condition)
        return AnswerOf(kBadRequest);
    const std::size_t words = shape->count * sizeof(std::uint32_t);
    std::string octets(words + shape->count * shape->size, '\0');
    for (unsigned item = 0; item < shape->count; ++item) {
        const Outcome outcome = configuration.Get(call.number, ChannelOf(body, *shape, item));
        if (const auto* refused = std::get_if<Refused>(&outcome))
            PutWord(octets, item * sizeof(std::uint32_t), refused->error);
        else
            octets.replace(words + item * shape->size, shape->size, *std::get<Octets>(outcome));
    }
    return AnswerOf(Outcome(std::make_shared<const std::string>(std::move(octets))));
}

HttpAnswer SetBatch(CConfiguration& configuration, const Call& call)
{
    const CommandRow* row = FindSet(call.number);
    if (!row)
        return AnswerOf(kUnknownCommand);
    const auto shape = ShapeOf(call);
    const std::string& body = call.request.body;
    if (!shape || shape->size != row->size || body.size() != shape->count * (shape->condition + shape->size))
        return AnswerOf(kBadRequest);
    std::string words(shape->count * sizeof(std::uint32_t), '\0');
    for (unsigned item = 0; item < shape->count; ++item) {
        const std::size_t at = shape->count * shape->condition + item * shape->size;
        const auto refused =
            configuration.Set(call.number, ChannelOf(body, *shape, item), body.substr(at, shape->size));
        if (refused)
            PutWord(words, item * sizeof(std::uint32_t), refused->error);
    }
    return AnswerOf(Outcome(std::make_shared<const std::string>(std::move(words))));
}

/// The condition of every command that the simulator knows is the channel's number, in four octets.
HttpAnswer GetStandard(CConfiguration& configuration, const Call& call)
{
    if (call.request.body.size() != sizeof(std::uint32_t))
        return AnswerOf(FindGet(call.number) ? kBadRequest : kUnknownCommand);
    return AnswerOf(configuration.Get(call.number, StructureOf<std::uint32_t>(call.request.body)));
}

HttpAnswer SetStandard(CConfiguration& configuration, const Call& call)
{
    const auto condition = NumberIn(call.request.query, "condition");
    const std::string& body = call.request.body;
    if (!FindSet(call.number))
        return AnswerOf(kUnknownCommand);
    if (condition != sizeof(std::uint32_t) || body.size() < *condition || body.size() > kStandardLimit)
        return AnswerOf(kBadRequest);
    return AnswerOf(
        configuration.Set(call.number, StructureOf<std::uint32_t>(body), body.substr(*condition)));
}

} // namespace simulator
