#pragma once

#include "Sqlite3DO/SQLite3Engine.h"
#include "support/TestDataRoot.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

/// Small builders and looks at the disk that the tests of the store share.
namespace store {

const std::string kKey(64, 'a');
const std::string kOtherKey(64, 'b');

inline std::string ReadAll(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

inline void WriteAll(const std::string& path, const std::string& content)
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

inline bool Exists(const std::string& path)
{
    return std::filesystem::exists(path);
}

/// The names in a folder, sorted.
inline std::vector<std::string> NamesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// Makes a database, or goes on with one, by a script. Closed when it returns.
inline void Write(const std::string& path, const std::string& key, const std::string& script,
                  int version = -1)
{
    Sqlite3DO::CSQLite3Engine database(path, Sqlite3DO::CSQLite3Engine::Mode::Create, key);
    database.RunScript(script);
    if (version >= 0)
        database.Run("PRAGMA user_version = " + std::to_string(version));
}

/// The write-ahead log that a program would leave which crashed after running a statement in the file; the
/// file itself is then closed in order.
inline std::string CrashLog(const std::string& path, const std::string& key, const std::string& sql)
{
    Sqlite3DO::CSQLite3Engine crashed(path, Sqlite3DO::CSQLite3Engine::Mode::Existing, key);
    crashed.Run(sql);
    return ReadAll(path + "-wal");
}

/// The first column of every row, joined by blanks.
inline std::string Query(const std::string& path, const std::string& key, const std::string& sql)
{
    Sqlite3DO::CSQLite3Engine database(path, Sqlite3DO::CSQLite3Engine::Mode::Inspect, key);
    Sqlite3DO::CSQLite3Recordset rows;
    database.Run(sql, &rows);
    std::string text;
    while (rows.Next())
        text += (text.empty() ? "" : " ") + rows.GetString(0);
    return text;
}

/// The code with which a call fails; 0 when it does not.
template<typename Call>
int ErrorOf(Call call)
{
    try {
        call();
    } catch (const Sqlite3DO::CSQLite3Exception& error) {
        return error.Code();
    }
    return 0;
}

} // namespace store
