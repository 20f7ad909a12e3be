#pragma once

#include <string>
#include <vector>

namespace DatabaseUpdate {

/// The component that a database belongs to; it stands in messages about the database.
struct ComponentRecord
{
    std::string database;  ///< for example "VideoClient"
    std::string component; ///< for example "Video"
    std::string service;   ///< for example "Video.S"
};

/// Where the databases and their scripts lie. Folders in the local code page, ending in a separator.
struct DBCheckImplHelperParams
{
    std::string dataPath;    ///< the databases' folder; a database's path is dataPath followed by its name
    std::string scriptPath;  ///< holds one folder of scripts a database, named as it is
    std::string installPath; ///< a plain database of the same name there is what a database that does not
                             ///< exist begins as
    std::vector<ComponentRecord> components;
};

/// Brings databases to the schema that this program's scripts describe. The number of the last script that
/// ran is the file's version, kept in the file itself (PRAGMA user_version).
///
/// - A database that does not exist is made; one of an older version is migrated, each script in a
///   transaction of its own, so that a script that fails changes nothing. Before the first script of a
///   database that holds tables, a copy is kept as "<file>.backup-<version>", encrypted as the database is.
/// - A newer or damaged database, or one that the key does not open, is refused and left as it is.
/// - A name without a folder of scripts belongs to somebody else: its file is not made. If it exists, it
///   must open.
/// - With a key in force (CDataEncryptionMgr), a plain file is first converted: a copy is encrypted, checked
///   against the original and then put in its place in one step. Plain "backup" copies beside it are
///   converted too.
///
/// What a script may hold is anything but transactions, attached files and pragmas.
class CDBCheckImplHelper
{
public:
    /// Stops at the first database that fails, with the reason in message, which names the database and holds
    /// no secret. Blocks while it migrates; call it before the databases are used, from one thread.
    [[nodiscard]] static bool checkAndUpdateDB(const DBCheckImplHelperParams& params,
                                               const std::vector<std::string>& databases,
                                               std::string& message);
};

} // namespace DatabaseUpdate
