#pragma once

#include "ChildProcess/ChildProcess.h"

#include <cstddef>
#include <string>

namespace bench {

/// The reference framework with the component that it starts, on the data root and display of the
/// environment; this process is a client of it. One at a time. Whatever fails ends the program with a
/// message.
class CFrameworkRun
{
public:
    /// Returns when the component answers such a request.
    CFrameworkRun(const std::string& url, const std::string& body);
    /// Ends both in order.
    ~CFrameworkRun();
    CFrameworkRun(const CFrameworkRun&) = delete;
    CFrameworkRun& operator=(const CFrameworkRun&) = delete;

    /// The body of the answer to a request of the route.
    std::string Ask(const std::string& url, const std::string& body);

private:
    bool Call(const std::string& url, const std::string& body, std::string& answer);

    CChildProcess m_framework;
};

} // namespace bench
