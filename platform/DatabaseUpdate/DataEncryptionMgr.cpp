#include "DatabaseUpdate/DataEncryptionMgr.h"

#include "Base/Singleton.h"

namespace DatabaseUpdate {

CDataEncryptionMgr& CDataEncryptionMgr::Instance()
{
    return Base::CSingleton<CDataEncryptionMgr>::Instance();
}

void CDataEncryptionMgr::Init(const Base::Encrypt::AESParams& params, const std::string& key,
                              const std::string& id)
{
    Clear();
    std::lock_guard<std::mutex> lock(m_mutex);
    m_params = params;
    m_key = key;
    m_id = id;
}

void CDataEncryptionMgr::Clear()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    Base::Encrypt::Wipe(m_key);
    m_params = Base::Encrypt::AESParams();
    m_id.clear();
}

Base::Encrypt::AESParams CDataEncryptionMgr::Params() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_params;
}

std::string CDataEncryptionMgr::Key() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_key;
}

std::string CDataEncryptionMgr::Id() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_id;
}

} // namespace DatabaseUpdate
