#include "LPC_Server/LPC_Server.h"

#include "LPC_Server/ServerLoop.h"

#include <future>

namespace lpcserver {

struct CLPCServer::State
{
    State(IServerEvents& events, const ServerLimits& limits) : loop(events, limits) {}
    CServerLoop loop;
};

CLPCServer::CLPCServer(IServerEvents& events, const ServerLimits& limits)
    : m_state(std::make_unique<State>(events, limits))
{}

CLPCServer::~CLPCServer() = default;

int CLPCServer::Start(const std::string& serverName)
{
    return m_state->loop.Start(serverName);
}

void CLPCServer::Stop()
{
    m_state->loop.Stop();
}

void CLPCServer::SetAccepting(bool accepting)
{
    m_state->loop.SetAccepting(accepting);
}

int CLPCServer::Notify(ClientId client, const lpc::Message& notification)
{
    return m_state->loop.Post(client, lpc::Kind::Notification, 0, notification.headers, notification.body);
}

int CLPCServer::Reply(ClientId client, const lpc::ReplyData& reply)
{
    if (reply.requestId == 0)
        return lpc::kInvalidArgument;
    return m_state->loop.Post(client, lpc::Kind::Answer, reply.requestId, reply.headers, reply.body);
}

int CLPCServer::Send(ClientId client, const lpc::Message& request, std::uint32_t timeoutMs,
                     AnswerCallBack onAnswer)
{
    return m_state->loop.Ask(client, request, timeoutMs, std::move(onAnswer));
}

int CLPCServer::SendEx(ClientId client, const lpc::Message& request, std::uint32_t timeoutMs,
                       lpc::Message& answer)
{
    if (m_state->loop.OnOwnThread())
        return lpc::kInvalidArgument;
    struct Result
    {
        int error;
        lpc::Message answer;
    };
    const auto promise = std::make_shared<std::promise<Result>>();
    auto future = promise->get_future();
    const int error =
        m_state->loop.Ask(client, request, timeoutMs, [promise](int result, const lpc::Message& data) {
            promise->set_value({result, data});
        });
    if (error != lpc::kNoError)
        return error;
    Result result = future.get();
    answer = std::move(result.answer);
    return result.error;
}

} // namespace lpcserver
