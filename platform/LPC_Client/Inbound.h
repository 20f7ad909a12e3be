#pragma once

#include "LPC_Client/LPC_Client.h"
#include "LPC_Client/ReceiveWindow.h"

#include "LPC_Wire/Limits.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>

namespace lpcclient {

/// What waits for the library's thread: requests and notifications for the receiver, answers for their
/// callbacks.
struct InboundItem
{
    LPCCallBackData data;
    AnswerCallBack onAnswer; ///< set for an answer, which then stands in data
    int error = lpc::kNoError;

    std::size_t Bytes() const;
};

/// The receive queue, in the order in which things arrived, and the receiver that it feeds. Any thread adds;
/// one thread delivers. What is delivered stays counted while the receiver keeps copies.
class CInbound
{
public:
    /// What to do with a request that finds the receiver cleared. Called on the delivering thread.
    using Refuse = std::function<void(RequestId)>;

    /// onRoom: see CReceiveWindow.
    CInbound(Refuse refuse, std::function<void()> onRoom)
        : m_refuse(std::move(refuse)), m_window(std::make_shared<CReceiveWindow>(std::move(onRoom)))
    {}
    ~CInbound() { m_window->Close(); }
    CInbound(const CInbound&) = delete;
    CInbound& operator=(const CInbound&) = delete;

    void Push(InboundItem item);

    /// Whether as much is in use as may be; nothing should be read then.
    bool IsFull() const { return m_window->Bytes() >= lpc::kReceiveQueueBytes; }
    /// The same for a caller that waits for its answer.
    bool IsFullForCallers() const { return m_window->Bytes() >= lpc::kReceiveQueueBytesOfCallers; }
    /// Whether so much has gone that reading may go on.
    bool HasRoom() const { return m_window->Bytes() < lpc::kReceiveQueueBytes / 2; }

    /// Delivers the next item that can be delivered; false when there is none. Requests and notifications
    /// wait for the first receiver; after it was cleared they are turned away.
    bool DeliverOne();

    /// Sets or clears the receiver. Waits for a call that is under way, unless made from within it.
    void SetReceiver(InvokeCallBack callback, void* user);

    /// Drops the requests and notifications that wait, and waits as SetReceiver does.
    void DropMessages();

private:
    struct Receiver
    {
        InvokeCallBack callback;
        void* user = nullptr;
    };

    std::optional<InboundItem> Take(Receiver& receiver);
    void Deliver(InboundItem& item, const Receiver& receiver);
    void WaitUntilIdle(std::unique_lock<std::mutex>& lock);

    const Refuse m_refuse;
    const std::shared_ptr<CReceiveWindow> m_window;
    std::mutex m_mutex;
    std::condition_variable m_idle;
    std::deque<InboundItem> m_items;
    Receiver m_receiver;
    bool m_everSet = false;
    std::thread::id m_delivering; ///< the thread inside a callback; none: no call under way
    std::uint64_t m_calls = 0;
};

} // namespace lpcclient
