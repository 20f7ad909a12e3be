#pragma once

#include "ChildProcess/ChildProcess.h"
#include "lpc/host/Host.h"
#include "lpc/script/Report.h"
#include "lpc/script/Script.h"

#include <optional>
#include <string>

namespace lpctool {

/// Plays a script against the component that joins a host. Blocks its caller; one script an object.
class CPlayer
{
public:
    /// child: null when the component is started by somebody else.
    CPlayer(CHost& host, CChildProcess* child, CReport& report)
        : m_host(host), m_inbox(host.Inbox()), m_child(child), m_report(report)
    {}

    /// Plays until the end or the first step that fails; true when none did.
    bool Play(const Script& script);

    /// Brings the started program to its end: asks it, waits, kills it. False when it had to be killed, or
    /// ended in a way that no step demanded.
    bool EndChild();

    /// Plays one step; why it failed, or none. Public for std::visit only.
    std::optional<Failure> operator()(const Heading& step);
    std::optional<Failure> operator()(const Invoke& step);
    std::optional<Failure> operator()(const SendNotify& step);
    std::optional<Failure> operator()(const ExpectMessage& step);
    std::optional<Failure> operator()(const Serve& step);
    std::optional<Failure> operator()(const Sleep& step);
    std::optional<Failure> operator()(const KillChild& step);
    std::optional<Failure> operator()(const ExpectExit& step);
    std::optional<Failure> operator()(const SetOptions& step);

private:
    struct Outgoing
    {
        lpcserver::ClientId component = 0;
        lpc::Message message;
    };

    std::optional<Failure> Prepare(const lpc::HeaderMap& headers, const JsonValue& body,
                                   std::uint32_t timeoutMs, Outgoing& outgoing);
    std::optional<Failure> CheckReply(const Invoke& step, const lpc::Message& answer);
    std::optional<Failure> CheckExit(int status, int wanted);
    Failure WaitFailure(CComponentInbox::Outcome outcome, const std::string& what,
                        std::uint32_t timeoutMs) const;
    Failure LinkFailure(int error, const std::string& what, std::uint32_t timeoutMs) const;
    bool AskToEnd();

    CHost& m_host;
    CComponentInbox& m_inbox;
    CChildProcess* m_child;
    CReport& m_report;
    Variables m_variables;
    std::uint32_t m_timeoutMs = 5000;
    std::uint32_t m_endMs = 10000;
    bool m_endDemanded = false;
};

} // namespace lpctool
