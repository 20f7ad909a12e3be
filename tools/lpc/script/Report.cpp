#include "lpc/script/Report.h"

#include "Base/StringUtil.h"

namespace lpctool {

using Base::StringUtil::Format;

void CReport::Line(const std::string& text)
{
    m_out << text << std::endl;
}

void CReport::Heading(const std::string& text)
{
    m_out << '\n' << text << std::endl;
}

void CReport::Step(const std::string& what, std::chrono::milliseconds took, const Failure* failure,
                   const std::string& place)
{
    ++m_steps;
    m_out << Format("%4d  %-72s %7lld ms  %s", m_steps, what.c_str(), static_cast<long long>(took.count()),
                    failure ? "MISMATCH" : "ok")
          << std::endl;
    if (failure)
        Explain(*failure, place);
}

void CReport::Explain(const Failure& failure, const std::string& place)
{
    m_out << "      " << place << ": " << failure.reason << '\n';
    if (failure.mismatch)
        m_out << "        at      " << failure.mismatch->path << "\n        wanted  "
              << failure.mismatch->wanted << "\n        got     " << failure.mismatch->got << '\n';
    if (!failure.whole.empty())
        m_out << "        whole   " << failure.whole << '\n';
    m_out << std::flush;
}

void CReport::Summary(bool good, std::chrono::milliseconds took)
{
    m_out << Format("\n%d steps in %.1f s: %s", m_steps, static_cast<double>(took.count()) / 1000.0,
                    good ? "all as demanded" : "failed")
          << std::endl;
}

} // namespace lpctool
