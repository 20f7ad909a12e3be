#include "logical/Local/LocalDataPath.h"

#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "Protocol/JSONStruct/JSONMessage.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"

#include <filesystem>
#include <optional>

namespace video {
namespace {

using vantor::SaveFolders;

/// What the file holds.
struct SaveFoldersFile : protocol::CMessage<SaveFoldersFile, protocol::IJSONStruct>
{
    static constexpr const char* kKey = "saveFolders";
    std::string video;
    std::string capture;

    static constexpr auto Fields()
    {
        return std::make_tuple(protocol::Must("video", &SaveFoldersFile::video),
                               protocol::Must("capture", &SaveFoldersFile::capture));
    }
};

bool Differ(const SaveFolders& left, const SaveFolders& right)
{
    return left.video != right.video || left.capture != right.capture;
}

std::optional<SaveFolders> ReadFolders(const std::string& path, std::string& reason)
{
    reason = "no access";
    std::string text;
    if (!Base::FileUtil::ReadFile(path, text))
        return std::nullopt;
    const protocol::json::Tree root = protocol::json::ParseText(text, reason);
    if (!root)
        return std::nullopt;
    const cJSON* const item = protocol::json::Member(root.get(), SaveFoldersFile::kKey);
    SaveFoldersFile content;
    protocol::json::ReadError error;
    if (item && protocol::json::Kind<SaveFoldersFile>::Read(item, content, error))
        return SaveFolders{content.video, content.capture};
    reason = item ? error.path + " " + error.reason : std::string("no ") + SaveFoldersFile::kKey;
    return std::nullopt;
}

} // namespace

CLocalDataPath::CLocalDataPath(std::string file, SaveFolders defaults)
    : m_file(std::move(file)), m_folders(std::move(defaults))
{
    std::error_code error;
    if (std::filesystem::exists(m_file, error))
        Load();
}

void CLocalDataPath::Load()
{
    std::string reason;
    const std::optional<SaveFolders> kept = ReadFolders(m_file, reason);
    m_damaged = !kept;
    if (kept)
        m_folders = *kept;
    else
        BASE_ERROR("The save folders cannot be read, the defaults hold. [file=%s, reason=%s]", m_file.c_str(),
                   reason.c_str());
}

SaveFolders CLocalDataPath::Folders() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_folders;
}

void CLocalDataPath::SetFolders(const SaveFolders& folders)
{
    const std::lock_guard<std::mutex> writing(m_writing);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_unsaved && !Differ(m_folders, folders))
            return;
        m_folders = folders;
    }
    if (m_damaged)
        m_damaged = !Base::FileUtil::PutInPlace(m_file, m_file + ".damaged");
    SaveFoldersFile content;
    content.video = folders.video;
    content.capture = folders.capture;
    m_unsaved = m_damaged || !Base::FileUtil::WriteFileAtomically(m_file, protocol::WriteJSONStr(content));
    if (m_unsaved)
        BASE_ERROR("The save folders cannot be written, they hold until the end. [file=%s]", m_file.c_str());
}

} // namespace video
