#include "device/Tool.h"

#include "device/Commands.h"
#include "device/Output.h"
#include "device/Password.h"

#include "Base/FileUtil.h"
#include "DeviceStructures/Markdown.h"
#include "QxNetSDK/Errors.h"

#include <algorithm>
#include <istream>
#include <ostream>

namespace devicetool {

namespace {

constexpr struct CommandRow
{
    const char* name;
    int (*run)(Context&);
    bool needsDevice;
    std::size_t mostWords;
    const char* options;              ///< besides the general ones
    int (*check)(Context&) = nullptr; ///< of the words, before somebody is asked for a password
} kCommands[] = {
    {"info", RunInfo, true, 0, ""},
    {"channels", RunChannels, true, 0, ""},
    {"abilities", RunAbilities, true, 1, "--channel"},
    {"get", RunGet, true, 1, "--channel", CheckParameter},
    {"set", RunSet, true, 1000, "--channel --from", CheckChange},
    {"batch", RunBatch, true, 1000, "--channels", CheckChange},
    {"outputs", RunOutputs, true, 2, ""},
    {"time", RunTime, true, 2, ""},
    {"commands", RunCommands, false, 0, ""},
};

const CommandRow* Find(const std::string& name)
{
    const auto* row = std::find_if(std::begin(kCommands), std::end(kCommands),
                                   [&](const CommandRow& known) { return name == known.name; });
    return row == std::end(kCommands) ? nullptr : row;
}

/// What is wrong with an invocation of a command; empty when nothing is.
std::string Misuse(const CommandRow& command, const Invocation& invocation)
{
    if (command.needsDevice != invocation.target.has_value())
        return std::string(command.name) +
               (command.needsDevice ? " needs USER@HOST:PORT" : " is of no device");
    if (invocation.words.size() > command.mostWords)
        return std::string(command.name) + ": " + invocation.words.back() + " is too much";
    for (const char* option : {"--channel", "--channels", "--from"}) {
        const std::string allowed = " " + std::string(command.options) + " ";
        if (invocation.Has(option) && allowed.find(" " + std::string(option) + " ") == std::string::npos)
            return std::string(option) + " is no option of " + command.name;
    }
    if (invocation.Has("--timeout") && !ParseNumber(invocation.Value("--timeout"), 100, 600000))
        return "--timeout must be a whole number from 100 to 600000";
    return "";
}

CDevice::Way WayTo(const Invocation& invocation)
{
    CDevice::Way way;
    way.tls = invocation.Has("--tls");
    way.timeoutMs = ParseNumber(invocation.Value("--timeout"), 100, 600000).value_or(0);
    way.trustFile = invocation.Value("--trust-file");
    if (way.tls && way.trustFile.empty() && Base::FileUtil::MakeDirs(Base::FileUtil::UserDataRoot()))
        way.trustFile = Base::FileUtil::UserDataRoot() + "trusted-devices";
    return way;
}

/// Of a mistake in the arguments; kWrongUse.
int Complain(bool json, const std::string& why, std::ostream& err)
{
    if (json)
        err << JsonFailure({QXNET_ERROR_ARGUMENT, 0, 0, why}) << "\n";
    else
        err << "vantor-device: " << why << "; see vantor-device --help\n";
    return kWrongUse;
}

int Run(const CommandRow& command, const Invocation& invocation, std::istream& in, std::ostream& out,
        std::ostream& err)
{
    CDevice device;
    Context context{invocation, device, in, out, err};
    if (const std::string misuse = Misuse(command, invocation); !misuse.empty())
        return context.WrongUse(misuse);
    if (!command.needsDevice)
        return command.run(context);
    if (command.check && command.check(context) != kGood)
        return kWrongUse;
    std::string error;
    const auto password = FindPassword(invocation, in, error);
    if (!password)
        return context.WrongUse(error);
    if (!device.Login(*invocation.target, *password, WayTo(invocation)))
        return context.Failed("login");
    return command.run(context);
}

} // namespace

int Context::Failed(const std::string& what) const
{
    if (Json())
        err << JsonFailure(device.LastFailure()) << "\n";
    else
        err << "vantor-device: " << what << ": " << ErrorText(device.LastFailure()) << "\n";
    return kFailed;
}

int Context::WrongUse(const std::string& why) const
{
    return Complain(Json(), why, err);
}

int RunTool(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out, std::ostream& err)
{
    std::string error;
    const auto invocation = ParseInvocation(arguments, error);
    if (invocation && invocation->Has("--help")) {
        out << kHelp;
        return kGood;
    }
    if (invocation && invocation->Has("--structures")) {
        out << devices::StructureTables();
        return kGood;
    }
    const CommandRow* command = invocation ? Find(invocation->command) : nullptr;
    if (command)
        return Run(*command, *invocation, in, out, err);
    if (error.empty())
        error =
            invocation->command.empty() ? "a command is missing" : "unknown command " + invocation->command;
    const bool json = std::find(arguments.begin(), arguments.end(), "--json") != arguments.end();
    return Complain(json, error, err);
}

} // namespace devicetool
