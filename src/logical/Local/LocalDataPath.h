#pragma once

#include "Base/Noncopyable.h"
#include "VideoInterfaces/ILocalDataPath.h"

#include <mutex>
#include <string>

namespace video {

/// The save folders, kept in a small JSON file that is written only when they change: setting defaults that
/// hold already keeps following the defaults.
///
/// A file that cannot be read has its line in the log, and the defaults hold. It stays where it is until
/// folders are set; then it is put aside as "<file>.damaged".
class CLocalDataPath : public vantor::ILocalDataPath, Base::CNoncopyable
{
public:
    /// Reads the file. file: its path in the local code page; its folder must exist when folders are set.
    CLocalDataPath(std::string file, vantor::SaveFolders defaults);

    vantor::SaveFolders Folders() const override;
    void SetFolders(const vantor::SaveFolders& folders) override;

private:
    void Load();

    const std::string m_file;
    std::mutex m_writing;   ///< guards the file and the two below
    bool m_damaged = false; ///< what lies there is none of ours
    bool m_unsaved = false; ///< the folders could not be written
    vantor::SaveFolders m_folders;
    mutable std::mutex m_mutex; ///< guards m_folders; never held while writing
};

} // namespace video
