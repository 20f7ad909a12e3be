#include "CrashAPI/CrashAPI.h"

#include "CrashAPI/CrashHandler.h"
#include "CrashAPI/CrashSettings.h"

#include <mutex>

namespace {

struct Installation
{
    std::mutex mutex;
    bool installed = false;
};

Installation& State()
{
    static Installation* const state = new Installation();
    return *state;
}

} // namespace

bool CrashAPI_Init()
{
    std::lock_guard<std::mutex> lock(State().mutex);
    if (!State().installed)
        State().installed = crash::InstallHandlers();
    return State().installed && crash::PrepareThread();
}

bool CrashAPI_PrepareThread()
{
    return crash::PrepareThread();
}

bool CrashAPI_SetDumpPath(const char* dumpPath)
{
    return dumpPath && crash::SetDumpPath(dumpPath);
}

bool CrashAPI_SetDumpType(unsigned type)
{
    crash::SetDumpType(type);
    return true;
}

bool CrashAPI_SetDumpMaxCount(int count)
{
    if (count < 1)
        return false;
    crash::SetMaxCount(count);
    return true;
}

bool CrashAPI_Uninit()
{
    std::lock_guard<std::mutex> lock(State().mutex);
    if (State().installed)
        crash::RemoveHandlers();
    State().installed = false;
    return true;
}
