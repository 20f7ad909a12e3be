#pragma once

#include <string>

/// What every component of the suite shares: its places on disk, the event upload and the worker pool.
namespace comm_methodlib {

/// Where a component keeps its files. Everything that it writes lies below the user data root
/// (Base::FileUtil::UserDataRoot), so that processes of two roots never meet.
///
/// Paths are in the local code page; folders end in "/". init runs once, on the main thread, before other
/// threads start; afterwards any thread may read. All paths are empty before.
class CUserDataPath
{
public:
    static CUserDataPath& Instance();
    CUserDataPath() = default;

    /// Creates the component's folders and limits who may read what the process writes from now on.
    ///
    /// installDir: where the programs' bin/, resources/ and plugins/ lie. component: name of the folder in
    /// the root, for example "Video.C". dirMode, fileMode: permission bits of folders and files that are
    /// created from here on, by whatever library (they become the process's umask); -1 for the defaults 0700
    /// and 0600. Folders that exist keep their mode. Windows ignores the modes: a user's folders are closed
    /// to others there.
    ///
    /// Sets VANTOR_LOG_DIR (logPath without the last "/") and VANTOR_COMPONENT in the environment for the
    /// logger's properties file. False, with a line on standard error because there is no logger yet, when
    /// the platform names no place, the component's name is no folder name, or a folder cannot be created or
    /// written. One line for each folder, up to the first without which there is no log either.
    bool init(const std::string& installDir, const std::string& component, int dirMode, int fileMode);

    const std::string& rootPath() const { return m_root; }
    const std::string& componentPath() const { return m_component; }
    const std::string& logPath() const { return m_log; }
    const std::string& dumpPath() const { return m_dump; }
    /// Where recorded clips and captured pictures go until the user chooses other folders.
    const std::string& videoPath() const { return m_video; }
    const std::string& capturePath() const { return m_capture; }
    const std::string& installDataPath() const { return m_install; }

    /// "log.properties" in componentPath when the user put one there, else the installed one. Empty when the
    /// log's folder cannot be used: the log then goes to standard error.
    std::string logPropertiesPath() const;
    /// The installed one; empty as above.
    std::string installedLogPropertiesPath() const;

private:
    bool setPaths(const std::string& component);
    bool makeFolders(int dirMode);

    bool m_canLog = false;
    std::string m_root;
    std::string m_component;
    std::string m_log;
    std::string m_dump;
    std::string m_video;
    std::string m_capture;
    std::string m_install;
};

} // namespace comm_methodlib
