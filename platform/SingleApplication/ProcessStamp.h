#pragma once

#include <cstdint>
#include <string>

/// What the single-instance claim asks of the operating system.
namespace InstanceSystem {

/// Number (upper half) and start time (lower half) of this process. The start time tells it from a later
/// process that was given the same number. Never 0.
std::uint64_t OwnStamp();

/// True while the process of this stamp runs. A zombie does not run; a stopped process does.
bool IsAlive(std::uint64_t stamp);

/// The user's number or security identifier as text.
std::string UserIdentity();

/// The name under which the local server of this key listens. Absolute on systems where the socket is a file.
std::string ServerName(const std::string& key);

} // namespace InstanceSystem
