#include "LPC_Server/PendingRequests.h"

#include "LPC_Wire/Limits.h"

#include <random>

namespace lpcserver {

/// Identifiers start anywhere, so that a reply meant for a server that is gone does not meet a request of its
/// successor.
CPendingRequests::CPendingRequests() : m_firstId(RequestId{std::random_device()()} << 16), m_lastId(m_firstId)
{}

RequestId CPendingRequests::Add(ClientId client, lpc::TimePoint deadline, AnswerCallBack onAnswer)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_requests.size() >= lpc::kMaxPendingAnswers)
        return 0;
    const RequestId id = ++m_lastId;
    m_requests.emplace(id, Request{client, deadline, std::move(onAnswer)});
    m_deadlines.emplace(deadline, id);
    return id;
}

std::optional<AnswerCallBack> CPendingRequests::Take(ClientId client, RequestId id)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_requests.find(id);
    if (found == m_requests.end() || found->second.client != client)
        return std::nullopt;
    return Remove(found);
}

std::vector<AnswerCallBack> CPendingRequests::TakeAllOf(ClientId client)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<AnswerCallBack> taken;
    for (auto request = m_requests.begin(); request != m_requests.end();) {
        const auto current = request++;
        if (current->second.client == client)
            taken.push_back(Remove(current));
    }
    return taken;
}

std::vector<AnswerCallBack> CPendingRequests::TakeExpired(lpc::TimePoint now)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<AnswerCallBack> taken;
    while (!m_deadlines.empty() && m_deadlines.begin()->first <= now)
        taken.push_back(Remove(m_requests.find(m_deadlines.begin()->second)));
    return taken;
}

lpc::TimePoint CPendingRequests::NextDeadline() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_deadlines.empty() ? lpc::kForever : m_deadlines.begin()->first;
}

bool CPendingRequests::WasUsed(RequestId id) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return id > m_firstId && id <= m_lastId;
}

AnswerCallBack CPendingRequests::Remove(Table::iterator request)
{
    m_deadlines.erase({request->second.deadline, request->first});
    AnswerCallBack onAnswer = std::move(request->second.onAnswer);
    m_requests.erase(request);
    return onAnswer;
}

} // namespace lpcserver
