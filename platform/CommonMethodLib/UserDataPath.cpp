#include "CommonMethodLib/UserDataPath.h"

#include "Base/FileUtil.h"
#include "Base/ProcessUtil.h"
#include "Base/Singleton.h"
#include "CommonMethodLib/FolderAccess.h"

#include <cstdio>
#include <filesystem>

namespace comm_methodlib {

namespace {

constexpr int kOwnFolders = 0700;
constexpr int kOwnFiles = 0600;

std::string WithSlash(const std::string& dir)
{
    return dir.empty() || dir.back() == '/' ? dir : dir + "/";
}

/// Without ".." and symbolic links, so that log lines and comparisons show the place itself.
std::string Canonical(const std::string& dir)
{
    std::error_code error;
    const std::filesystem::path path = std::filesystem::weakly_canonical(dir, error);
    return WithSlash(error ? dir : path.generic_string());
}

bool MakeOrTell(const std::string& folder, int dirMode)
{
    const std::string problem = MakeWritableFolder(folder, dirMode);
    if (!problem.empty())
        std::fprintf(stderr, "User data: cannot write in [%s]: %s.\n", folder.c_str(), problem.c_str());
    return problem.empty();
}

bool IsFolderName(const std::string& name)
{
    return !name.empty() && name != "." && name != ".." && name.find_first_of("/\\") == std::string::npos;
}

} // namespace

CUserDataPath& CUserDataPath::Instance()
{
    return Base::CSingleton<CUserDataPath>::Instance();
}

bool CUserDataPath::init(const std::string& installDir, const std::string& component, int dirMode,
                         int fileMode)
{
    dirMode = dirMode < 0 ? kOwnFolders : dirMode;
    fileMode = fileMode < 0 ? kOwnFiles : fileMode;
    m_install = Canonical(installDir);
    LimitNewFiles(dirMode, fileMode);
    const bool usable = setPaths(component) && makeFolders(dirMode);
    if (m_canLog) {
        Base::ProcessUtil::SetEnvironment("VANTOR_LOG_DIR", m_log.substr(0, m_log.size() - 1));
        Base::ProcessUtil::SetEnvironment("VANTOR_COMPONENT", component);
    }
    return usable;
}

bool CUserDataPath::setPaths(const std::string& component)
{
    if (!IsFolderName(component)) {
        std::fprintf(stderr, "User data: [%s] is not the name of a component.\n", component.c_str());
        return false;
    }
    m_root = Base::FileUtil::UserDataRoot();
    if (m_root.empty()) {
        std::fprintf(stderr,
                     "User data: no home folder; set VANTOR_USER_DATA to a folder that can be written.\n");
        return false;
    }
    m_component = m_root + component + "/";
    m_log = m_component + "log/";
    m_dump = m_component + "dump/";
    m_video = m_root + "Video/";
    m_capture = m_root + "Picture/";
    return true;
}

bool CUserDataPath::makeFolders(int dirMode)
{
    m_canLog = MakeOrTell(m_root, dirMode) && MakeOrTell(m_component, dirMode) && MakeOrTell(m_log, dirMode);
    bool usable = m_canLog;
    for (const std::string& folder : {m_dump, m_video, m_capture})
        usable = m_canLog && MakeOrTell(folder, dirMode) && usable;
    return usable;
}

std::string CUserDataPath::logPropertiesPath() const
{
    std::error_code ignored;
    const std::string own = m_component + "log.properties";
    return m_canLog && std::filesystem::is_regular_file(own, ignored) ? own : installedLogPropertiesPath();
}

std::string CUserDataPath::installedLogPropertiesPath() const
{
    return m_canLog ? m_install + "resources/log.properties" : std::string();
}

} // namespace comm_methodlib
