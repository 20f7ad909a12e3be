#pragma once

#include "Base/RateLimit.h"

namespace lpc {

/// One line a second for each of Count kinds of faults of the channel.
template<std::size_t Count>
using CRateLimit = Base::CRateLimit<Count>;

} // namespace lpc
