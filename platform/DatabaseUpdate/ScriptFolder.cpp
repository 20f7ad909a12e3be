#include "DatabaseUpdate/ScriptFolder.h"

#include "Base/FileUtil.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace DatabaseUpdate {
namespace {

constexpr std::size_t kDigits = 4;
constexpr std::size_t kScriptLimit = 1024 * 1024;

/// The number of "NNNN_name.sql"; 0 for another name.
int NumberOf(const std::string& file)
{
    if (file.size() <= kDigits || file[kDigits] != '_')
        return 0;
    const bool digits = std::all_of(file.begin(), file.begin() + kDigits,
                                    [](unsigned char c) { return std::isdigit(c) != 0; });
    return digits ? std::stoi(file.substr(0, kDigits)) : 0;
}

std::vector<std::string> SqlFiles(const std::string& folder, std::error_code& error)
{
    std::vector<std::string> files;
    std::filesystem::directory_iterator entry(folder, error);
    for (const std::filesystem::directory_iterator end; !error && entry != end; entry.increment(error)) {
        if (entry->path().extension() == ".sql")
            files.push_back(entry->path().filename().string());
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

std::optional<std::vector<Script>> ReadScripts(const std::string& folder, std::string& message)
{
    std::error_code error;
    std::vector<Script> scripts;
    for (const std::string& file : SqlFiles(folder, error)) {
        Script script{static_cast<int>(scripts.size()) + 1, file, {}};
        if (NumberOf(file) != script.version) {
            message = "script " + file + " is not number " + std::to_string(script.version);
            return std::nullopt;
        }
        if (!Base::FileUtil::ReadFile(folder + file, script.text, kScriptLimit)) {
            message = "script " + file + " cannot be read";
            return std::nullopt;
        }
        scripts.push_back(std::move(script));
    }
    if (error || scripts.empty()) {
        message = "no script can be found in " + folder;
        return std::nullopt;
    }
    return scripts;
}

} // namespace DatabaseUpdate
