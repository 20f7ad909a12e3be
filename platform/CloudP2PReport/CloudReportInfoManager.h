#pragma once

#include "Base/Noncopyable.h"

namespace cloudreport {

/// Collects facts about devices for the reports, between init and release. Without a cloud client there is
/// nobody to tell, so nothing is collected. Any thread.
class CCloudReportInfoManager : Base::CNoncopyable
{
public:
    static CCloudReportInfoManager& Instance();
    CCloudReportInfoManager() = default;

    /// Both may be called again. init gives false when nothing will be collected: always, in this edition.
    bool init();
    void release();
};

} // namespace cloudreport
