#pragma once

#include <string>

namespace cloudreport {

/// How the cloud service is reached and by whom; all texts are empty while nobody is logged in.
struct OpenSDKInfo
{
    std::string server;
    std::string account;
    std::string session;
};

} // namespace cloudreport
