#pragma once

#include "support/Samples.h"

#include <cstddef>
#include <functional>
#include <string>

namespace bench {

/// One side's work of a round; gives what must be the same on both sides.
using Side = std::function<std::size_t(int round)>;

/// The medians of both sides, in microseconds.
struct Medians
{
    double ours;
    double bare;
};

/// Runs both sides so often, in turns, the one and the other first, after a tenth as many rounds that are not
/// counted and have negative numbers from -rounds/10 to -1. Ends the program when a round's results differ.
/// Prints a row of each side and their ratio.
Medians Compare(const std::string& name, std::size_t size, int rounds, const Side& ours, const Side& bare);

} // namespace bench
