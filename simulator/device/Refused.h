#pragma once

#include "simulator/server/Http.h"

#include <cstring>

namespace simulator {

/// Why a device does not do something: the status and error number of the protocol.
struct Refused
{
    unsigned status;
    unsigned error;
};

constexpr Refused kBadRequest{400, 502};
constexpr Refused kUnknownCommand{404, 500};
constexpr Refused kUnknownChannel{404, 501};
constexpr Refused kNotAllowed{403, 402};
constexpr Refused kBusy{409, 503};
constexpr Refused kCannotKeep{507, 505};

/// Octets, or why there are none.
using Outcome = std::variant<Octets, Refused>;

/// A structure as it travels.
template<class Structure>
Octets OctetsOf(const Structure& structure)
{
    return std::make_shared<const std::string>(reinterpret_cast<const char*>(&structure), sizeof structure);
}

/// A structure from octets of exactly its size.
template<class Structure>
Structure StructureOf(const std::string& octets)
{
    Structure structure;
    std::memcpy(&structure, octets.data(), sizeof structure);
    return structure;
}

} // namespace simulator
