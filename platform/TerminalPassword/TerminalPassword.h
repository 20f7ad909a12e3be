#pragma once

#include <optional>
#include <string>

namespace terminal {

/// Asks the person at the terminal, also when standard input and output are redirected, and does not show
/// what is typed. Nothing when there is no terminal, or the input ends before the line does. The text is in
/// the terminal's code page.
std::optional<std::string> AskPassword(const std::string& prompt);

} // namespace terminal
