#include "simulator/device/StateFolder.h"

#include "Base/FileUtil.h"
#include "Base/StringUtil.h"
#include "simulator/protocol/Digest.h"

#include <cstdio>
#include <filesystem>

namespace simulator {

namespace {

namespace fs = std::filesystem;

/// A file: this, the SHA-256 of the rest in hexadecimal digits, a line feed, the octets.
constexpr const char* kMark = "vantor-device-state 1 ";
constexpr std::size_t kDigestLength = 64;

/// An empty file: one that can be written is the only proof that others can be.
constexpr const char* kProof = "writable";

std::string FileName(const ParameterKey& key)
{
    return Base::StringUtil::Format("%u-%u.state", key.command, key.channel);
}

std::optional<ParameterKey> KeyOf(const std::string& name)
{
    ParameterKey key;
    if (std::sscanf(name.c_str(), "%u-%u.state", &key.command, &key.channel) != 2 || FileName(key) != name)
        return std::nullopt;
    return key;
}

std::optional<std::string> Unpack(const std::string& content)
{
    const std::size_t head = std::string(kMark).size() + kDigestLength + 1;
    if (content.size() < head || content.compare(0, head - kDigestLength - 1, kMark) != 0)
        return std::nullopt;
    std::string octets = content.substr(head);
    if (content.compare(head - kDigestLength - 1, kDigestLength, Sha256Hex(octets)) != 0)
        return std::nullopt;
    return octets;
}

} // namespace

CStateFolder::CStateFolder(std::string folder, Complain complain)
    : m_folder(std::move(folder)), m_complain(std::move(complain))
{}

bool CStateFolder::Open(const Reader& reader, std::string& error)
{
    if (m_folder.empty())
        return true;
    if (!Base::FileUtil::MakeDirs(m_folder) || !BringToDisk()) {
        error = "state folder " + m_folder + " cannot be used";
        return false;
    }
    std::error_code failure;
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(m_folder, failure))
        names.push_back(entry.path().filename().string());
    for (const std::string& name : names)
        ReadFile(name, reader);
    return true;
}

void CStateFolder::ReadFile(const std::string& name, const Reader& reader)
{
    const auto key = KeyOf(name);
    if (!key)
        return;
    std::string content;
    auto octets = Base::FileUtil::ReadFile(m_folder + name, content) ? Unpack(content) : std::nullopt;
    if (octets)
        return reader(*key, std::make_shared<const std::string>(std::move(*octets)));
    std::error_code ignored;
    fs::rename(m_folder + name, m_folder + name + ".damaged", ignored);
    m_complain("state file " + m_folder + name + " is damaged and was set aside");
}

bool CStateFolder::Keep(const ParameterKey& key, const std::string& octets)
{
    return m_folder.empty() || Base::FileUtil::WriteFileAtomically(m_folder + FileName(key),
                                                                   kMark + Sha256Hex(octets) + '\n' + octets);
}

bool CStateFolder::Remove(const ParameterKey& key)
{
    std::error_code failure;
    if (!m_folder.empty())
        fs::remove(m_folder + FileName(key), failure);
    return !failure;
}

/// A file that is put in place takes the names of its whole folder along.
bool CStateFolder::BringToDisk()
{
    return m_folder.empty() || Base::FileUtil::WriteFileAtomically(m_folder + kProof, "");
}

} // namespace simulator
