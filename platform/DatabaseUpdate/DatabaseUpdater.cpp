#include "DatabaseUpdate/DatabaseUpdater.h"

#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "Base/StringUtil.h"
#include "DatabaseUpdate/DatabaseFiles.h"
#include "DatabaseUpdate/EncryptFile.h"

#include <climits>
#include <filesystem>
#include <stdexcept>

namespace DatabaseUpdate {
namespace {

namespace fs = std::filesystem;
using Sqlite3DO::CSQLite3Engine;

constexpr char kCopySuffix[] = ".backup-";

[[noreturn]] void Refuse(const std::string& reason)
{
    throw std::runtime_error(reason);
}

void RunScript(CSQLite3Engine& database, const Script& script)
{
    database.Run("BEGIN IMMEDIATE");
    try {
        // Another process may have come first.
        if (database.QueryInt("PRAGMA user_version") < script.version) {
            database.RunScript(script.text);
            database.Run("PRAGMA user_version = " + std::to_string(script.version));
        }
        database.Run("COMMIT");
    } catch (const std::exception& error) {
        database.Rollback();
        Refuse("script " + script.file + " failed, " + error.what());
    }
}

} // namespace

CDatabaseUpdater::CDatabaseUpdater(const DBCheckImplHelperParams& params, const std::string& name,
                                   const std::string& key)
    : m_params(params), m_name(name), m_key(key), m_path(Base::LocalToUTF8(params.dataPath + name))
{}

void CDatabaseUpdater::Run()
{
    if (m_name.empty() || m_name.find_first_of("/\\") != std::string::npos || m_name.front() == '.')
        Refuse("it is no name of a database");
    if (!fs::is_directory(m_params.scriptPath))
        Refuse("there is no folder " + m_params.scriptPath);
    if (HasScripts() && !HasContent())
        TakeDelivered();
    if (HasContent())
        MatchEncryption();
    if (!HasScripts()) {
        ReadVersion(INT_MAX);
        return;
    }
    std::string message;
    const auto scripts = ReadScripts(m_params.scriptPath + m_name + "/", message);
    if (!scripts)
        Refuse(message);
    const int version = ReadVersion(scripts->back().version);
    if (version < scripts->back().version)
        Migrate(*scripts, version);
}

bool CDatabaseUpdater::HasScripts() const
{
    return fs::is_directory(m_params.scriptPath + m_name);
}

bool CDatabaseUpdater::HasContent() const
{
    std::error_code error;
    const auto size = fs::file_size(fs::u8path(m_path), error);
    return !error && size > 0;
}

void CDatabaseUpdater::TakeDelivered() const
{
    std::string content;
    const std::string delivered = m_params.installPath + m_name;
    if (m_params.installPath.empty() || !fs::is_regular_file(delivered))
        return;
    RemoveJournals(m_path);
    if (!Base::FileUtil::ReadFile(delivered, content) ||
        !Base::FileUtil::WriteFileAtomically(m_params.dataPath + m_name, content))
        Refuse("the delivered database cannot be copied");
}

void CDatabaseUpdater::MatchEncryption() const
{
    const bool plain = Sqlite3DO::IsPlainDatabase(m_path);
    if (m_key.empty()) {
        if (!plain)
            Refuse("the file is encrypted or damaged, and there is no key");
        return;
    }
    if (plain) {
        EncryptFile(m_path, m_key);
        BASE_INFO("Database [%s] is encrypted from here on.", m_name.c_str());
    }
    EncryptCopies();
}

// The copies hold what the database holds. One that cannot be converted must not keep the program from
// starting.
void CDatabaseUpdater::EncryptCopies() const
{
    const fs::path database = fs::u8path(m_path);
    const std::string prefix = database.filename().u8string() + kCopySuffix;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(database.parent_path(), error)) {
        const std::string path = entry.path().u8string();
        if (entry.path().filename().u8string().rfind(prefix, 0) != 0 || !Sqlite3DO::IsPlainDatabase(path))
            continue;
        try {
            EncryptFile(path, m_key);
        } catch (const std::exception& failure) {
            BASE_WARN("Failed to encrypt the copy [%s], [%s].", path.c_str(), failure.what());
        }
    }
}

/// The version of the file as it is; 0 when there is none.
int CDatabaseUpdater::ReadVersion(int newest) const
{
    if (!HasContent())
        return 0;
    CSQLite3Engine database(m_path, CSQLite3Engine::Mode::Inspect, m_key);
    const int version = database.QueryInt("PRAGMA user_version");
    if (version < 0)
        Refuse("its version " + std::to_string(version) + " is none of this program");
    if (version > newest)
        Refuse("its version " + std::to_string(version) + " is newer than this program's " +
               std::to_string(newest));
    return version;
}

void CDatabaseUpdater::Migrate(const std::vector<Script>& scripts, int version) const
{
    CSQLite3Engine database(m_path, CSQLite3Engine::Mode::Create, m_key);
    if (database.QueryInt("SELECT count(*) FROM sqlite_master") > 0)
        KeepCopy(database, version);
    for (const Script& script : scripts) {
        if (script.version > version)
            RunScript(database, script);
    }
    BASE_INFO("Database [%s] went from version [%d] to [%d].", m_name.c_str(), version,
              scripts.back().version);
}

void CDatabaseUpdater::KeepCopy(CSQLite3Engine& database, int version) const
{
    const std::string copy = m_path + kCopySuffix + std::to_string(version);
    const std::string unfinished = copy + ".writing";
    database.RequireSound();
    RemoveDatabaseFile(unfinished);
    try {
        database.CopyTo(unfinished, m_key);
        CSQLite3Engine(unfinished, CSQLite3Engine::Mode::Inspect, m_key).RequireSound();
        RemoveJournals(copy);
        if (!ReplaceDatabaseFile(unfinished, copy))
            Refuse("no copy can be kept at " + copy);
    } catch (...) {
        RemoveDatabaseFile(unfinished);
        throw;
    }
}

} // namespace DatabaseUpdate
