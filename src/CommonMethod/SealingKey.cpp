#include "CommonMethod/SealingKey.h"

#include "Base/FileUtil.h"
#include "Base/GuidUtil.h"
#include "Base/Log.h"
#include "Base/StringUtil.h"
#include "Keyring/Keyring.h"

#include <algorithm>
#include <filesystem>

namespace comm_method {
namespace {

namespace fs = std::filesystem;
namespace Encrypt = Base::Encrypt;

constexpr std::size_t kKeyDigits = 2 * Encrypt::kKeyBytes;
constexpr char kSealLabel[] = "Vantor.DESetup.1";

/// The key of the digits, which are wiped.
std::optional<SealingKey> Taken(std::string& text, const std::string& entry)
{
    auto params = Encrypt::ParamsOf(text, kSealLabel);
    Encrypt::Wipe(text);
    return params ? std::optional<SealingKey>({*params, entry}) : std::nullopt;
}

std::string NameAside(const std::string& file)
{
    std::error_code ignored;
    std::string name = file + ".damaged";
    for (int number = 2; fs::exists(name, ignored); ++number)
        name = file + ".damaged." + std::to_string(number);
    return name;
}

} // namespace

void PutAside(const std::string& file)
{
    std::error_code error;
    fs::rename(file, NameAside(file), error);
    if (error && error != std::errc::no_such_file_or_directory)
        BASE_WARN("Failed to put the file [%s] aside, [%s].", file.c_str(), error.message().c_str());
}

void DeleteFile(const std::string& file)
{
    std::error_code error;
    if (fs::remove(file, error))
        BASE_INFO("Deleted file.[file=%s]", file.c_str());
    else if (error)
        BASE_WARN("Failed to delete the file [%s], [%s].", file.c_str(), error.message().c_str());
}

CSealingKeys::CSealingKeys(const std::string& setupFile)
    : m_setupFile(setupFile), m_file(fs::path(setupFile).replace_extension(".key").string())
{}

bool CSealingKeys::HasFile() const
{
    std::error_code error;
    return fs::status(m_file, error).type() != fs::file_type::not_found;
}

std::optional<SealingKey> CSealingKeys::Read(const std::string& entry) const
{
    auto text = entry.empty() ? ReadFile() : LoadEntry(entry);
    return text ? Taken(*text, entry) : std::nullopt;
}

std::optional<std::string> CSealingKeys::LoadEntry(const std::string& entry) const
{
    std::string why;
    auto text = keyring::Load(entry, why);
    if (!text)
        BASE_ERROR("The sealing key of [%s] cannot be had from the keyring, [%s].", m_setupFile.c_str(),
                   why.c_str());
    return text;
}

std::optional<std::string> CSealingKeys::ReadFile() const
{
    using Base::FileUtil::Exposure;
    switch (Base::FileUtil::KeepPrivate(m_file)) {
    case Exposure::Foreign:
        BASE_ERROR("The file [%s] belongs to another user and is not used.", m_file.c_str());
        return std::nullopt;
    case Exposure::Ended:
        BASE_WARN("Other users had access to the file [%s]; they have no more.", m_file.c_str());
        break;
    case Exposure::Remains:
        BASE_WARN("Other users have access to the file [%s].", m_file.c_str());
        break;
    case Exposure::None:
        break;
    }
    std::string text;
    return Base::FileUtil::ReadFile(m_file, text, kKeyDigits) ? std::optional<std::string>(text)
                                                              : std::nullopt;
}

std::optional<SealingKey> CSealingKeys::Make() const
{
    std::string text = Encrypt::RandomKeyText();
    const std::string entry = keyring::IsOffered() ? Base::GuidUtil::CreateGuid() : std::string();
    if (!entry.empty() && StoreEntry(entry, text))
        return Taken(text, entry);
    if (HasFile())
        PutAside(m_file);
    const bool written = Base::FileUtil::WriteFileAtomically(m_file, text);
    auto key = Taken(text, {});
    return written ? key : std::nullopt;
}

// Each setup has an entry of a name of its own, so that data roots never meet, also when one is copied or
// moved to where another was.
bool CSealingKeys::StoreEntry(const std::string& entry, const std::string& text) const
{
    std::string why;
    bool stored = keyring::Store(entry, "Vantor: " + Base::LocalToUTF8(m_setupFile), text, why);
    if (stored) {
        auto kept = keyring::Load(entry, why);
        stored = kept == text;
        if (kept)
            Encrypt::Wipe(*kept);
    }
    if (!stored)
        BASE_INFO("The sealing key of [%s] goes into a file, not into the keyring, [%s].",
                  m_setupFile.c_str(), why.c_str());
    return stored;
}

void CSealingKeys::Remove(const std::string& entry) const
{
    if (entry.empty())
        return DeleteFile(m_file);
    std::string why;
    if (keyring::Remove(entry, why))
        BASE_INFO("Deleted the sealing key of [%s] from the keyring.", m_setupFile.c_str());
    else
        BASE_WARN("Failed to delete the sealing key of [%s] from the keyring, [%s].", m_setupFile.c_str(),
                  why.c_str());
}

} // namespace comm_method
