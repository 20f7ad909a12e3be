#pragma once

#include <functional>

namespace framework {

/// How a question to a route of the component ended.
enum class AskOutcome {
    Answered,
    NotThere,   ///< the component is not ready, or left before it answered
    NoAnswer,   ///< not within the time
    Refused,    ///< an answer with an error
    Unreadable, ///< an answer that does not hold what was asked for
};

/// For a log: "the component did not answer in time" and so on.
const char* NameOf(AskOutcome outcome);

/// The end of a question; value holds something only when it was answered.
template<typename Answer>
struct Asked
{
    AskOutcome outcome = AskOutcome::NotThere;
    Answer value;
};

/// Called once, on a thread of the core that may be kept busy, as nothing but other answers waits for it;
/// after the core's end on the asking thread.
template<typename Answer>
using OnAsked = std::function<void(const Asked<Answer>& answer)>;

} // namespace framework
