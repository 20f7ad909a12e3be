#include "lpc/Commands.h"

#include "Base/FileUtil.h"
#include "CommandLine/Options.h"
#include "lpc/Errors.h"
#include "lpc/Names.h"
#include "lpc/host/InterruptWatch.h"
#include "lpc/script/Player.h"

#include <istream>
#include <iterator>
#include <ostream>

namespace lpctool {

namespace {

using CommandLine::COptions;
using CommandLine::OptionSpec;
using Kind = OptionSpec::Kind;

const std::vector<OptionSpec> kOptions = {
    {"--name", Kind::Value},   {"--client", Kind::Value}, {"--spawn", Kind::Words},
    {"--output", Kind::Value}, {"--skin", Kind::Value},   {"--language", Kind::Value},
    {"--script", Kind::Value},
};

struct HostPlan
{
    std::string serverName;
    std::string clientName;
    std::vector<std::string> command; ///< empty: nothing is started
    std::string outputPath;
    std::optional<Script> script;
};

/// The component's usual arguments: two names for people who look at the process list, and the start-up
/// settings (skin, language, edition and three more numbers).
std::vector<std::string> UsualArguments(const std::string& skin, long language)
{
    return {kServerName, kComponentName, skin + " " + std::to_string(language) + " 0 0 0 0"};
}

bool ReadScriptText(const std::string& path, std::istream& in, std::string& text)
{
    if (path != "-")
        return Base::FileUtil::ReadFile(path, text);
    text.assign(std::istreambuf_iterator<char>(in), {});
    return true;
}

bool PlanScript(const COptions& options, std::istream& in, HostPlan& plan, std::string& error)
{
    const std::string path = options.Value("--script");
    if (path.empty())
        return true;
    std::string text;
    if (!ReadScriptText(path, in, text)) {
        error = path + ": cannot be read, or is larger than 16 MiB";
        return false;
    }
    plan.script = ParseScript(path, text, error);
    if (!plan.script)
        return false;
    for (const ScriptLine& line : plan.script->lines)
        if (plan.command.empty() && NeedsChild(line.step)) {
            error = path + ":" + std::to_string(line.number) + ": needs a program started with --spawn";
            return false;
        }
    return true;
}

bool MakePlan(const COptions& options, std::istream& in, HostPlan& plan, std::string& error)
{
    long language = 0;
    if (!options.Number("--language", 0, 1000, 1, language, error))
        return false;
    const std::string skin = options.Value("--skin", "BlackRedSkin");
    if (skin.find(' ') != std::string::npos) {
        error = "--skin cannot hold a blank";
        return false;
    }
    plan.serverName = options.Value("--name", kServerName);
    plan.clientName = options.Value("--client", kComponentName);
    plan.outputPath = options.Value("--output");
    plan.command = options.Words("--spawn");
    if (plan.command.size() == 1)
        for (std::string& argument : UsualArguments(skin, language))
            plan.command.push_back(std::move(argument));
    return PlanScript(options, in, plan, error);
}

/// Serves until the started program ends, or this process is asked to.
bool Serve(CComponentInbox& inbox, CReport& report)
{
    report.Line("serving until interrupted");
    int status = 0;
    const auto outcome = inbox.WaitForExit(Clock::time_point::max(), status);
    return outcome == CComponentInbox::Outcome::Interrupted || status == 0;
}

bool Play(CHost& host, CChildProcess& child, const HostPlan& plan, CReport& report)
{
    const bool spawned = !plan.command.empty();
    CPlayer player(host, spawned ? &child : nullptr, report);
    bool good = plan.script ? player.Play(*plan.script) : Serve(host.Inbox(), report);
    if (spawned)
        good = player.EndChild() && good;
    return good;
}

int Run(const HostPlan& plan, std::ostream& out, std::ostream& err)
{
    CHost host(plan.clientName);
    if (const int error = host.Start(plan.serverName); error != lpc::kNoError) {
        err << "vantor-lpc: cannot listen as " << plan.serverName << ": " << ErrorText(error) << '\n';
        return kFailed;
    }
    CInterruptWatch interrupts([&] { host.Inbox().Interrupt(); });
    CChildProcess child([&](int status) { host.Inbox().Exited(status); });
    CReport report(out);
    report.Line("listening as " + plan.serverName);
    std::string reason;
    if (!plan.command.empty() && !child.Start(plan.command, plan.outputPath, reason)) {
        err << "vantor-lpc: cannot start " << plan.command[0] << ": " << reason << '\n';
        return kFailed;
    }
    if (!plan.command.empty())
        report.Line("started " + plan.command[0] + ", process " + std::to_string(child.Id()));
    const Clock::time_point begin = Clock::now();
    const bool good = Play(host, child, plan, report);
    report.Summary(good, std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begin));
    return good ? kGood : kFailed;
}

} // namespace

int RunHost(const Arguments& arguments, std::istream& in, std::ostream& out, std::ostream& err)
{
    std::string error;
    const auto options = COptions::Parse(arguments, kOptions, error);
    HostPlan plan;
    if (options && MakePlan(*options, in, plan, error))
        return Run(plan, out, err);
    err << "vantor-lpc host: " << error << '\n';
    return kWrongUse;
}

} // namespace lpctool
