#pragma once

#include <string>

namespace lpc {

/// Where the server of that channel name listens for the programs of this user's data root: the runtime
/// folder and 16 hexadecimal digits of the SHA-256 over the channel name, a line feed and the data root.
/// Empty, with the reason in why, when there is no runtime folder or the path does not fit a socket's
/// address.
std::string SocketPath(const std::string& channelName, std::string& why);

/// The 16 digits.
std::string SocketFileName(const std::string& channelName, const std::string& dataRoot);

} // namespace lpc
