#pragma once

#include "LPC_Server/LPC_Server.h"

#include "LPC_Wire/LocalSocket.h"

#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <vector>

namespace lpcserver {

/// The requests that wait for clients' answers. Each callback leaves the table exactly once. Any thread.
class CPendingRequests
{
public:
    CPendingRequests();

    /// The new request's identifier; 0 when too many wait.
    RequestId Add(ClientId client, lpc::TimePoint deadline, AnswerCallBack onAnswer);

    /// The callback of a request of that client, which then waits no longer; empty when there is none.
    std::optional<AnswerCallBack> Take(ClientId client, RequestId id);
    std::vector<AnswerCallBack> TakeAllOf(ClientId client);
    std::vector<AnswerCallBack> TakeExpired(lpc::TimePoint now);

    /// When the next request expires.
    lpc::TimePoint NextDeadline() const;

    /// Whether the identifier was ever given to a request.
    bool WasUsed(RequestId id) const;

private:
    struct Request
    {
        ClientId client = 0;
        lpc::TimePoint deadline;
        AnswerCallBack onAnswer;
    };
    using Table = std::map<RequestId, Request>;

    AnswerCallBack Remove(Table::iterator request);

    mutable std::mutex m_mutex;
    Table m_requests;
    std::set<std::pair<lpc::TimePoint, RequestId>> m_deadlines;
    RequestId m_firstId;
    RequestId m_lastId;
};

} // namespace lpcserver
