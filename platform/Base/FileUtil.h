#pragma once

#include <string>

namespace Base::FileUtil {

/// The folder of the running program, in the local code page, ending in "/".
std::string GetCurExeDir();

/// Registers the same folder as UTF-8, for the libraries that want it so. Call once, before other threads
/// start.
void InitCurExeDirUtf8(const std::string& dir);
const std::string& GetCurExeDirUtf8();

/// The root of this user's data, in the local code page, ending in "/": VANTOR_USER_DATA if set, else the
/// platform's usual place ($XDG_DATA_HOME/Vantor, ~/.local/share/Vantor; Windows: the roaming application
/// data). Sockets, shared memory and files of one root never meet those of another. Empty when the platform
/// names no place.
std::string UserDataRoot();

/// The whole of a file of at most limit bytes; false when it cannot be read or is larger.
bool ReadFile(const std::string& path, std::string& content, std::size_t limit = 16 * 1024 * 1024);

/// Writes the file as "<path>.writing" with mode 0600, brings it to the disk and puts it in place in one
/// step, so that a reader finds the old content or the new one. What a killed process left under that name is
/// written over; of several writers each one waits for the others.
bool WriteFileAtomically(const std::string& path, const std::string& content);

/// Puts the file from in the place of the file to in one step that has reached the disk when the call
/// returns; to need not exist. False when the system refuses; both files are then as they were.
bool PutInPlace(const std::string& from, const std::string& to);

/// Creates the folder and those above it, for the user only. True when it exists afterwards.
bool MakeDirs(const std::string& path);

} // namespace Base::FileUtil
