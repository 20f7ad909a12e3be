// Measures the local channel between two processes, beside a bare stream socket doing the same work.

#include "RawStream.h"
#include "support/Placement.h"
#include "support/Samples.h"

#include "LPC_Client/LPC_Client.h"
#include "LPC_Server/LPC_Server.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <thread>

namespace {

using bench::CSamples;
using bench::Placement;

constexpr const char* kGroup = "lpc";
constexpr const char* kServerName = "bench";
constexpr std::size_t kOneWaySize = 1024;

struct Case
{
    std::size_t size;
    std::size_t calls;
};
constexpr Case kCases[] = {{128, 20000}, {1024, 20000}, {64 * 1024, 3000}, {1024 * 1024, 300}};
constexpr std::size_t kOneWay = 200000;

/// Answers each request with a body as long as its own, like the raw server; with noise it sends a
/// notification before each answer.
class EchoServer : public lpcserver::IServerEvents
{
public:
    EchoServer() : m_server(*this) {}
    bool Start() { return m_server.Start(kServerName) == lpc::kNoError; }

    void OnClientConnected(lpcserver::ClientId, const std::string&) override {}
    void OnClientDisconnected(lpcserver::ClientId) override {}
    void OnData(lpcserver::ClientId client, const lpc::CallBackData& data) override
    {
        if (data.requestId == 0)
            return;
        if (data.headers.count("noise") != 0 && m_server.Notify(client, m_noise) != lpc::kNoError)
            return;
        m_reply.requestId = data.requestId;
        m_reply.headers = data.headers;
        if (m_reply.body.size() != data.body.size())
            m_reply.body = data.body;
        if (m_server.Reply(client, m_reply) != lpc::kNoError)
            std::fprintf(stderr, "no reply\n");
    }

private:
    lpcserver::CLPCServer m_server;
    lpc::ReplyData m_reply;
    lpc::Message m_noise{{{"method", "noise"}}, std::string(200, 'n')};
};

void Fail(const char* what)
{
    std::fprintf(stderr, "%s: error %d\n", what, lpcclient::GetLPCLastError());
    std::exit(1);
}

void Exchange(const lpc::Message& request, lpc::Message& answer)
{
    lpc::RequestId id = 0;
    if (!lpcclient::SendEx(answer, request, id, 10000) || answer.body.size() != request.body.size())
        Fail("SendEx");
}

CSamples MeasureEcho(const Case& what, bool noise)
{
    lpc::Message request{{{"url", "/bench"}, {"protocol", "http"}}, std::string(what.size, 'b')};
    if (noise)
        request.headers["noise"] = "1";
    lpc::Message answer;
    for (std::size_t i = 0; i < what.calls / 20 + 1; ++i)
        Exchange(request, answer);
    CSamples samples(what.calls);
    samples.Begin();
    for (std::size_t i = 0; i < what.calls; ++i) {
        Exchange(request, answer);
        samples.Tick();
    }
    return samples;
}

/// A full queue is no failure here: the sender is simply faster than the channel.
CSamples MeasureOneWay(std::size_t count)
{
    const lpc::Message notification{{}, std::string(kOneWaySize, 'b')};
    lpc::Message answer;
    CSamples samples(count);
    samples.Begin();
    for (std::size_t i = 0; i < count; ++i) {
        while (!lpcclient::Notify(notification)) {
            if (lpcclient::GetLPCLastError() != lpc::kTryAgain)
                Fail("Notify");
            std::this_thread::yield();
        }
        samples.Tick();
    }
    Exchange({}, answer); // all have arrived
    samples.End();
    return samples;
}

/// Answers each message with as many bytes, except those of the size that is to be swallowed.
void ServeRaw(bench::CRawStream& stream, std::size_t swallowed)
{
    while (const std::size_t size = stream.Receive())
        if (size != swallowed)
            stream.Send(size);
}

CSamples MeasureRawEcho(bench::CRawStream& stream, const Case& what)
{
    CSamples samples(what.calls);
    for (std::size_t i = 0; i < what.calls / 20 + 1; ++i) {
        stream.Send(what.size);
        stream.Receive();
    }
    samples.Begin();
    for (std::size_t i = 0; i < what.calls; ++i) {
        stream.Send(what.size);
        stream.Receive();
        samples.Tick();
    }
    return samples;
}

CSamples MeasureRawOneWay(bench::CRawStream& stream, std::size_t count)
{
    CSamples samples(count);
    samples.Begin();
    for (std::size_t i = 0; i < count; ++i) {
        stream.Send(kOneWaySize);
        samples.Tick();
    }
    stream.Send(1);
    stream.Receive();
    samples.End();
    return samples;
}

/// The raw stream in its own pair of processes, each size once; swallowed is the size that gets no answer.
template<typename Measure>
CSamples WithRaw(Placement placement, std::size_t swallowed, Measure measure)
{
    int handles[2];
    bench::MakeStreamPair(handles);
    const bench::CSecondProcess process([&] {
        bench::PlaceServer(placement);
        std::thread([handle = handles[1], swallowed] {
            bench::CRawStream stream(handle);
            ServeRaw(stream, swallowed);
        }).detach();
    });
    bench::PlaceClient(placement);
    bench::CRawStream stream(handles[0]);
    return measure(stream);
}

template<typename Measure>
CSamples WithChannel(Placement placement, Measure measure)
{
    const bench::CSecondProcess process([&] {
        bench::PlaceServer(placement);
        static EchoServer server;
        if (!server.Start())
            std::exit(1);
    });
    bench::PlaceClient(placement);
    if (!lpcclient::Init("bench", false) || !lpcclient::ConnectToServer(kServerName) ||
        !lpcclient::SetInvokeCallBack([](const lpcclient::LPCCallBackData&, void*) { return true; }, nullptr))
        Fail("connecting");
    CSamples samples = measure();
    if (!lpcclient::Uninit())
        Fail("Uninit");
    return samples;
}

void PrintBoth(const std::string& name, Placement placement, std::size_t size, CSamples raw, CSamples channel)
{
    const std::string where = bench::PlacementName(placement);
    raw.Print(kGroup, "raw-" + name + where, size);
    channel.Print(kGroup, name + where, size);
    std::printf("# %s%s %zu: %.2f x raw (median), %.2f x raw (time of all)\n", name.c_str(), where.c_str(),
                size, channel.Median() / raw.Median(), raw.PerSecond() / channel.PerSecond());
}

void RunEchoes(Placement placement, std::size_t divisor)
{
    for (const Case& full : kCases) {
        const Case what{full.size, full.calls / divisor};
        const auto raw =
            WithRaw(placement, 0, [&](bench::CRawStream& stream) { return MeasureRawEcho(stream, what); });
        PrintBoth("echo", placement, what.size, raw,
                  WithChannel(placement, [&] { return MeasureEcho(what, false); }));
        PrintBoth("echo-noise", placement, what.size, raw,
                  WithChannel(placement, [&] { return MeasureEcho(what, true); }));
    }
}

void RunOneWay(Placement placement, std::size_t divisor)
{
    const std::size_t count = kOneWay / divisor;
    PrintBoth("oneway", placement, kOneWaySize,
              WithRaw(placement, kOneWaySize,
                      [&](bench::CRawStream& stream) { return MeasureRawOneWay(stream, count); }),
              WithChannel(placement, [&] { return MeasureOneWay(count); }));
}

} // namespace

/// The whole, or with --1cpu only the placement that the targets are stated for; --quick makes a tenth of the
/// calls.
int main(int argc, char** argv)
{
    const auto has = [&](const char* option) {
        return std::any_of(argv + 1, argv + argc,
                           [&](const char* given) { return std::strcmp(given, option) == 0; });
    };
    const std::size_t divisor = has("--quick") ? 10 : 1;
    const bench::CFreshRoot root;
    for (const Placement placement : {Placement::Free, Placement::OneCpu, Placement::TwoCpus}) {
        if (has("--1cpu") && placement != Placement::OneCpu)
            continue;
        RunEchoes(placement, divisor);
        RunOneWay(placement, divisor);
    }
    return 0;
}
