// How a server's connections end: one by one over a fault, or all when the server stops.

#include "LPC_Server/ServerLoop.h"

#include "LPC_Wire/Limits.h"

#include "Base/Log.h"

namespace lpcserver {
namespace {

constexpr std::size_t kEventsAtEnd = 16;

} // namespace

void CServerLoop::Close(const ClientPtr& client)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_clients.erase(client->Id()) == 0)
            return;
    }
    m_unfinishedBytes -= client->unfinishedBytes;
    client->Outbound().Break();
    m_poller.Remove(client->Handle());
    for (const AnswerCallBack& onAnswer : m_pending.TakeAllOf(client->Id()))
        onAnswer(lpc::kConnectionLost, {});
    if (client->name.empty())
        --m_newcomers;
    else
        m_events.OnClientDisconnected(client->Id());
}

void CServerLoop::CloseFaulty(const ClientPtr& client, lpc::Fault fault)
{
    if (fault == lpc::Fault::Version && client->name.empty())
        client->Refuse(0, lpc::kRefused);
    Log(static_cast<std::size_t>(fault), client->name, lpc::FaultText(fault));
    Close(client);
}

void CServerLoop::Drop(const ClientPtr& client, Misfortune misfortune)
{
    static constexpr const char* kTexts[] = {
        "ended inside a message",         "said no hello in time",
        "does not read what it is sent",  "belongs to another user",
        "there are too many connections", "the unfinished bodies of all clients are over the limit",
    };
    Log(Kind(misfortune), client->name, kTexts[static_cast<std::size_t>(misfortune)]);
    Close(client);
}

void CServerLoop::Log(std::size_t kind, const std::string& client, const char* what)
{
    unsigned skipped = 0;
    if (m_rate.Allows(kind, skipped))
        BASE_ERROR_TO("VideoLogger", "LPC: client [%s]: %s. [skipped-%u]", client.c_str(), what, skipped);
}

/// What waits for clients is still written, as far as they read.
void CServerLoop::SayFarewell()
{
    const lpc::TimePoint deadline = lpc::DeadlineAfter(lpc::kServerFarewellMs);
    m_reads = false;
    for (const ClientPtr& client : Clients()) {
        client->Outbound().RenewWatch();
        client->Outbound().Flush();
    }
    lpc::CPoller::Event events[kEventsAtEnd];
    while (m_congested > 0 && std::chrono::steady_clock::now() < deadline) {
        const std::size_t count = m_poller.Wait(events, kEventsAtEnd, deadline);
        for (std::size_t i = 0; i < count; ++i)
            if (const ClientPtr client = Find(events[i].key))
                client->Outbound().Flush();
    }
}

void CServerLoop::CloseAll()
{
    for (const ClientPtr& client : Clients())
        Close(client);
}

} // namespace lpcserver
