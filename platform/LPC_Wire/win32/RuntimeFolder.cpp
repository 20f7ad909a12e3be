#include "LPC_Wire/LocalSocket.h"

#include "Base/FileUtil.h"

#include <cstdlib>

namespace lpc {

/// The local application data belong to the user; what is made in them inherits that.
std::string RuntimeFolder(std::string& why)
{
    const char* local = std::getenv("LOCALAPPDATA");
    if (!local || !*local) {
        why = "LOCALAPPDATA is not set";
        return {};
    }
    const std::string path = std::string(local) + "\\Vantor\\run";
    if (!Base::FileUtil::MakeDirs(path)) {
        why = path + " cannot be made";
        return {};
    }
    return path + "\\";
}

} // namespace lpc
