#pragma once

#include <string>

namespace comm_methodlib {

/// Creates the folder and those above it; those that are new get the permission bits of mode. Gives the
/// system's text of what prevents it, or prevents writing in it; empty when it can be used.
std::string MakeWritableFolder(const std::string& folder, int mode);

/// Takes from everything that the process creates from now on the permissions that are not in the two modes.
void LimitNewFiles(int dirMode, int fileMode);

} // namespace comm_methodlib
