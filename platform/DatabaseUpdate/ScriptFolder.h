#pragma once

#include <optional>
#include <string>
#include <vector>

namespace DatabaseUpdate {

/// One step of a database's schema: the text that leads from version - 1 to version.
struct Script
{
    int version = 0;
    std::string file; ///< the name without folder
    std::string text;
};

/// The scripts of one database in order, numbered from 1 without a gap. The folder holds one file a step,
/// "NNNN_name.sql" with four digits; other files in it are not looked at, except that one ending in ".sql"
/// must have that form. A script is at most 1 MiB.
///
/// Nothing, with the reason in message, when a number is missing or there twice, or a file cannot be read.
/// folder is in the local code page and ends in "/".
std::optional<std::vector<Script>> ReadScripts(const std::string& folder, std::string& message);

} // namespace DatabaseUpdate
