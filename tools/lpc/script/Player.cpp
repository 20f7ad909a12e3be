#include "lpc/script/Player.h"

#include "lpc/Errors.h"
#include "lpc/Names.h"
#include "lpc/json/Masking.h"

#include <algorithm>

namespace lpctool {

namespace {

using Result = std::optional<Failure>;
using Outcome = CComponentInbox::Outcome;

/// How long a component may take to be gone after its connection was lost.
constexpr int kGoneMs = 1000;

Clock::time_point In(std::uint32_t ms)
{
    return Clock::now() + std::chrono::milliseconds(ms);
}

std::chrono::milliseconds Since(Clock::time_point begin)
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begin);
}

Failure Because(const std::string& reason)
{
    return {reason, std::nullopt, {}};
}

std::string Within(std::uint32_t ms)
{
    return " within " + std::to_string(ms) + " ms";
}

/// True when the message has the address that the pattern names.
bool HasAddress(const cJSON& pattern, const cJSON& message, Variables variables)
{
    for (const char* name : {"protocol", "url", "method"}) {
        const cJSON* wanted = Member(&pattern, name);
        const cJSON* got = Member(&message, name);
        if (wanted && (!got || Match(*wanted, *got, variables)))
            return false;
    }
    return true;
}

/// What came while another message was awaited: the nearest miss, and the addresses of the rest.
class CMisses
{
public:
    void AddNear(const Mismatch& mismatch, const cJSON& message)
    {
        m_nearest = mismatch;
        m_whole = MaskedText(message);
    }

    void AddOther(const cJSON& message)
    {
        const std::string url = TextMember(&message, "url");
        m_others += " " + (url.empty() ? TextMember(&message, "method") : url);
    }

    Failure Explain(Failure failure) const
    {
        failure.mismatch = m_nearest;
        failure.whole = m_whole;
        if (!m_nearest && !m_others.empty())
            failure.reason += "; there came only:" + m_others;
        return failure;
    }

private:
    std::optional<Mismatch> m_nearest;
    std::string m_whole;
    std::string m_others;
};

} // namespace

bool CPlayer::Play(const Script& script)
{
    for (const ScriptLine& line : script.lines) {
        const Clock::time_point begin = Clock::now();
        const Result failure = std::visit(*this, line.step);
        if (!std::holds_alternative<Heading>(line.step))
            m_report.Step(Describe(line.step), Since(begin), failure ? &*failure : nullptr,
                          script.file + ":" + std::to_string(line.number));
        if (failure)
            return false;
    }
    return true;
}

Result CPlayer::operator()(const Heading& step)
{
    m_report.Heading(step.text);
    return std::nullopt;
}

Result CPlayer::operator()(const Invoke& step)
{
    const std::uint32_t withinMs = step.withinMs.value_or(m_timeoutMs);
    Outgoing outgoing;
    if (const Result failure = Prepare(step.headers, step.body, withinMs, outgoing))
        return failure;
    lpc::Message answer;
    // Waiting for 0 ms would mean no limit.
    const std::uint32_t waitMs = std::max(step.silenceMs.value_or(withinMs), 1U);
    const int error = m_host.Invoke(outgoing.component, outgoing.message, waitMs, answer);
    if (error == lpc::kNoError)
        return CheckReply(step, answer);
    // A component that ends keeps silent; whether it may end is for other steps to say.
    if (step.silenceMs && (error == lpc::kTimedOut || error == lpc::kConnectionLost))
        return std::nullopt;
    return LinkFailure(error, "reply", waitMs);
}

Result CPlayer::CheckReply(const Invoke& step, const lpc::Message& answer)
{
    const JsonValue body = BodyValue(answer.body);
    if (step.silenceMs)
        return Failure{"a reply came where silence was demanded", std::nullopt, MaskedText(*body)};
    if (step.replyHeaders) {
        const JsonValue headers = HeadersValue(answer.headers);
        if (auto mismatch = Match(*step.replyHeaders, *headers, m_variables))
            return Failure{"the reply's headers differ", mismatch, MaskedText(*headers)};
    }
    if (!step.reply)
        return std::nullopt;
    if (auto mismatch = Match(*step.reply, *body, m_variables))
        return Failure{"the reply differs", mismatch, MaskedText(*body)};
    return std::nullopt;
}

Result CPlayer::operator()(const SendNotify& step)
{
    Outgoing outgoing;
    if (step.mayMiss && m_inbox.Client() == 0)
        return std::nullopt;
    if (const Result failure = Prepare(step.headers, step.body, m_timeoutMs, outgoing))
        return failure;
    const int error = m_host.Notify(outgoing.component, outgoing.message);
    return error == lpc::kNoError || step.mayMiss ? Result() : LinkFailure(error, "sending", m_timeoutMs);
}

Result CPlayer::Prepare(const lpc::HeaderMap& headers, const JsonValue& body, std::uint32_t timeoutMs,
                        Outgoing& outgoing)
{
    std::string unknown;
    const JsonValue filled = Substitute(body, m_variables, unknown);
    if (!unknown.empty())
        return Because("there is no variable $" + unknown);
    outgoing.message = {headers, BodyText(filled)};
    const Outcome outcome = m_inbox.WaitForConnection(In(timeoutMs), outgoing.component);
    return outcome == Outcome::Found ? Result()
                                     : WaitFailure(outcome, "connection of the component", timeoutMs);
}

