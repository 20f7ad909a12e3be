#include "LPC_Wire/SocketName.h"

#include "LPC_Wire/LocalSocket.h"

#include "Base/Encrypt.h"
#include "Base/FileUtil.h"

#include <openssl/evp.h>

namespace lpc {

std::string SocketFileName(const std::string& channelName, const std::string& dataRoot)
{
    constexpr std::size_t kNameBytes = 8;
    const std::string text = channelName + "\n" + dataRoot;
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_Digest(text.data(), text.size(), digest, &length, EVP_sha256(), nullptr);
    return Base::Encrypt::ToHex(std::string(reinterpret_cast<const char*>(digest), kNameBytes));
}

std::string SocketPath(const std::string& channelName, std::string& why)
{
    const std::string folder = RuntimeFolder(why);
    if (folder.empty())
        return {};
    const std::string path = folder + SocketFileName(channelName, Base::FileUtil::UserDataRoot());
    if (path.size() <= MaxSocketPath())
        return path;
    why = path + " is longer than the " + std::to_string(MaxSocketPath()) + " bytes of a socket's address";
    return {};
}

} // namespace lpc
