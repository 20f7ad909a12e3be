#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace lpctool {

/// Exit codes of the program.
constexpr int kGood = 0;
constexpr int kFailed = 1;
constexpr int kWrongUse = 2; ///< a wrong command line or script

using Arguments = std::vector<std::string>;

/// The whole program: arguments without the program's name. Results go to out, complaints to err.
int RunTool(const Arguments& arguments, std::istream& in, std::ostream& out, std::ostream& err);

/// The commands; arguments without the command's name.
int RunHost(const Arguments& arguments, std::istream& in, std::ostream& out, std::ostream& err);
int RunCall(const Arguments& arguments, std::istream& in, std::ostream& out, std::ostream& err);
int RunNotify(const Arguments& arguments, std::istream& in, std::ostream& out, std::ostream& err);
int RunWatch(const Arguments& arguments, std::istream& in, std::ostream& out, std::ostream& err);

/// The documentation of a command in short; of the tool for an empty name.
const char* HelpText(const std::string& command);

} // namespace lpctool
