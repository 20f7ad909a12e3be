#include "store/Comparison.h"

#include "store/Bare.h"

#include <chrono>
#include <cstdio>

namespace bench {
namespace {

constexpr const char* kGroup = "store";

std::size_t Timed(const Side& side, int round, CSamples& samples)
{
    const auto start = CSamples::Clock::now();
    const std::size_t result = side(round);
    samples.Add(CSamples::Clock::now() - start);
    return result;
}

} // namespace

Medians Compare(const std::string& name, std::size_t size, int rounds, const Side& ours, const Side& bare)
{
    const auto all = static_cast<std::size_t>(rounds);
    CSamples samples[] = {CSamples(all), CSamples(all)};
    CSamples notCounted(all);
    const Side* sides[] = {&ours, &bare};
    for (int round = -rounds / 10; round < rounds; ++round) {
        std::size_t results[2];
        for (int turn = 0; turn < 2; ++turn) {
            const int which = (turn + round) & 1;
            results[which] = Timed(*sides[which], round, round < 0 ? notCounted : samples[which]);
        }
        if (results[0] != results[1])
            Fail(name + ": the two sides do not have the same result");
    }
    samples[1].Print(kGroup, "bare-" + name, size);
    samples[0].Print(kGroup, name, size);
    const Medians medians{samples[0].Median(), samples[1].Median()};
    std::printf("# %s %zu: %.2f x bare (median), %.1f us more\n", name.c_str(), size,
                medians.ours / medians.bare, medians.ours - medians.bare);
    std::fflush(stdout);
    return medians;
}

} // namespace bench
