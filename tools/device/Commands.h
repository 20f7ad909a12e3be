#pragma once

#include "device/Device.h"
#include "device/Invocation.h"

#include <iosfwd>

namespace devicetool {

/// What a command works with. Each gives the program's exit code.
struct Context
{
    const Invocation& invocation;
    CDevice& device; ///< logged in, where the command needs one
    std::istream& in;
    std::ostream& out;
    std::ostream& err;

    bool Json() const { return invocation.Has("--json"); }
    /// A line to err, as JSON where that is wanted; kFailed.
    int Failed(const std::string& what) const;
    /// The same of a mistake in the invocation; kWrongUse.
    int WrongUse(const std::string& why) const;
};

/// What can be wrong with the words of a command about a parameter, before the device is asked; kGood when
/// nothing is.
int CheckParameter(Context& context);
int CheckChange(Context& context);

int RunInfo(Context& context);
int RunChannels(Context& context);
int RunAbilities(Context& context);
int RunGet(Context& context);
int RunSet(Context& context);
int RunBatch(Context& context);
int RunOutputs(Context& context);
int RunTime(Context& context);
int RunCommands(Context& context);

/// A structure, as text or as JSON.
void Show(Context& context, const devices::Layout& layout, const devices::Octets& structure);

extern const char kHelp[];

} // namespace devicetool
