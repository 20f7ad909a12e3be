#pragma once

#include <string>

namespace Base::GuidUtil {

/// A new random identifier of 36 characters: lower-case hexadecimal digits in groups of 8-4-4-4-12.
std::string CreateGuid();

} // namespace Base::GuidUtil
