#pragma once

#include "LPC_Client/LPC_Client.h"
#include "LPC_Server/LPC_Server.h"

#include "support/CapturedLog.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <future>
#include <mutex>
#include <string>
#include <vector>

constexpr const char* kServerName = "lpc-test-server";
constexpr std::chrono::seconds kLimit{20}; ///< far more than any step takes

/// A list that one thread fills while another waits for its length.
template<typename Item>
class Collected
{
public:
    void Add(Item item)
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_items.push_back(std::move(item));
        }
        m_changed.notify_all();
    }

    /// The items as soon as there are count, or what there is when the time limit passes.
    std::vector<Item> WaitFor(std::size_t count)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait_for(lock, kLimit, [&] { return m_items.size() >= count; });
        return m_items;
    }

    std::size_t Size()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_items.size();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Item> m_items;
};

/// Something that happens once, waited for with a limit.
class Once
{
public:
    void Happens() { m_promise.set_value(); }
    bool Wait() { return m_future.wait_for(kLimit) == std::future_status::ready; }

private:
    std::promise<void> m_promise;
    std::shared_future<void> m_future{m_promise.get_future()};
};

/// A server that answers requests with their own headers and body, unless told otherwise, and keeps what
/// happens.
class EchoServer : public lpcserver::IServerEvents
{
public:
    using OnDataFunction = std::function<void(lpcserver::ClientId, const lpc::CallBackData&)>;

    explicit EchoServer(const lpcserver::ServerLimits& limits = {}) : server(*this, limits) {}
    ~EchoServer() override { server.Stop(); }

    [[nodiscard]] int Start() { return server.Start(kServerName); }

    void OnClientConnected(lpcserver::ClientId client, const std::string& name) override
    {
        lastClient = client;
        connected.Add(name);
    }
    void OnClientDisconnected(lpcserver::ClientId client) override { disconnected.Add(client); }
    void OnData(lpcserver::ClientId client, const lpc::CallBackData& data) override
    {
        if (onData) {
            onData(client, data);
            return;
        }
        if (data.requestId != 0) {
            EXPECT_EQ(lpc::kNoError, server.Reply(client, {data.requestId, data.headers, data.body}));
        }
    }

    /// The one client, as soon as it is there.
    lpcserver::ClientId Client()
    {
        connected.WaitFor(1);
        return lastClient;
    }

    OnDataFunction onData; ///< set before Start
    Collected<std::string> connected;
    Collected<lpcserver::ClientId> disconnected;
    std::atomic<lpcserver::ClientId> lastClient{0};
    lpcserver::CLPCServer server;
};

/// The same, started when it is made.
class StartedServer : public EchoServer
{
public:
    explicit StartedServer(const lpcserver::ServerLimits& limits = {}) : EchoServer(limits)
    {
        EXPECT_EQ(lpc::kNoError, Start());
    }
    explicit StartedServer(OnDataFunction handler)
    {
        onData = std::move(handler);
        EXPECT_EQ(lpc::kNoError, Start());
    }
};

/// The process's client end, connected to the test's server. Made after what its callbacks use, so that it
/// ends before.
class Client
{
public:
    Client()
    {
        EXPECT_TRUE(lpcclient::Init("client", false));
        EXPECT_TRUE(lpcclient::ConnectToServer(kServerName)) << lpcclient::GetLPCLastError();
    }
    ~Client() { m_ended = lpcclient::Uninit(); }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

private:
    bool m_ended = false;
};

class LpcTest : public testing::Test
{
protected:
    /// Collects the "n" header of everything that arrives.
    void CollectNumbers()
    {
        Receive([this](const lpc::CallBackData& data) {
            received.Add(data.headers.count("n") ? data.Header("n") : data.Header("method"));
        });
    }

    static void Receive(std::function<void(const lpc::CallBackData&)> receiver)
    {
        ASSERT_TRUE(lpcclient::SetInvokeCallBack(
            [receiver = std::move(receiver)](const lpcclient::LPCCallBackData& data, void*) {
                receiver(data);
                return true;
            },
            nullptr));
    }

    /// The error of a SendEx that is expected to fail.
    static int SendExError(const lpc::Message& request, std::uint32_t timeoutMs)
    {
        lpc::Message answer;
        lpc::RequestId id = 0;
        return lpcclient::SendEx(answer, request, id, timeoutMs) ? 0 : lpcclient::GetLPCLastError();
    }

    /// The same from another thread.
    static std::future<int> SendExLater(const lpc::Message& request, std::uint32_t timeoutMs)
    {
        return std::async(std::launch::async, [=] { return SendExError(request, timeoutMs); });
    }

    static int InTime(std::future<int>& error)
    {
        EXPECT_EQ(std::future_status::ready, error.wait_for(kLimit));
        return error.get();
    }

    static lpc::Message Numbered(int n, std::string body = {})
    {
        return {{{"n", std::to_string(n)}}, std::move(body)};
    }

    static std::vector<std::string> Numbers(int count)
    {
        std::vector<std::string> numbers;
        for (int i = 0; i < count; ++i)
            numbers.push_back(std::to_string(i));
        return numbers;
    }

    TestDataRoot root;
    CapturedLog log;
    Collected<std::string> received;
};
