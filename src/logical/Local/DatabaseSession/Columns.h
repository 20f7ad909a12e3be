#pragma once

#include "Base/TimeUtil.h"
#include "Sqlite3DO/SQLite3Recordset.h"
#include "Sqlite3DO/Statement.h"

#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>
#include <utility>

/// The columns of a table, in the table's order, and the members of the record that hold their values. A
/// session has one list of them, from which reading a row and the arguments of its statements follow:
///
///     constexpr auto kColumns = std::make_tuple(ColumnOf("ID", &Record::ID),
///                                               ColumnOf("Size", &Record::Size));
///
/// Texts are stored as they are, flags as 0 or 1, 64-bit times as date-time texts (Base/TimeUtil.h).
namespace video {

template<typename T, typename M>
struct Column
{
    const char* name;
    M T::*member;
};

template<typename T, typename M>
constexpr Column<T, M> ColumnOf(const char* name, M T::*member)
{
    return {name, member};
}

inline void ReadColumn(const Sqlite3DO::CSQLite3Recordset& rows, int column, std::string& value)
{
    value = rows.GetString(column);
}
inline void ReadColumn(const Sqlite3DO::CSQLite3Recordset& rows, int column, std::int32_t& value)
{
    value = rows.GetInt(column);
}
inline void ReadColumn(const Sqlite3DO::CSQLite3Recordset& rows, int column, bool& value)
{
    value = rows.GetInt(column) != 0;
}
inline void ReadColumn(const Sqlite3DO::CSQLite3Recordset& rows, int column, std::int64_t& seconds)
{
    seconds = rows.GetDateTime(column);
}

/// Fills the record from the row that rows stands at; its columns have the order of the list.
template<typename T, typename... Columns>
void ReadRow(const Sqlite3DO::CSQLite3Recordset& rows, const std::tuple<Columns...>& columns, T& record)
{
    int index = 0;
    std::apply([&](const auto&... column) { (ReadColumn(rows, index++, record.*column.member), ...); },
               columns);
}

/// What stands for the member in a statement: between quotes for a text, else a number.
inline std::string StatementValue(const std::string& value)
{
    return Sqlite3DO::Quoted(value);
}
inline std::string StatementValue(std::int64_t seconds)
{
    return Base::TimeUtil::TimeT2StrDatetime(seconds);
}
inline int StatementValue(std::int32_t value)
{
    return value;
}
inline int StatementValue(bool value)
{
    return value ? 1 : 0;
}

namespace details {

inline const char* Argument(const std::string& value)
{
    return value.c_str();
}
inline int Argument(int value)
{
    return value;
}

/// The format is one of a session's own fixed texts, but the compiler cannot follow it to here.
template<std::size_t Size>
std::string FormatFixed(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    std::string statement = Sqlite3DO::FormatStatementV(Size, format, arguments);
    va_end(arguments);
    return statement;
}

} // namespace details

/// FormatStatement with the record's values as arguments, in the order of the list: "'%s'" for texts and
/// times, "%d" for the others.
template<std::size_t Size, typename T, typename... Columns>
std::string FormatRow(const char* format, const T& record, const std::tuple<Columns...>& columns)
{
    return std::apply(
        [&](const auto&... column) {
            return details::FormatFixed<Size>(format,
                                              details::Argument(StatementValue(record.*column.member))...);
        },
        columns);
}

} // namespace video
