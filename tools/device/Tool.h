#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace devicetool {

/// Exit codes of the program.
constexpr int kGood = 0;
constexpr int kFailed = 1; ///< the device or the way to it
constexpr int kWrongUse = 2;

/// The whole program: arguments without the program's name. Results go to out, complaints to err; in is read
/// where an argument says "-".
int RunTool(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out,
            std::ostream& err);

} // namespace devicetool
