#include "device/Password.h"

#include "device/Invocation.h"

#include "Base/FileUtil.h"
#include "Base/StringUtil.h"
#include "TerminalPassword/TerminalPassword.h"

#include <cstdlib>
#include <istream>

namespace devicetool {

std::optional<std::string> FindPassword(const Invocation& invocation, std::istream& in, std::string& error)
{
    if (const std::string file = invocation.Value("--password-file"); !file.empty()) {
        std::string text;
        const bool read =
            file == "-" ? bool(std::getline(in, text)) : Base::FileUtil::ReadFile(file, text, 4096);
        if (read)
            return text.substr(0, text.find_first_of("\r\n"));
        error = "the password cannot be read from " + file;
        return std::nullopt;
    }
    if (const char* password = std::getenv("VANTOR_DEVICE_PASSWORD"))
        return password;
    auto typed = terminal::AskPassword("Password of " + invocation.target->user + " at " +
                                       invocation.target->host + ": ");
    if (typed)
        return Base::LocalToUTF8(*typed);
    error = "no password: give --password-file or VANTOR_DEVICE_PASSWORD";
    return std::nullopt;
}

} // namespace devicetool
