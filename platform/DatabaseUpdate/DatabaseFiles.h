#pragma once

#include <string>

namespace DatabaseUpdate {

/// Base::FileUtil::PutInPlace for paths in UTF-8.
bool ReplaceDatabaseFile(const std::string& from, const std::string& to);

/// Removes the journals and logs beside a database file, as far as they exist: before another file takes its
/// place, to which the engine would apply them. The file must be closed.
void RemoveJournals(const std::string& path);

/// Removes a database file that was never put in place, with its journals, as far as they exist.
void RemoveDatabaseFile(const std::string& path);

} // namespace DatabaseUpdate
