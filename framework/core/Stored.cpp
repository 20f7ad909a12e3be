#include "framework/core/Stored.h"

#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "Base/StringUtil.h"

#include <filesystem>

namespace framework::stored {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kFileLimit = 64 * 1024 * 1024;

bool Exists(const std::string& path)
{
    std::error_code error;
    return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

std::string FreeName(const std::string& path)
{
    std::string name = path + ".damaged";
    for (int number = 2; Exists(name); ++number)
        name = path + ".damaged." + std::to_string(number);
    return name;
}

} // namespace

Content Read(const std::string& path)
{
    Content content;
    std::string text;
    if (!Exists(path))
        return content;
    if (!Base::FileUtil::ReadFile(path, text, kFileLimit)) {
        content.problem = "it cannot be read, or is larger than 64 MiB";
        return content;
    }
    content.tree = protocol::json::ParseText(text, content.problem);
    return content;
}

std::string SetAside(const std::string& path, const std::string& problem)
{
    const std::string name = FreeName(path);
    std::error_code error;
    fs::rename(path, name, error);
    const std::string outcome =
        error ? "cannot be set aside (" + error.message() + ")" : "was set aside as [" + name + "]";
    const std::string sentence = Base::StringUtil::Format("The file [%s] is damaged (%s) and %s.",
                                                          path.c_str(), problem.c_str(), outcome.c_str());
    BASE_ERROR("%s", sentence.c_str());
    return sentence;
}

bool Write(const std::string& path, const protocol::json::Tree& tree)
{
    if (Base::FileUtil::WriteFileAtomically(path, protocol::json::PrintText(tree.get())))
        return true;
    BASE_ERROR("Failed to write the file [%s].", path.c_str());
    return false;
}

} // namespace framework::stored
