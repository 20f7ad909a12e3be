#pragma once

#include "Protocol/JSONStruct/ParseJSONUtil.h"
#include "logical/Communication/RouteTable.h"

#include <type_traits>
#include <utility>

namespace video {

/// Says that the answer is longer than the channel takes.
RouteAnswer TooLongAnswer();

/// A handler of a route whose body holds the structure Body, and whose answer is the one, or holds the
/// structure, that work gives:
///
///     http.Bind(route::kLocalFileQuery, AnswerTo<LocalFileQuery>(answer, [&](const LocalFileQuery& query) {
///         return FilesOf(query);
///     }));
///
/// A body that does not hold the structure has its line in the log and is dropped without an answer.
template<typename Body, typename Work>
LPCHandler AnswerTo(AnswerCall answer, Work work)
{
    return [answer = std::move(answer), work = std::move(work)](const lpcclient::LPCCallBackData& call) {
        Body body;
        if (!protocol::TParseJSONStr(body, call.body))
            return;
        if constexpr (std::is_same_v<decltype(work(body)), RouteAnswer>)
            answer(call, work(body));
        else
            answer(call, {protocol::WriteJSONStr(work(body))});
    };
}

} // namespace video
