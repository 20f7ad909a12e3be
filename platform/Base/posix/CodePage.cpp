#include "Base/StringUtil.h"

#include <iconv.h>
#include <langinfo.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace Base {

namespace {

/// One iconv conversion; a byte that does not convert becomes "?".
std::string Convert(const std::string& text, const char* to, const char* from)
{
    const iconv_t converter = ::iconv_open(to, from);
    if (converter == reinterpret_cast<iconv_t>(-1))
        return text;
    std::string result;
    char* in = const_cast<char*>(text.data());
    std::size_t inLeft = text.size();
    std::array<char, 1024> buffer;
    while (inLeft > 0) {
        char* out = buffer.data();
        std::size_t outLeft = buffer.size();
        const std::size_t done = ::iconv(converter, &in, &inLeft, &out, &outLeft);
        const int error = done == static_cast<std::size_t>(-1) ? errno : 0;
        result.append(buffer.data(), buffer.size() - outLeft);
        if (error == EILSEQ || error == EINVAL) {
            result += '?';
            ++in;
            --inLeft;
        }
    }
    ::iconv_close(converter);
    return result;
}

/// The character set of the locale; "C" and "POSIX" are taken as UTF-8, which file names there are in
/// practice.
std::string LocalCodePage()
{
    const char* name = ::nl_langinfo(CODESET);
    if (!name || !*name || std::strcmp(name, "ANSI_X3.4-1968") == 0)
        return "UTF-8";
    return name;
}

} // namespace

std::string LocalToUTF8(const std::string& text)
{
    return Convert(text, "UTF-8", LocalCodePage().c_str());
}

std::string UTF8ToLocal(const std::string& text)
{
    return Convert(text, LocalCodePage().c_str(), "UTF-8");
}

} // namespace Base
