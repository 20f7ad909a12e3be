#include "Base/StringUtil.h"

#include <windows.h>

namespace Base {

namespace {

std::string Convert(const std::string& text, UINT to, UINT from)
{
    const int length = static_cast<int>(text.size());
    std::wstring wide(
        static_cast<std::size_t>(::MultiByteToWideChar(from, 0, text.data(), length, nullptr, 0)), L'\0');
    ::MultiByteToWideChar(from, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()));
    const int wideLength = static_cast<int>(wide.size());
    std::string result(static_cast<std::size_t>(::WideCharToMultiByte(to, 0, wide.data(), wideLength, nullptr,
                                                                      0, nullptr, nullptr)),
                       '\0');
    ::WideCharToMultiByte(to, 0, wide.data(), wideLength, result.data(), static_cast<int>(result.size()),
                          nullptr, nullptr);
    return result;
}

} // namespace

std::string LocalToUTF8(const std::string& text)
{
    return Convert(text, CP_UTF8, CP_ACP);
}

std::string UTF8ToLocal(const std::string& text)
{
    return Convert(text, CP_ACP, CP_UTF8);
}

} // namespace Base
