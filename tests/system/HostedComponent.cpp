#include "system/HostedComponent.h"

#include "LPC_Wire/WellKnownNames.h"

#include <csignal>
#include <stdexcept>

namespace {

constexpr int kPatienceMs = 30000;

} // namespace

HostedComponent::HostedComponent(const std::string& program, const std::string& outputPath)
    : m_host(lpc::kVideoComponentName), m_process([this](int status) { m_host.Inbox().Exited(status); })
{
    std::string error;
    if (m_host.Start(lpc::kFrameworkServerName) != lpc::kNoError)
        throw std::runtime_error("the framework cannot listen");
    if (!m_process.Start({program, "1", "2", "BlackRedSkin 1 0 0 0 0"}, outputPath, error))
        throw std::runtime_error(error);
    if (!TakeNotification("initFinish", lpctool::Clock::now() + std::chrono::milliseconds(kPatienceMs)))
        throw std::runtime_error("the component does not become ready");
}

std::string HostedComponent::Ask(const std::string& url, const std::string& body, const std::string& method)
{
    lpc::Message answer;
    const lpc::Message request{{{"protocol", "http"}, {"url", url}, {"method", method}}, body};
    const int error = m_host.Invoke(m_host.Inbox().Client(), request, kPatienceMs, answer);
    return error == lpc::kNoError ? answer.body : std::string();
}

int HostedComponent::TakeNotifications(const std::string& method)
{
    int count = 0;
    while (TakeNotification(method, lpctool::Clock::now()))
        ++count;
    return count;
}

int HostedComponent::End()
{
    static_cast<void>(m_host.Notify(m_host.Inbox().Client(), {{{"method", "componentUninit"}}, ""}));
    return m_process.WaitForExit(kPatienceMs).value_or(-1);
}

void HostedComponent::Kill()
{
    m_process.Signal(SIGKILL);
    m_process.WaitForExit(kPatienceMs);
}

bool HostedComponent::TakeNotification(const std::string& method, lpctool::Clock::time_point deadline)
{
    return m_host.Inbox().WaitForMessage(lpctool::CComponentInbox::Kind::Notification, deadline,
                                         [&](const cJSON& message) {
                                             return lpctool::TextMember(&message, "method") == method;
                                         }) == lpctool::CComponentInbox::Outcome::Found;
}
