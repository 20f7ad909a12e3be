#include "simulator/voice/G711.h"

#include <array>
#include <cstdint>

namespace simulator {

namespace {

using Table = std::array<std::int16_t, 256>;

/// Both laws: a sign, three bits of exponent, four of mantissa.
constexpr std::int16_t MuLawSample(unsigned octet)
{
    const unsigned code = ~octet & 0xffU;
    const int magnitude = static_cast<int>((((code & 15U) << 3) + 0x84U) << ((code >> 4) & 7U)) - 0x84;
    return static_cast<std::int16_t>((code & 0x80U) ? -magnitude : magnitude);
}

constexpr std::int16_t ALawSample(unsigned octet)
{
    const unsigned code = octet ^ 0x55U;
    const unsigned exponent = (code >> 4) & 7U;
    const unsigned base = ((code & 15U) << 4) + 8U;
    const int magnitude = static_cast<int>(exponent == 0 ? base : (base + 0x100U) << (exponent - 1));
    return static_cast<std::int16_t>((code & 0x80U) ? magnitude : -magnitude);
}

constexpr Table MakeTable(std::int16_t (*sample)(unsigned))
{
    Table table{};
    for (unsigned octet = 0; octet < table.size(); ++octet)
        table[octet] = sample(octet);
    return table;
}

constexpr Table kMuLaw = MakeTable(MuLawSample);
constexpr Table kALaw = MakeTable(ALawSample);

std::string Decode(std::string_view octets, const Table& table)
{
    std::string samples;
    samples.reserve(octets.size() * 2);
    for (const char octet : octets) {
        const auto sample = static_cast<std::uint16_t>(table[static_cast<unsigned char>(octet)]);
        samples += static_cast<char>(sample);
        samples += static_cast<char>(sample >> 8);
    }
    return samples;
}

} // namespace

std::string DecodeMuLaw(std::string_view octets)
{
    return Decode(octets, kMuLaw);
}

std::string DecodeALaw(std::string_view octets)
{
    return Decode(octets, kALaw);
}

} // namespace simulator
