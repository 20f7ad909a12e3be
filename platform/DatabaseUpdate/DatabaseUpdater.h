#pragma once

#include "DatabaseUpdate/DBCheckImplHelper.h"
#include "DatabaseUpdate/ScriptFolder.h"
#include "Sqlite3DO/SQLite3Engine.h"

#include <string>
#include <vector>

namespace DatabaseUpdate {

/// Checks and updates one database; see CDBCheckImplHelper for the rules. Every failure is an exception whose
/// text is the reason.
class CDatabaseUpdater
{
public:
    /// key: as CDataEncryptionMgr holds it. The references must outlive the object.
    CDatabaseUpdater(const DBCheckImplHelperParams& params, const std::string& name, const std::string& key);

    void Run();

private:
    bool HasScripts() const;
    bool HasContent() const;
    void TakeDelivered() const;
    void MatchEncryption() const;
    void EncryptCopies() const;
    int ReadVersion(int newest) const;
    void Migrate(const std::vector<Script>& scripts, int version) const;
    void KeepCopy(Sqlite3DO::CSQLite3Engine& database, int version) const;

    const DBCheckImplHelperParams& m_params;
    const std::string& m_name;
    const std::string& m_key;
    const std::string m_path; // UTF-8
};

} // namespace DatabaseUpdate
