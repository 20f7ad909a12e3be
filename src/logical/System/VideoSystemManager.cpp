#include "logical/System/VideoSystemManager.h"

#include "Base/Singleton.h"
#include "logical/Local/DatabaseSession/VideoSystemDB.h"

namespace video {

CVideoSystemManager& CVideoSystemManager::Instance()
{
    return Base::CSingleton<CVideoSystemManager>::Instance();
}

void CVideoSystemManager::Init()
{
    VideoSystemDB::Instance();
    m_ready = true;
}

} // namespace video
