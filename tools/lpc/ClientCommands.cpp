#include "lpc/CallSeries.h"
#include "lpc/Commands.h"

#include "Base/GuidUtil.h"
#include "CommandLine/Options.h"
#include "LPC_Client/LPC_Client.h"
#include "lpc/Errors.h"
#include "lpc/Names.h"
#include "lpc/json/Json.h"

#include <condition_variable>
#include <fstream>
#include <istream>
#include <iterator>
#include <mutex>
#include <ostream>

namespace lpctool {

namespace {

using CommandLine::COptions;
using CommandLine::OptionSpec;
using Kind = OptionSpec::Kind;

constexpr long kDefaultTimeoutMs = 5000;
constexpr long kLongestTimeoutMs = 3600 * 1000;

const std::vector<OptionSpec> kMessageOptions = {{"--name", Kind::Value},   {"--url", Kind::Value},
                                                 {"--method", Kind::Value}, {"--protocol", Kind::Value},
                                                 {"--body", Kind::Value},   {"--timeout", Kind::Value}};
const std::vector<OptionSpec> kCallOptions = [] {
    std::vector<OptionSpec> options = kMessageOptions;
    options.insert(options.end(), {{"--bodies", Kind::Value}, {"--quiet", Kind::Flag}});
    return options;
}();
const std::vector<OptionSpec> kWatchOptions = {{"--name", Kind::Value}, {"--count", Kind::Value}};

/// The connection of this process to a framework, under a name that no other client has.
class CConnection
{
public:
    CConnection(const std::string& serverName, std::ostream& err)
    {
        const std::string name = "vantor-lpc_" + Base::GuidUtil::CreateGuid();
        m_good = lpcclient::Init(name, false) && lpcclient::ConnectToServer(serverName);
        if (!m_good)
            err << "vantor-lpc: cannot connect to " << serverName << ": "
                << ErrorText(lpcclient::GetLPCLastError()) << '\n';
    }
    ~CConnection()
    {
        (void)lpcclient::DisconnectToServer();
        (void)lpcclient::Uninit();
    }
    CConnection(const CConnection&) = delete;
    CConnection& operator=(const CConnection&) = delete;

    bool Good() const { return m_good; }

private:
    bool m_good = false;
};

struct MessagePlan
{
    std::string serverName;
    lpc::Message message;
    long timeoutMs = 0;
    std::string bodiesPath; ///< empty: there is one message
    CCallSeries::Show show = CCallSeries::Show::Answers;
};

bool PlanBody(const COptions& options, std::istream& in, lpc::Message& message, std::string& error)
{
    message.body = options.Value("--body");
    if (message.body == "-")
        message.body.assign(std::istreambuf_iterator<char>(in), {});
    if (!options.Has("--body") && !options.Has("--bodies"))
        return true;
    std::string fault;
    if (options.Has("--body") && !ParseJson(message.body, &fault)) {
        error = "--body is " + fault;
        return false;
    }
    message.headers["Content-Type"] = "application/json; charset=\"UTF-8\"";
    return true;
}

bool PlanSeries(const COptions& options, MessagePlan& plan, std::string& error)
{
    plan.bodiesPath = options.Value("--bodies");
    if (options.Has("--quiet"))
        plan.show = CCallSeries::Show::Summary;
    if (options.Has("--body") && options.Has("--bodies"))
        error = "--body and --bodies exclude each other";
    else if (options.Has("--quiet") && !options.Has("--bodies"))
        error = "--quiet needs --bodies";
    return error.empty();
}

bool PlanMessage(const Arguments& arguments, const std::vector<OptionSpec>& known, std::istream& in,
                 MessagePlan& plan, std::string& error)
{
    const auto options = COptions::Parse(arguments, known, error);
    if (!options ||
        !options->Number("--timeout", 1, kLongestTimeoutMs, kDefaultTimeoutMs, plan.timeoutMs, error))
        return false;
    if (!options->Has("--url") && !options->Has("--method")) {
        error = "--url or --method is needed";
        return false;
    }
    plan.serverName = options->Value("--name", kServerName);
    const std::string protocol = options->Value("--protocol", options->Has("--url") ? "http" : "");
    if (!protocol.empty())
        plan.message.headers["protocol"] = protocol;
    for (const char* name : {"url", "method"})
        if (options->Has(std::string("--") + name))
            plan.message.headers[name] = options->Value(std::string("--") + name);
    plan.message.headers["timeout"] = std::to_string(plan.timeoutMs);
    return PlanSeries(*options, plan, error) && PlanBody(*options, in, plan.message, error);
}

/// Prints the answer's body; false, with a complaint, when the answer reports an error.
bool ShowAnswer(const lpc::Message& answer, std::ostream& out, std::ostream& err)
{
    if (!answer.body.empty())
        out << ToPrettyText(*BodyValue(answer.body)) << '\n';
    const std::string complaint = ComplaintAbout(answer);
    if (!complaint.empty())
        err << "vantor-lpc: " << complaint << '\n';
    return complaint.empty();
}

bool Request(const lpc::Message& request, long timeoutMs, std::ostream& out, std::ostream& err)
{
    lpc::Message answer;
    lpc::RequestId id = 0;
    if (lpcclient::SendEx(answer, request, id, static_cast<std::uint32_t>(timeoutMs)))
        return ShowAnswer(answer, out, err);
    err << "vantor-lpc: no answer: " << ErrorText(lpcclient::GetLPCLastError()) << '\n';
    return false;
}

/// Prints the copies of the traffic that the library's thread delivers, and lets a thread wait for the last.
class CWatch
{
public:
    CWatch(long count, std::ostream& out) : m_left(count), m_out(out) {}

