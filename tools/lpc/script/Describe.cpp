#include "lpc/script/Script.h"

#include "ChildProcess/ChildProcess.h"

namespace lpctool {

namespace {

/// The address that people know a message by: its url, or its method.
std::string Address(const std::string& url, const std::string& method)
{
    if (url.empty())
        return method;
    return method.empty() ? url : method + " " + url;
}

std::string Address(const lpc::HeaderMap& headers)
{
    const lpc::CallBackData message{0, headers, {}};
    const std::string address = Address(message.Header("url"), message.Header("method"));
    return address.empty() ? message.Header("protocol") : address;
}

std::string Milliseconds(std::uint32_t ms)
{
    return std::to_string(ms) + " ms";
}

struct Description
{
    std::string operator()(const Heading& step) const { return step.text; }
    std::string operator()(const Invoke& step) const
    {
        const std::string wanted =
            step.silenceMs ? "silence for " + Milliseconds(*step.silenceMs) : "a reply";
        return "invoke " + Address(step.headers) + ": " + wanted;
    }
    std::string operator()(const SendNotify& step) const { return "notify " + Address(step.headers); }
    std::string operator()(const ExpectMessage& step) const
    {
        const cJSON* pattern = step.pattern.get();
        return (step.request ? "expect request " : "expect notification ") +
               Address(TextMember(pattern, "url"), TextMember(pattern, "method"));
    }
    std::string operator()(const Serve& step) const
    {
        const std::string how = step.silent ? "nothing" : "status " + std::to_string(step.status);
        return "serve " + Address(step.url, step.method) + " with " + how;
    }
    std::string operator()(const Sleep& step) const { return "sleep " + Milliseconds(step.ms); }
    std::string operator()(const KillChild& step) const
    {
        return "send " + CChildProcess::DescribeStatus(-step.signal);
    }
    std::string operator()(const ExpectExit& step) const
    {
        return "expect the end with " + CChildProcess::DescribeStatus(step.status);
    }
    std::string operator()(const SetOptions&) const { return "set options"; }
};

} // namespace

std::string Describe(const Step& step)
{
    return std::visit(Description(), step);
}

bool NeedsChild(const Step& step)
{
    return std::holds_alternative<KillChild>(step) || std::holds_alternative<ExpectExit>(step);
}

} // namespace lpctool
