#include "ui/Application/CrashSetup.h"

#include "Base/Log.h"
#include "CommonMethodLib/EventUploadMgr.h"
#include "CommonMethodLib/UserDataPath.h"
#include "CrashAPI/CrashAPI.h"

namespace video {

namespace {

constexpr int kMaxDumps = 1;

} // namespace

void crashAPIInit()
{
    const std::string dumpPath = comm_methodlib::CUserDataPath::Instance().dumpPath();
    const bool full = comm_methodlib::CEventUploadMgr::Instance().isCreateCrashDump(dumpPath);
    if (!CrashAPI_Init()) {
        BASE_ERROR("Failed to CrashAPI_Init.");
        return;
    }
    if (!CrashAPI_SetDumpPath(dumpPath.c_str()) ||
        !CrashAPI_SetDumpType(full ? CRASH_DUMP_FULL : CRASH_DUMP_NORMAL))
        BASE_ERROR("Failed to CrashAPI_SetDumpPath [%s].", dumpPath.c_str());
    if (!CrashAPI_SetDumpMaxCount(kMaxDumps))
        BASE_ERROR("Failed to CrashAPI_SetDumpMaxCount [%d].", kMaxDumps);
}

} // namespace video