Result CPlayer::operator()(const ExpectMessage& step)
{
    const auto kind = step.request ? CComponentInbox::Kind::Request : CComponentInbox::Kind::Notification;
    const std::uint32_t withinMs = step.withinMs.value_or(m_timeoutMs);
    CMisses misses;
    const Outcome outcome = m_inbox.WaitForMessage(kind, In(withinMs), [&](const cJSON& message) {
        const auto mismatch = Match(*step.pattern, message, m_variables);
        if (mismatch && HasAddress(*step.pattern, message, m_variables))
            misses.AddNear(*mismatch, message);
        else if (mismatch)
            misses.AddOther(message);
        return !mismatch;
    });
    if (outcome == Outcome::Found)
        return std::nullopt;
    return misses.Explain(
        WaitFailure(outcome, step.request ? "matching request" : "matching notification", withinMs));
}

Result CPlayer::operator()(const Serve& step)
{
    std::string unknown;
    const JsonValue filled = Substitute(step.answer, m_variables, unknown);
    if (!unknown.empty())
        return Because("there is no variable $" + unknown);
    m_host.Answers().Serve(step.url, step.method,
                           {step.silent, MakeAnswer(step.status, step.errorCode, BodyText(filled))});
    return std::nullopt;
}

Result CPlayer::operator()(const Sleep& step)
{
    return m_inbox.SleepUntil(In(step.ms)) ? Result() : Because("interrupted");
}

Result CPlayer::operator()(const KillChild& step)
{
    m_endDemanded = true;
    return m_child && m_child->Signal(step.signal) ? Result() : Because("the program does not run");
}

Result CPlayer::operator()(const ExpectExit& step)
{
    m_endDemanded = true;
    const std::uint32_t withinMs = step.withinMs.value_or(m_timeoutMs);
    int status = 0;
    const Outcome outcome = m_inbox.WaitForExit(In(withinMs), status);
    return outcome == Outcome::Found ? CheckExit(status, step.status) : WaitFailure(outcome, "end", withinMs);
}

Result CPlayer::CheckExit(int status, int wanted)
{
    if (status == wanted)
        return std::nullopt;
    return Failure{"the component ended in another way",
                   Mismatch{"the exit status", CChildProcess::DescribeStatus(wanted),
                            CChildProcess::DescribeStatus(status)},
                   {}};
}

Result CPlayer::operator()(const SetOptions& step)
{
    for (const auto& [name, value] : step.variables)
        m_variables[name] = value;
    m_timeoutMs = step.timeoutMs.value_or(m_timeoutMs);
    m_endMs = step.endMs.value_or(m_endMs);
    if (step.accepting)
        m_host.SetAccepting(*step.accepting);
    return std::nullopt;
}

Failure CPlayer::WaitFailure(Outcome outcome, const std::string& what, std::uint32_t timeoutMs) const
{
    if (outcome == Outcome::Interrupted)
        return Because("interrupted");
    if (outcome == Outcome::Ended)
        return Because("no " + what + ": the component ended with " +
                       CChildProcess::DescribeStatus(m_inbox.ExitStatus().value_or(0)));
    return Because("no " + what + Within(timeoutMs));
}

Failure CPlayer::LinkFailure(int error, const std::string& what, std::uint32_t timeoutMs) const
{
    if (error == lpc::kTimedOut)
        return Because("no " + what + Within(timeoutMs));
    const auto status = m_child ? m_child->WaitForExit(kGoneMs) : std::nullopt;
    if (status)
        return Because("no " + what + ": the component ended with " + CChildProcess::DescribeStatus(*status));
    return Because("no " + what + ": " + ErrorText(error));
}

bool CPlayer::AskToEnd()
{
    lpcserver::ClientId component = 0;
    if (m_inbox.Client() == 0 && m_inbox.Interrupted())
        return false;
    if (m_inbox.WaitForConnection(In(m_timeoutMs), component) != Outcome::Found)
        return false;
    return m_host.Notify(component, {{{"method", kEndMethod}}, {}}) == lpc::kNoError;
}

bool CPlayer::EndChild()
{
    if (const auto status = m_child->ExitStatus()) {
        if (*status == 0 || m_endDemanded)
            return true;
        m_report.Line("      the component ended before with " + CChildProcess::DescribeStatus(*status));
        return false;
    }
    const Clock::time_point begin = Clock::now();
    const bool asked = AskToEnd();
    const auto status = m_child->WaitForExit(asked ? static_cast<int>(m_endMs) : kGoneMs);
    if (!status) {
        m_child->Signal(*CChildProcess::SignalNumber("SIGKILL"));
        m_child->WaitForExit(kGoneMs);
        const Failure failure =
            Because(asked ? "it did not end and was killed" : "it could not be asked and was killed");
        m_report.Step("end the component", Since(begin), &failure, "end");
        return false;
    }
    const Result failure = CheckExit(*status, 0);
    m_report.Step("end the component", Since(begin), failure ? &*failure : nullptr, "end");
    return !failure;
}

} // namespace lpctool
