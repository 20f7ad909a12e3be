#pragma once

#include "simulator/device/Configuration.h"

namespace simulator {

/// A request whose path was taken apart.
struct Call
{
    const HttpRequest& request;
    std::string stem;    ///< the path behind ".../v1/" without the number
    unsigned number = 0; ///< its last segment: command, kind or voice channel
};

/// None for a path that is none of the protocol's.
std::optional<Call> TakeApart(const HttpRequest& request);

/// The decimal value of a name in a query such as "channel=3&rate=8000"; none when it is missing or no
/// number.
std::optional<unsigned> NumberIn(const std::string& query, const char* name);

/// The exchanges about configuration, as the protocol lays them out.
HttpAnswer GetConfig(CConfiguration& configuration, const Call& call);
HttpAnswer SetConfig(CConfiguration& configuration, const Call& call);
HttpAnswer GetBatch(CConfiguration& configuration, const Call& call);
HttpAnswer SetBatch(CConfiguration& configuration, const Call& call);
HttpAnswer GetStandard(CConfiguration& configuration, const Call& call);
HttpAnswer SetStandard(CConfiguration& configuration, const Call& call);

HttpAnswer AnswerOf(const Refused& refused);
HttpAnswer AnswerOf(const std::optional<Refused>& refused); ///< 204 when there is none
HttpAnswer AnswerOf(const Outcome& outcome);

} // namespace simulator
