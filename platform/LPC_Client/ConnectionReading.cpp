// What a connection does with the bytes that arrive, and with their end.

#include "LPC_Client/Connection.h"

#include "LPC_Wire/Limits.h"
#include "LPC_Wire/WellKnownNames.h"

#include "Base/Log.h"

namespace lpcclient {
namespace {

/// The library's thread is woken for each bundle of messages, but where they follow one another as fast as
/// this, for several together.
constexpr std::chrono::microseconds kWakeGap{50};

InboundItem LossNotification()
{
    InboundItem item;
    item.data.headers = {{"method", lpc::kClientDisconnectedMethod}};
    return item;
}

} // namespace

// ---- reading ----

void CConnection::ReadNow()
{
    const auto room = m_reader.Room();
    TakeIn(m_socket.Read(room.data(), room.size()));
}

/// One call into the system instead of two; the system counts the time itself.
void CConnection::ReadWaiting(std::uint32_t timeoutMs)
{
    const auto room = m_reader.Room();
    TakeIn(m_socket.ReadWaiting(room.data(), room.size(), timeoutMs));
}

void CConnection::TakeIn(const lpc::IoResult& result)
{
    if (result.state == lpc::IoState::Closed)
        End(true);
    if (result.state != lpc::IoState::Done)
        return;
    m_reader.Commit(result.bytes);
    HandOut();
}

void CConnection::HandOut()
{
    lpc::WireMessage message;
    bool good = true;
    while (good && m_reader.Next(message))
        good = Dispatch(message);
    if (m_handedOver)
        WakeLibrary();
    if (good && m_reader.GetFault() == lpc::Fault::None)
        return;
    LogFault(good ? m_reader.GetFault() : lpc::Fault::Order);
    End(true);
}

void CConnection::WakeLibrary()
{
    m_handedOver = false;
    if (OnLibraryThread())
        return;
    const lpc::TimePoint now = std::chrono::steady_clock::now();
    if (now - m_lastWake < kWakeGap)
        m_poller.WakeSoon();
    else
        m_poller.Wake();
    m_lastWake = now;
}

bool CConnection::Dispatch(lpc::WireMessage& message)
{
    switch (message.kind) {
    case lpc::Kind::Request:
    case lpc::Kind::Notification:
        TakeMessage(message);
        return true;
    case lpc::Kind::Answer:
        TakeAnswer(lpc::kNoError, message);
        return true;
    case lpc::Kind::Refusal:
        TakeAnswer(lpc::RefusalError(message.headers), message);
        return message.id != 0;
    default:
        return false;
    }
}

void CConnection::TakeMessage(lpc::WireMessage& message)
{
    InboundItem item;
    item.data.requestId = message.id;
    item.data.headers = std::move(message.headers);
    item.data.body = std::move(message.body);
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_ended)
        return;
    m_inbound.Push(std::move(item));
    m_handedOver = true;
}

void CConnection::TakeAnswer(int error, lpc::WireMessage& message)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (Waiter* const waiter = TakeWaiter(message.id)) {
        waiter->answer = {std::move(message.headers), std::move(message.body)};
        waiter->error = error;
        waiter->done = true;
        if (m_holder != waiter)
            waiter->turn.notify_one();
        return;
    }
    if (const auto pending = m_pending.find(message.id); pending != m_pending.end()) {
        InboundItem item{
            {0, std::move(message.headers), std::move(message.body)}, std::move(pending->second), error};
        m_pending.erase(pending);
        m_inbound.Push(std::move(item));
        m_handedOver = true;
        return;
    }
    unsigned skipped = 0;
    if (message.id > m_lastId && m_strayAnswers.Allows(0, skipped))
        BASE_WARN_TO("VideoLogger", "LPC: dropped an answer to a request that was never sent. [skipped-%u]",
                     skipped);
}

// ---- the end ----

void CConnection::Close()
{
    End(false);
}

void CConnection::End(bool lost)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_ended.exchange(true))
            return;
        for (Waiter* const waiter : m_waiters) {
            waiter->done = true;
            waiter->error = lpc::kConnectionLost;
            waiter->turn.notify_one();
        }
        m_waiters.clear();
        for (auto& [id, onAnswer] : m_pending)
            m_inbound.Push({{}, std::move(onAnswer), lpc::kConnectionLost});
        m_pending.clear();
        if (lost)
            m_inbound.Push(LossNotification());
    }
    m_watch.Stop();
    m_poller.Wake();
    if (!lost)
        m_outbound.FlushUntil(lpc::DeadlineAfter(lpc::kFarewellMs));
    m_outbound.Break();
    if (lost)
        BASE_WARN_TO("VideoLogger", "LPC: the connection to the server was lost.");
}

void CConnection::LogFault(lpc::Fault fault)
{
    BASE_ERROR_TO("VideoLogger", "LPC: the server sent what is not understood: %s.", lpc::FaultText(fault));
}

} // namespace lpcclient
