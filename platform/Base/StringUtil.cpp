#include "Base/StringUtil.h"

#include <cstdarg>
#include <cstdio>

namespace Base::StringUtil {

std::string StringReplace(std::string_view text, std::string_view from, std::string_view to)
{
    if (from.empty())
        return std::string(text);
    std::string result;
    std::size_t done = 0;
    for (std::size_t at = text.find(from); at != std::string_view::npos; at = text.find(from, done)) {
        result.append(text, done, at - done).append(to);
        done = at + from.size();
    }
    return result.append(text, done, std::string_view::npos);
}

std::vector<std::string> Split(std::string_view text, char separator)
{
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (std::size_t end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator, begin)) {
        parts.emplace_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    parts.emplace_back(text.substr(begin));
    return parts;
}

std::string CutUtf8(std::string_view text, std::size_t limit)
{
    if (text.size() <= limit)
        return std::string(text);
    std::size_t end = limit;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return std::string(text.substr(0, end));
}

std::string Format(const char* format, ...)
{
    std::va_list arguments;
    std::va_list again;
    va_start(arguments, format);
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    std::string text(length > 0 ? static_cast<std::size_t>(length) + 1 : 1, '\0');
    std::vsnprintf(text.data(), text.size(), format, again);
    va_end(again);
    text.pop_back();
    return text;
}

} // namespace Base::StringUtil
