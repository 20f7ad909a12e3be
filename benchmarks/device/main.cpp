// Measures reading and writing of a device's configuration with the SDK, beside the HTTP library alone,
// against the simulator in a process of its own.

#include "BareClient.h"
#include "support/DeviceSim.h"
#include "support/Placement.h"
#include "support/Samples.h"

#include "QxNetSDK/QxNetSDK.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace {

using bench::CSamples;
using bench::Placement;

constexpr const char* kGroup = "device";
constexpr std::size_t kRounds = 50; // of calls of one side after the other
constexpr std::size_t kThreads = 16;
constexpr std::size_t kChannels = 1000;

struct Case
{
    std::uint32_t get;
    std::uint32_t set;
    std::uint32_t size;
    std::size_t calls; // a round
};
constexpr Case kCases[] = {
    {QXNET_GET_RECORD_V40, QXNET_SET_RECORD_V40, sizeof(NET_DVR_RECORD_V40), 100},
    {QXNET_GET_MOTION, QXNET_SET_MOTION, sizeof(NET_DVR_MOTION_V40), 20},
};

void Require(bool isGood, const char* what)
{
    if (isGood)
        return;
    std::fprintf(stderr, "%s failed: %u-%u\n", what, NET_DVR_GetLastError(),
                 NET_DVR_GetLastErrorModelCode(nullptr));
    std::exit(1);
}

std::int32_t LogIn(std::uint16_t port)
{
    QxNetLogin login{};
    login.size = sizeof login;
    login.port = port;
    std::strcpy(login.address, "127.0.0.1");
    std::strcpy(login.user, "admin");
    std::strcpy(login.password, "vantor-device");
    const std::int32_t session = QxNet_Login(&login, nullptr);
    Require(session >= 0, "login");
    return session;
}

std::string Target(std::uint32_t command)
{
    return "/vantor/device/v1/config/" + std::to_string(command) + "?channel=1";
}

/// Two ways of the same exchange, in turns; the first round of each is not counted.
template<typename Bare, typename Ours>
void Compare(const std::string& name, const Case& what, std::size_t rounds, Bare&& bare, Ours&& ours)
{
    CSamples bareSamples(rounds * what.calls);
    CSamples ourSamples(rounds * what.calls);
    const auto run = [&](CSamples& samples, auto&& call, bool isCounted) {
        for (std::size_t i = 0; i < what.calls; ++i) {
            const auto start = CSamples::Clock::now();
            call();
            if (isCounted)
                samples.Add(CSamples::Clock::now() - start);
        }
    };
    bareSamples.Begin();
    ourSamples.Begin();
    for (std::size_t round = 0; round <= rounds; ++round) {
        run(bareSamples, bare, round > 0);
        run(ourSamples, ours, round > 0);
    }
    bareSamples.Print(kGroup, "bare-" + name, what.size);
    ourSamples.Print(kGroup, name, what.size);
    std::printf("# %s %u: %.2f x bare (median), target 1.3\n", name.c_str(), what.size,
                ourSamples.Median() / bareSamples.Median());
}

void RunExchanges(Placement placement, std::size_t rounds)
{
    const auto sim = [&] {
        const bench::CPlacedServer placed(placement);
        return std::make_unique<DeviceSim>(std::vector<std::string>{"--devices", "1", "--channels", "4"});
    }();
    bench::PlaceClient(placement);
    bench::CBareClient client(sim->Port());
    const std::int32_t session = LogIn(sim->Port());
    const std::string where = bench::PlacementName(placement);
    for (const Case& what : kCases) {
        std::string structure(what.size, '\0');
        const std::string kept = client.Get(Target(what.get));
        Compare(
            "get-config" + where, what, rounds, [&] { (void)client.Get(Target(what.get)); },
            [&] { Require(NET_DVR_GetDVRConfig(session, what.get, 1, structure.data(), what.size), "get"); });
        Compare(
            "set-config" + where, what, rounds, [&] { client.Put(Target(what.set), kept); },
            [&] { Require(NET_DVR_SetDVRConfig(session, what.set, 1, kept.data(), what.size), "set"); });
    }
    QxNet_Logout(session);
}

/// One read of each channel of several devices, by 16 threads together.
void RunManyChannels()
{
    DeviceSim sim({"--devices", "8", "--channels", std::to_string(kChannels)});
    struct Channel
    {
        std::int32_t session;
        std::int32_t channel;
    };
    std::vector<Channel> channels;
    for (const DeviceSim::Device& device : sim.Devices()) {
        const std::int32_t session = LogIn(device.port);
        for (unsigned channel = 1; channel <= device.channels; ++channel)
            channels.push_back({session, static_cast<std::int32_t>(channel)});
    }
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        NET_DVR_RECORD_V40 record;
        for (std::size_t i = next++; i < channels.size(); i = next++)
            Require(NET_DVR_GetDVRConfig(channels[i].session, QXNET_GET_RECORD_V40, channels[i].channel,
                                         &record, sizeof record),
                    "get");
    };
    CSamples samples(1);
    samples.Begin();
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < kThreads; ++i)
        threads.emplace_back(work);
    for (std::thread& thread : threads)
        thread.join();
    samples.Tick();
    samples.Print(kGroup, "channels-" + std::to_string(kThreads) + "-threads", channels.size());
}

} // namespace

/// With --quick a tenth of the rounds.
int main(int argc, char** argv)
{
    const bool isQuick = std::any_of(argv + 1, argv + argc,
                                     [](const char* given) { return std::strcmp(given, "--quick") == 0; });
    const bench::CFreshRoot root;
    QxNet_Init();
    // First, as what is placed once stays so.
    RunManyChannels();
    for (const Placement placement : {Placement::OneCpu, Placement::TwoCpus})
        RunExchanges(placement, isQuick ? kRounds / 10 : kRounds);
    QxNet_Cleanup();
    return 0;
}
