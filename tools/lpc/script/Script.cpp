#include "lpc/script/Script.h"

#include "Base/StringUtil.h"
#include "ChildProcess/ChildProcess.h"
#include "lpc/json/Matcher.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <stdexcept>
#include <string_view>

namespace lpctool {

namespace {

/// An hour; no step waits longer.
constexpr double kLongestMs = 3600 * 1000;

class ScriptError : public std::runtime_error
{
    using runtime_error::runtime_error;
};

std::string Quoted(std::string_view name)
{
    return '"' + std::string(name) + '"';
}

/// Reads the members of one object of the script; throws ScriptError naming the member that is wrong.
class CObjectReader
{
public:
    CObjectReader(const cJSON* object, std::string_view what) : m_object(object)
    {
        if (!cJSON_IsObject(object))
            throw ScriptError(Quoted(what) + " must be an object");
    }

    void Allow(std::initializer_list<std::string_view> names) const
    {
        for (const cJSON* member = m_object->child; member; member = member->next)
            if (std::find(names.begin(), names.end(), member->string) == names.end())
                throw ScriptError("unknown member " + Quoted(member->string));
    }

    const cJSON* Get(const char* name) const { return Member(m_object, name); }

    std::string Text(const char* name) const
    {
        const cJSON* member = Get(name);
        if (member && !cJSON_IsString(member))
            throw ScriptError(Quoted(name) + " must be a text");
        return member ? member->valuestring : "";
    }

    std::optional<int> Integer(const char* name, double lowest, double highest) const
    {
        const cJSON* member = Get(name);
        if (!member)
            return std::nullopt;
        const double value = member->valuedouble;
        if (!cJSON_IsNumber(member) || value != std::floor(value) || value < lowest || value > highest)
            throw ScriptError(Quoted(name) + " must be a whole number from " +
                              std::to_string(static_cast<long>(lowest)) + " to " +
                              std::to_string(static_cast<long>(highest)));
        return static_cast<int>(value);
    }

    std::optional<std::uint32_t> Milliseconds(const char* name, double lowest = 1) const
    {
        const auto value = Integer(name, lowest, kLongestMs);
        return value ? std::optional<std::uint32_t>(static_cast<std::uint32_t>(*value)) : std::nullopt;
    }

    std::optional<bool> Flag(const char* name) const
    {
        const cJSON* member = Get(name);
        if (member && !cJSON_IsBool(member))
            throw ScriptError(Quoted(name) + " must be true or false");
        return member ? std::optional<bool>(cJSON_IsTrue(member)) : std::nullopt;
    }

