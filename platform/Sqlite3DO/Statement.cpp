#include "Sqlite3DO/Statement.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"

#include <cstdio>

namespace Sqlite3DO {

std::string Quoted(std::string_view text)
{
    std::string quoted;
    quoted.reserve(text.size() + 8);
    for (const char c : text) {
        if (c == '\0')
            quoted += "\xEF\xBF\xBD";
        else
            quoted.append(c == '\'' ? 2 : 1, c);
    }
    return quoted;
}

std::string FormatStatementV(std::size_t size, const char* format, std::va_list arguments)
{
    std::string buffer(size, '\0');
    const int length = std::vsnprintf(buffer.data(), size, format, arguments);
    if (length < 0 || static_cast<std::size_t>(length) >= size) {
        BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "The statement does not fit, needed: [%d], room: [%zu].",
                     length, size);
        return std::string();
    }
    buffer.resize(static_cast<std::size_t>(length));
    return buffer;
}

} // namespace Sqlite3DO
