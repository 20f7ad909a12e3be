#pragma once

#include <string>

namespace DatabaseUpdate {

/// Turns a plain database file into one encrypted with the key. The original is read, never written, until an
/// encrypted copy beside it has proven to hold the same, and is then replaced in one step. Throws
/// Sqlite3DO::CSQLite3Exception when the file is damaged or in use; the original then stays. path in UTF-8.
void EncryptFile(const std::string& path, const std::string& key);

} // namespace DatabaseUpdate
