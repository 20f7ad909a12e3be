#pragma once

#include <cstdint>

/// The limits of docs/device-protocol.md.
namespace sdk {

constexpr std::uint32_t kProtocolVersion = 1;
constexpr std::uint32_t kMostLineBytes = 8192;
constexpr std::uint32_t kMostHeaderBytes = 16384;
constexpr std::uint32_t kMostHeaders = 64;
constexpr std::uint32_t kMostBodyBytes = 16 * 1024 * 1024;
constexpr std::uint32_t kMostRefusalBytes = 65536;
constexpr std::uint32_t kMostBatchItems = 256;
constexpr std::uint32_t kMostStandardBytes = 1024 * 1024;
constexpr std::uint32_t kMostAbilityBytes = 1024 * 1024;

constexpr char kRoot[] = "/vantor/device/v1/";
constexpr char kSessionTarget[] = "/vantor/device/v1/session";

} // namespace sdk
