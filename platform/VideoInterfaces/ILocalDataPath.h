#pragma once

#include <string>

namespace vantor {

/// Where clips and pictures are saved; UTF-8.
struct SaveFolders
{
    std::string video;
    std::string capture;
};

/// Knows the save folders of this computer for whoever writes or looks for files there. They survive a
/// restart. Any thread.
class ILocalDataPath
{
public:
    virtual ~ILocalDataPath() = default;

    /// The folders last set, also by an earlier run; the defaults before.
    virtual SaveFolders Folders() const = 0;

    /// Keeps both folders on disk before it returns. A failure has its line in the log; the folders then hold
    /// until the process ends.
    virtual void SetFolders(const SaveFolders& folders) = 0;
};

} // namespace vantor
