#pragma once

#include <string>

namespace Base {

/// The system's part of ProcessUtil::NameThisThread.
void ShowThreadName(const std::string& name);

} // namespace Base
