#pragma once

#include "QxNetSDK/Structures.h"
#include "QxNetSDK/library/Failure.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace sdk {

/// Whether a structure that came under a command may be handed out: it begins with its size, and what this
/// library knows of its values holds. WRONG_SIZE or UNREADABLE. The size itself was checked before.
Failure CheckStructure(std::uint32_t command, const char* structure, std::size_t size);

Failure CheckDeviceInfo(const QxNetDeviceInfo& info);

/// Whether a text is UTF-8 as RFC 3629 has it.
bool IsUtf8(const char* text, std::size_t size);

} // namespace sdk