    bool Take(const lpc::CallBackData& data)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (data.Header("method") == kWatchMethod && m_left != 0) {
            m_out << data.body << std::endl;
            --m_left;
        }
        m_over = m_over || m_left == 0 || data.Header("method") == kLostMethod;
        m_changed.notify_all();
        return true;
    }

    void Wait()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_over; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    long m_left; ///< below 0 there is no limit
    std::ostream& m_out;
    bool m_over = false;
};

/// Opened before the connection: a pipe may be waited for without holding one.
int RunSeries(const MessagePlan& plan, std::istream& in, std::ostream& out, std::ostream& err)
{
    std::ifstream file;
    if (plan.bodiesPath != "-") {
        file.open(plan.bodiesPath, std::ios::binary);
        if (!file) {
            err << "vantor-lpc call: cannot read " << plan.bodiesPath << '\n';
            return kWrongUse;
        }
    }
    const CConnection connection(plan.serverName, err);
    if (!connection.Good())
        return kFailed;
    CCallSeries series(plan.message, static_cast<std::uint32_t>(plan.timeoutMs), plan.show, out, err);
    return series.Run(plan.bodiesPath == "-" ? in : file);
}

} // namespace

int RunCall(const Arguments& arguments, std::istream& in, std::ostream& out, std::ostream& err)
{
    MessagePlan plan;
    std::string error;
    if (!PlanMessage(arguments, kCallOptions, in, plan, error)) {
        err << "vantor-lpc call: " << error << '\n';
        return kWrongUse;
    }
    if (!plan.bodiesPath.empty())
        return RunSeries(plan, in, out, err);
    const CConnection connection(plan.serverName, err);
    return connection.Good() && Request(plan.message, plan.timeoutMs, out, err) ? kGood : kFailed;
}

int RunNotify(const Arguments& arguments, std::istream& in, std::ostream&, std::ostream& err)
{
    MessagePlan plan;
    std::string error;
    if (!PlanMessage(arguments, kMessageOptions, in, plan, error)) {
        err << "vantor-lpc notify: " << error << '\n';
        return kWrongUse;
    }
    const CConnection connection(plan.serverName, err);
    if (!connection.Good())
        return kFailed;
    if (lpcclient::Notify(plan.message))
        return kGood;
    err << "vantor-lpc: not sent: " << ErrorText(lpcclient::GetLPCLastError()) << '\n';
    return kFailed;
}

int RunWatch(const Arguments& arguments, std::istream&, std::ostream& out, std::ostream& err)
{
    std::string error;
    long count = 0;
    const auto options = COptions::Parse(arguments, kWatchOptions, error);
    if (!options || !options->Number("--count", 1, 1000000000, -1, count, error)) {
        err << "vantor-lpc watch: " << error << '\n';
        return kWrongUse;
    }
    CWatch watch(count, out);
    const CConnection connection(options->Value("--name", kServerName), err);
    if (!connection.Good())
        return kFailed;
    const auto take = [&watch](const lpcclient::LPCCallBackData& data, void*) { return watch.Take(data); };
    if (!Request({{{"method", kWatchMethod}}, {}}, kDefaultTimeoutMs, out, err) ||
        !lpcclient::SetInvokeCallBack(take, nullptr))
        return kFailed;
    err << "watching; interrupt to stop" << std::endl;
    watch.Wait();
    return kGood;
}

} // namespace lpctool
