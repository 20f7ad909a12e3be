#pragma once

#include "Base/Noncopyable.h"

#include <string>

namespace comm_methodlib {

/// Knows what a user or the support has asked a component to collect. Any thread.
class CEventUploadMgr : Base::CNoncopyable
{
public:
    static CEventUploadMgr& Instance();

    /// True when the next crash shall leave a full report, with the process's memory, instead of a short one:
    /// a file "full-dump", of any content, lies in the dump folder. It is asked for by creating that file and
    /// starting the component again, and ended by deleting it.
    bool isCreateCrashDump(const std::string& dumpPath) const;
};

} // namespace comm_methodlib
