#pragma once

#include "Base/Noncopyable.h"
#include "CloudP2PReport/OpenSDKInfo.h"

#include <mutex>
#include <string>
#include <vector>

namespace cloudreport {

/// Reports the client's use to the cloud service of the user who is logged in; to nobody else, and nothing at
/// all while nobody is. This edition has no cloud client, so nothing is ever sent. Any thread.
class CReportManager : Base::CNoncopyable
{
public:
    static CReportManager& Instance();
    CReportManager() = default;

    /// Starts, with the fields of the program's start argument, which describe the client in a report (skin,
    /// language, edition and so on). False for a list without any. Again: takes the new fields.
    bool init(const std::vector<std::string>& startFields);

    /// To whom is reported from now on. False before init and after releaseManager; it is not kept then.
    bool setOpenSDKInfo(const OpenSDKInfo& info);

    /// True between init and releaseManager while the information names a session.
    bool isReporting() const;

    /// Ends reporting and forgets fields and information. May be called again.
    void releaseManager();

private:
    mutable std::mutex m_mutex;
    std::vector<std::string> m_startFields;
    OpenSDKInfo m_info;
};

} // namespace cloudreport
