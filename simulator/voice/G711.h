#pragma once

#include <string>
#include <string_view>

namespace simulator {

/// The samples of ITU-T G.711 octets, 16 bit little-endian.
std::string DecodeMuLaw(std::string_view octets);
std::string DecodeALaw(std::string_view octets);

} // namespace simulator
