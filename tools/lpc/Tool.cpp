#include "lpc/Commands.h"

#include <algorithm>
#include <ostream>

namespace lpctool {

namespace {

constexpr struct
{
    const char* name;
    int (*run)(const Arguments&, std::istream&, std::ostream&, std::ostream&);
} kCommands[] = {{"host", RunHost}, {"call", RunCall}, {"notify", RunNotify}, {"watch", RunWatch}};

bool WantsHelp(const Arguments& arguments)
{
    // What follows "--" belongs to the program to be started.
    const auto end = std::find(arguments.begin(), arguments.end(), "--");
    return std::find(arguments.begin(), end, "--help") != end;
}

} // namespace

int RunTool(const Arguments& arguments, std::istream& in, std::ostream& out, std::ostream& err)
{
    if (arguments.empty()) {
        err << HelpText("");
        return kWrongUse;
    }
    if (arguments[0] == "--help") {
        out << HelpText("");
        return kGood;
    }
    for (const auto& command : kCommands) {
        if (arguments[0] != command.name)
            continue;
        const Arguments rest(arguments.begin() + 1, arguments.end());
        if (!WantsHelp(rest))
            return command.run(rest, in, out, err);
        out << HelpText(command.name);
        return kGood;
    }
    err << "vantor-lpc: unknown command " << arguments[0] << "; see vantor-lpc --help\n";
    return kWrongUse;
}

} // namespace lpctool
