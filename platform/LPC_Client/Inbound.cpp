#include "LPC_Client/Inbound.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"

#include <algorithm>

namespace lpcclient {
namespace {

/// What an item and a header cost beside their texts.
constexpr std::size_t kItemBytes = 256;
constexpr std::size_t kHeaderBytes = 96;

void LogNotTaken(const LPCCallBackData& data)
{
    static Base::CFaultLimit limit;
    if (const auto skipped = limit.Next())
        BASE_WARN_TO("VideoLogger",
                     "LPC: the receiver did not take a message. [url-%.128s] [method-%.128s]%s",
                     data.Header("url").c_str(), data.Header("method").c_str(), skipped->c_str());
}

} // namespace

std::size_t InboundItem::Bytes() const
{
    std::size_t bytes = kItemBytes + data.body.size();
    for (const auto& [key, value] : data.headers)
        bytes += kHeaderBytes + key.size() + value.size();
    return bytes;
}

void CInbound::Push(InboundItem item)
{
    item.data.receipt = m_window->Charge(item.Bytes());
    std::lock_guard<std::mutex> lock(m_mutex);
    m_items.push_back(std::move(item));
}

std::optional<InboundItem> CInbound::Take(Receiver& receiver)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto next = std::find_if(m_items.begin(), m_items.end(),
                                   [this](const InboundItem& item) { return m_everSet || item.onAnswer; });
    if (next == m_items.end())
        return std::nullopt;
    m_window->Lend(next->Bytes());
    InboundItem item = std::move(*next);
    m_items.erase(next);
    receiver = m_receiver;
    m_delivering = std::this_thread::get_id();
    ++m_calls;
    return item;
}

bool CInbound::DeliverOne()
{
    Receiver receiver;
    std::optional<InboundItem> item = Take(receiver);
    if (!item)
        return false;
    Deliver(*item, receiver);
    m_window->Lend(0);
    // What the callbacks hold goes before anybody who waits for the end of the call.
    item.reset();
    receiver = {};
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_delivering = {};
    }
    m_idle.notify_all();
    return true;
}

void CInbound::Deliver(InboundItem& item, const Receiver& receiver)
{
    if (item.onAnswer) {
        item.onAnswer(item.error, {std::move(item.data.headers), std::move(item.data.body)});
        return;
    }
    if (receiver.callback) {
        if (!receiver.callback(item.data, receiver.user))
            LogNotTaken(item.data);
        return;
    }
    if (item.data.requestId != 0)
        m_refuse(item.data.requestId);
}

void CInbound::SetReceiver(InvokeCallBack callback, void* user)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_everSet = m_everSet || callback;
    m_receiver = {std::move(callback), user};
    WaitUntilIdle(lock);
}

void CInbound::DropMessages()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto isMessage = [](const InboundItem& item) { return !item.onAnswer; };
    m_items.erase(std::remove_if(m_items.begin(), m_items.end(), isMessage), m_items.end());
    WaitUntilIdle(lock);
}

void CInbound::WaitUntilIdle(std::unique_lock<std::mutex>& lock)
{
    if (m_delivering == std::this_thread::get_id())
        return;
    const std::uint64_t call = m_calls;
    m_idle.wait(lock, [&] { return m_delivering == std::thread::id() || m_calls != call; });
}

} // namespace lpcclient