    JsonValue Value(const char* name) const
    {
        const cJSON* member = Get(name);
        return member ? OwnJson(cJSON_Duplicate(member, true)) : nullptr;
    }

private:
    const cJSON* m_object;
};

lpc::HeaderMap ReadHeaders(const CObjectReader& message)
{
    lpc::HeaderMap headers;
    for (const char* name : {"protocol", "url", "method"})
        if (message.Get(name))
            headers[name] = message.Text(name);
    if (headers.empty())
        throw ScriptError("a message needs \"protocol\", \"url\" or \"method\"");
    return headers;
}

Step ReadInvoke(const CObjectReader& line)
{
    line.Allow({"invoke", "reply", "reply_headers", "no_reply_ms", "within_ms"});
    const CObjectReader message(line.Get("invoke"), "invoke");
    message.Allow({"protocol", "url", "method", "body"});
    Invoke step{ReadHeaders(message),
                message.Value("body"),
                line.Value("reply"),
                line.Value("reply_headers"),
                line.Milliseconds("no_reply_ms", 0),
                line.Milliseconds("within_ms")};
    if (step.silenceMs.has_value() == (step.reply || step.replyHeaders))
        throw ScriptError("\"invoke\" needs either \"reply\" or \"no_reply_ms\"");
    if (step.silenceMs && step.withinMs)
        throw ScriptError("\"within_ms\" has no meaning beside \"no_reply_ms\"");
    return step;
}

Step ReadNotify(const CObjectReader& line)
{
    line.Allow({"notify", "may_miss"});
    const CObjectReader message(line.Get("notify"), "notify");
    message.Allow({"protocol", "url", "method", "body"});
    return SendNotify{ReadHeaders(message), message.Value("body"), line.Flag("may_miss").value_or(false)};
}

Step ReadExpectMessage(const CObjectReader& line, const char* kind)
{
    line.Allow({kind, "within_ms"});
    const CObjectReader pattern(line.Get(kind), kind);
    if (!pattern.Get("url") && !pattern.Get("method"))
        throw ScriptError(Quoted(kind) + " needs \"url\" or \"method\"");
    return ExpectMessage{std::string_view(kind) == "expect_request", line.Value(kind),
                         line.Milliseconds("within_ms")};
}

Step ReadExpectNotify(const CObjectReader& line)
{
    return ReadExpectMessage(line, "expect_notify");
}

Step ReadExpectRequest(const CObjectReader& line)
{
    return ReadExpectMessage(line, "expect_request");
}

Step ReadServe(const CObjectReader& line)
{
    line.Allow({"serve", "answer", "status", "error_code", "silent"});
    const CObjectReader route(line.Get("serve"), "serve");
    route.Allow({"url", "method"});
    Serve step{route.Text("url"),
               route.Text("method"),
               line.Value("answer"),
               line.Integer("status", 100, 599).value_or(200),
               line.Integer("error_code", 0, 1e9).value_or(0),
               line.Flag("silent").value_or(false)};
    if (step.url.empty() && step.method.empty())
        throw ScriptError("\"serve\" needs \"url\" or \"method\"");
    if (step.silent && (step.answer || line.Get("status") || line.Get("error_code")))
        throw ScriptError("\"silent\" and an answer exclude each other");
    return step;
}

Step ReadSleep(const CObjectReader& line)
{
    line.Allow({"sleep_ms"});
    return Sleep{*line.Milliseconds("sleep_ms")};
}

Step ReadKill(const CObjectReader& line)
{
    line.Allow({"kill"});
    const std::string name = line.Text("kill");
    const auto signal = CChildProcess::SignalNumber(name);
    if (!signal)
        throw ScriptError("unknown signal " + Quoted(name));
    return KillChild{*signal};
}

Step ReadExpectExit(const CObjectReader& line)
{
    line.Allow({"expect_exit", "within_ms"});
    return ExpectExit{*line.Integer("expect_exit", -255, 255), line.Milliseconds("within_ms")};
}

Step ReadSet(const CObjectReader& line)
{
    line.Allow({"set"});
    const CObjectReader options(line.Get("set"), "set");
    SetOptions step;
    for (const cJSON* member = line.Get("set")->child; member; member = member->next) {
        const std::string_view name = member->string;
        if (const auto variable = VariableName(member->string))
            step.variables.emplace_back(*variable, options.Value(member->string));
        else if (name == "timeout_ms")
            step.timeoutMs = options.Milliseconds("timeout_ms");
        else if (name == "end_ms")
            step.endMs = options.Milliseconds("end_ms");
        else if (name == "accepting")
            step.accepting = options.Flag("accepting");
        else
            throw ScriptError("unknown option " + Quoted(name) +
                              "; there are \"timeout_ms\", \"end_ms\", \"accepting\" and "
                              "\"$name\"");
    }
    return step;
}

constexpr struct
{
    const char* name;
    Step (*read)(const CObjectReader&);
} kKinds[] = {
    {"invoke", ReadInvoke},
    {"notify", ReadNotify},
    {"expect_notify", ReadExpectNotify},
    {"expect_request", ReadExpectRequest},
    {"serve", ReadServe},
    {"sleep_ms", ReadSleep},
    {"kill", ReadKill},
    {"expect_exit", ReadExpectExit},
    {"set", ReadSet},
};

Step ReadStep(const std::string& text)
{
    std::string fault;
    const JsonValue value = ParseJson(text, &fault);
    if (!value)
        throw ScriptError(fault);
    if (!cJSON_IsObject(value.get()))
        throw ScriptError("a line must be an object");
    for (const auto& kind : kKinds)
        if (Member(value.get(), kind.name))
            return kind.read(CObjectReader(value.get(), "line"));
    throw ScriptError("unknown kind of line; see vantor-lpc host --help");
}

/// The text of a "## text" line; none for other lines.
std::optional<std::string> HeadingText(const std::string& line)
{
    if (line.compare(0, 3, "## ") != 0)
        return std::nullopt;
    return line.substr(3);
}

std::string Trimmed(const std::string& line)
{
    const auto begin = line.find_first_not_of(" \t\r");
    const auto end = line.find_last_not_of(" \t\r");
    return begin == std::string::npos ? std::string() : line.substr(begin, end - begin + 1);
}

} // namespace

std::optional<Script> ParseScript(const std::string& file, const std::string& text, std::string& error)
{
    Script script{file, {}};
    int number = 0;
    for (const std::string& part : Base::StringUtil::Split(text, '\n')) {
        ++number;
        const std::string line = Trimmed(part);
        try {
            if (const auto heading = HeadingText(line))
                script.lines.push_back({number, Heading{*heading}});
            else if (!line.empty() && line[0] != '#')
                script.lines.push_back({number, ReadStep(line)});
        } catch (const ScriptError& fault) {
            error = file + ":" + std::to_string(number) + ": " + fault.what();
            return std::nullopt;
        }
    }
    return script;
}

} // namespace lpctool
