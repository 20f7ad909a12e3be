#include "CommonMethodLib/EventUploadMgr.h"

#include "Base/Singleton.h"

#include <filesystem>

namespace comm_methodlib {

CEventUploadMgr& CEventUploadMgr::Instance()
{
    return Base::CSingleton<CEventUploadMgr>::Instance();
}

bool CEventUploadMgr::isCreateCrashDump(const std::string& dumpPath) const
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(std::filesystem::path(dumpPath) / "full-dump", ignored);
}

} // namespace comm_methodlib
