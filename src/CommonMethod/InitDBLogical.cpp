#include "CommonMethod/InitDBLogical.h"

#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "CommonMethodLib/UserDataPath.h"
#include "DatabaseUpdate/DataEncryptionMgr.h"
#include "Sqlite3DO/SQLite3Conn.h"

namespace comm_method {
namespace {

/// The setups that older releases left, in the order in which they are tried.
constexpr const char* kOlderSetups[] = {"ClientDESetup.xml", "Framework.S/DESetup.xml", "DESetup.xml"};

void Install(const DataEncryption& encryption)
{
    const Base::Encrypt::AESParams params = encryption.Params();
    Base::Encrypt::SetAESParams(params);
    Sqlite3DO::CSQLite3Conn::SetStaticKey(encryption.databaseKey);
    DatabaseUpdate::CDataEncryptionMgr::Instance().Init(params, encryption.databaseKey, encryption.id);
}

void LogMissing(const std::string& file)
{
    BASE_FATAL("[%s] is not exist.", file.c_str());
}

CComponentDBInit& ThisProcess()
{
    const auto& user = comm_methodlib::CUserDataPath::Instance();
    static CComponentDBInit* const instance =
        new CComponentDBInit({user.rootPath(), user.componentPath(),
                              Base::FileUtil::GetCurExeDir() + "maintain/", user.installDataPath()});
    return *instance;
}

} // namespace

bool CComponentDBInit::Init(const std::vector<std::string>& databases,
                            const std::vector<ComponentRecord>& components)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_installed && !InstallFromFramework())
        return false;
    return CheckDatabases(databases, components);
}

bool CComponentDBInit::InstallFromFramework()
{
    const CDataEncryptionConfig setup(FrameworkSetup());
    if (!setup.Exists()) {
        LogMissing(setup.File());
        return true;
    }
    const auto encryption = setup.Read();
    if (!encryption)
        return false;
    Install(*encryption);
    m_installed = true;
    return true;
}

bool CComponentDBInit::CheckDatabases(const std::vector<std::string>& databases,
                                      const std::vector<ComponentRecord>& components) const
{
    const DatabaseUpdate::DBCheckImplHelperParams params{m_paths.componentPath, m_paths.scriptPath,
                                                         m_paths.installPath, components};
    std::string message;
    if (DatabaseUpdate::CDBCheckImplHelper::checkAndUpdateDB(params, databases, message))
        return true;
    BASE_FATAL("Failed to checkAndUpdateDB. [msg-%s].", message.c_str());
    return false;
}

std::vector<CDataEncryptionConfig> CComponentDBInit::PresentSetups() const
{
    std::vector<CDataEncryptionConfig> setups;
    setups.emplace_back(FrameworkSetup());
    for (const char* older : kOlderSetups)
        setups.emplace_back(m_paths.rootPath + older);
    return setups;
}

} // namespace comm_method
