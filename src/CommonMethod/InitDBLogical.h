#pragma once

#include "CommonMethod/DataEncryptionConfig.h"
#include "DatabaseUpdate/DBCheckImplHelper.h"

#include <mutex>
#include <string>
#include <vector>

namespace comm_method {

using DatabaseUpdate::ComponentRecord;

/// Where a component finds its setup, databases and scripts. Local code page, ending in "/".
struct DBInitPaths
{
    std::string rootPath;      ///< the user data root, with the setup files
    std::string componentPath; ///< the databases
    std::string scriptPath;    ///< the schema scripts, one folder a database
    std::string installPath;   ///< what was delivered with the programs
};

/// Prepares a component's databases: installs the data encryption and brings the schemas up to date. Any
/// thread, one call at a time is at work.
class CComponentDBInit
{
public:
    explicit CComponentDBInit(const DBInitPaths& paths) : m_paths(paths) {}

    /// Reads "Framework.C/DESetup.xml" unless an earlier call installed one, and checks the listed databases.
    /// Without the file it goes on unencrypted after a fatal line. False after one line: a setup that cannot
    /// be read, or a database that cannot be opened or updated; no database is then replaced or made plain.
    [[nodiscard]] bool Init(const std::vector<std::string>& databases,
                            const std::vector<ComponentRecord>& components);

    /// The same for a user data root that an older release has set up. The first of
    /// "Framework.C/DESetup.xml", "ClientDESetup.xml", "Framework.S/DESetup.xml" and "DESetup.xml" that can
    /// be read supplies the encryption. When every listed database has been opened with it, it stands in
    /// "Framework.C/DESetup.xml", and the other three are removed.
    [[nodiscard]] bool InitEx(const std::vector<std::string>& databases,
                              const std::vector<ComponentRecord>& components);

private:
    bool InstallFromFramework();
    bool CheckDatabases(const std::vector<std::string>& databases,
                        const std::vector<ComponentRecord>& components) const;
    bool MoveToFramework(const DataEncryption& encryption) const;
    void RemoveOlder() const;
    std::string FrameworkSetup() const { return m_paths.rootPath + kFrameworkSetup; }

    const DBInitPaths m_paths;
    std::mutex m_mutex;
    bool m_installed = false;
};

/// CComponentDBInit on this process's own places: the scripts of "maintain/" beside the program, the
/// databases of CUserDataPath. Called once at start, before the first table session is used.
[[nodiscard]] bool initComponentDBLogical(const std::vector<std::string>& databases,
                                          const std::vector<ComponentRecord>& components = {});
[[nodiscard]] bool initComponentDBLogicalEx(const std::vector<std::string>& databases,
                                            const std::vector<ComponentRecord>& components = {});

} // namespace comm_method
