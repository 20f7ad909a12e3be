#include "CommonMethod/InitDBLogical.h"

#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "CommonMethodLib/UserDataPath.h"
#include "DatabaseUpdate/DataEncryptionMgr.h"
#include "Sqlite3DO/SQLite3Conn.h"

#include <algorithm>
#include <optional>

namespace comm_method {
namespace {

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

std::vector<std::string> PresentSetups(const std::string& root, const std::string& frameworkSetup)
{
    std::vector<std::string> files{frameworkSetup};
    for (const char* older : kOlderSetups)
        files.push_back(root + older);
    const auto missing = [](const std::string& file) { return !CDataEncryptionConfig(file).Exists(); };
    files.erase(std::remove_if(files.begin(), files.end(), missing), files.end());
    return files;
}

struct ReadSetup
{
    std::string file;
    DataEncryption encryption;
};

std::optional<ReadSetup> FirstReadable(const std::vector<std::string>& files)
{
    for (const std::string& file : files) {
        if (const auto encryption = CDataEncryptionConfig(file).Read())
            return ReadSetup{file, *encryption};
    }
    return std::nullopt;
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

bool CComponentDBInit::InitEx(const std::vector<std::string>& databases,
                              const std::vector<ComponentRecord>& components)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_installed)
        return CheckDatabases(databases, components);
    const auto files = PresentSetups(m_paths.rootPath, FrameworkSetup());
    if (files.empty()) {
        LogMissing(FrameworkSetup());
        return CheckDatabases(databases, components);
    }
    const auto setup = FirstReadable(files);
    if (!setup)
        return false;
    Install(setup->encryption);
    m_installed = true;
    if (!CheckDatabases(databases, components))
        return false;
    if (setup->file == FrameworkSetup() || MoveToFramework(setup->encryption))
        RemoveOlder();
    return true;
}

// A setup that could not be read may still open something else; it is kept.
bool CComponentDBInit::MoveToFramework(const DataEncryption& encryption) const
{
    const CDataEncryptionConfig setup(FrameworkSetup());
    if (setup.Exists())
        setup.SetAside();
    if (!setup.Write(encryption))
        return false;
    const auto written = setup.Read();
    return written && *written == encryption;
}

void CComponentDBInit::RemoveOlder() const
{
    for (const char* older : kOlderSetups) {
        const CDataEncryptionConfig setup(m_paths.rootPath + older);
        if (setup.Exists())
            setup.Remove();
    }
}

bool initComponentDBLogical(const std::vector<std::string>& databases,
                            const std::vector<ComponentRecord>& components)
{
    return ThisProcess().Init(databases, components);
}

bool initComponentDBLogicalEx(const std::vector<std::string>& databases,
                              const std::vector<ComponentRecord>& components)
{
    return ThisProcess().InitEx(databases, components);
}

} // namespace comm_method
