#pragma once

#include "Base/PrintfFormat.h"

#include <cstdarg>
#include <cstddef>
#include <string>
#include <string_view>

/// How statement texts are formed: values are placed by one bounded formatter, text values after Quoted.
///
///     conn.Execute(FormatStatement<500>("DELETE FROM VideoFile WHERE ID = '%s'", Quoted(id).c_str()))
namespace Sqlite3DO {

/// The text with every "'" doubled, to stand between two "'". A zero byte, which no statement can hold,
/// becomes U+FFFD.
std::string Quoted(std::string_view text);

/// FormatStatement with the size as an argument.
std::string FormatStatementV(std::size_t size, const char* format, std::va_list arguments)
    BASE_PRINTF_FORMAT(2, 0);

/// printf into a buffer of Size bytes, the closing zero byte included. A statement that does not fit gives
/// one error line and an empty text, whose execution fails as that of any bad statement does: one cut short
/// is never executed.
template<std::size_t Size>
std::string FormatStatement(const char* format, ...) BASE_PRINTF_FORMAT(1, 2);

template<std::size_t Size>
std::string FormatStatement(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    std::string statement = FormatStatementV(Size, format, arguments);
    va_end(arguments);
    return statement;
}

} // namespace Sqlite3DO
