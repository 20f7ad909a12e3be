#include "framework/core/ComponentProcess.h"

#include <csignal>

namespace framework {

bool CComponentProcess::Start(std::string& error)
{
    m_child = std::make_unique<CChildProcess>(
        [this](int status) { m_ways.onExit(CChildProcess::DescribeStatus(status)); });
    return m_child->Start(m_ways.command(), m_ways.output, error);
}

void CComponentProcess::AskToEnd()
{
    if (!m_ways.askToEnd() && m_child)
        m_child->Signal(SIGTERM);
}

// Windows has no SIGKILL; there any signal ends the process.
void CComponentProcess::Kill()
{
    if (m_child)
        m_child->Signal(CChildProcess::SignalNumber("SIGKILL").value_or(SIGTERM));
}

} // namespace framework
