// Measures calls of the real component from request to reply, beside the same bytes over the bare channel.
// This program, which asks, is placed as the client, and the process that answers as the server.

#include "support/ComponentHost.h"
#include "support/Placement.h"
#include "support/Samples.h"

#include "Base/FileUtil.h"
#include "ChildProcess/ChildProcess.h"
#include "LPC_Client/LPC_Client.h"
#include "LPC_Server/LPC_Server.h"

#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string>
#include <thread>

namespace {

using bench::CSamples;

constexpr const char* kGroup = "dispatch";
constexpr const char* kBareServer = "bench-bare";
constexpr std::uint32_t kLimitMs = 10000;

struct Case
{
    const char* name;
    lpc::Message request;
};

const Case kCases[] = {
    {"getWndHandle",
     {{{"method", "getWndHandle"}}, R"({"method":"getWndHandle","data":{"type":"MainView"}})"}},
    {"http-state",
     {{{"protocol", "http"}, {"method", "GET"}, {"url", "/vantor/v1/internal/video/state"}}, {}}},
};

[[noreturn]] void Fail(const char* what)
{
    std::fprintf(stderr, "%s failed\n", what);
    std::exit(1);
}

/// The other end of the bare channel: a client that answers each request in its callback, with its headers.
int AnswerAll(std::string body)
{
    const auto answer = [](const lpcclient::LPCCallBackData& data, void* text) {
        if (data.requestId != 0 &&
            !lpcclient::Reply({data.requestId, data.headers, *static_cast<std::string*>(text)}))
            Fail("answering");
        return true;
    };
    if (!lpcclient::Init("bench", false) || !lpcclient::ConnectToServer(kBareServer) ||
        !lpcclient::SetInvokeCallBack(answer, &body))
        Fail("connecting");
    for (;;)
        std::this_thread::sleep_for(std::chrono::hours(1));
}

class CBareServer : lpcserver::IServerEvents
{
public:
    /// answer: the body of all answers.
    CBareServer(const std::string& answer, bench::Placement placement)
    {
        if (m_server.Start(kBareServer) != lpc::kNoError)
            Fail("listening");
        const bench::CPlacedServer placed(placement);
        std::string error;
        if (!m_client.Start({Base::FileUtil::GetCurExeDir() + "bench_dispatch", "--answer", answer}, {},
                            error))
            Fail("starting the bare channel");
        std::unique_lock<std::mutex> lock(m_mutex);
        if (!m_changed.wait_for(lock, std::chrono::milliseconds(kLimitMs), [this] { return m_id != 0; }))
            Fail("waiting for the bare client");
    }
    ~CBareServer() override { m_server.Stop(); }

    lpc::Message Ask(const lpc::Message& request)
    {
        lpc::Message answer;
        if (m_server.SendEx(m_id, request, kLimitMs, answer) != lpc::kNoError)
            Fail("asking over the bare channel");
        return answer;
    }

private:
    void OnClientConnected(lpcserver::ClientId client, const std::string&) override
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_id = client;
        m_changed.notify_all();
    }
    void OnClientDisconnected(lpcserver::ClientId) override {}
    void OnData(lpcserver::ClientId, const lpc::CallBackData&) override {}

    std::mutex m_mutex;
    std::condition_variable m_changed;
    lpcserver::ClientId m_id = 0;
    CChildProcess m_client;
    lpcserver::CLPCServer m_server{*this};
};

template<typename Channel>
CSamples Measure(Channel& channel, const lpc::Message& request, std::size_t calls)
{
    for (std::size_t i = 0; i < calls / 10; ++i)
        channel.Ask(request);
    CSamples samples(calls);
    samples.Begin();
    for (std::size_t i = 0; i < calls; ++i) {
        channel.Ask(request);
        samples.Tick();
    }
    return samples;
}

void Run(const Case& what, bench::Placement placement, bench::CComponentHost& component, std::size_t calls)
{
    const std::string name = std::string(what.name) + bench::PlacementName(placement);
    const std::string answer = component.Ask(what.request).body; // also makes the page
    CSamples bare = [&] {
        CBareServer channel(answer, placement);
        return Measure(channel, what.request, calls);
    }();
    CSamples served = Measure(component, what.request, calls);
    const std::size_t size = what.request.body.size() + answer.size();
    bare.Print(kGroup, "bare-" + name, size);
    served.Print(kGroup, name, size);
    std::printf("# %s: %.2f x bare (median), %.1f us more\n", name.c_str(), served.Median() / bare.Median(),
                served.Median() - bare.Median());
}

} // namespace

/// --quick makes a tenth of the calls.
int main(int argc, char** argv)
{
    if (argc == 3 && std::strcmp(argv[1], "--answer") == 0)
        return AnswerAll(argv[2]);
    const std::size_t calls = argc > 1 && std::strcmp(argv[1], "--quick") == 0 ? 200 : 2000;
    using bench::Placement;
    for (const Placement placement : {Placement::Free, Placement::OneCpu, Placement::TwoCpus}) {
        bench::PlaceClient(placement);
        const bench::CFreshRoot root;
        bench::CComponentHost component;
        {
            const bench::CPlacedServer placed(placement);
            component.Start();
        }
        for (const Case& what : kCases)
            Run(what, placement, component, calls);
    }
    return 0;
}
