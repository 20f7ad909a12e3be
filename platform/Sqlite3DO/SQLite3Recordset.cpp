#include "Sqlite3DO/SQLite3Recordset.h"

#include "Base/TimeUtil.h"
#include "Sqlite3DO/SQLite3Exception.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace Sqlite3DO {
namespace {

std::int64_t IntegerOf(double value)
{
    constexpr double kBound = 9223372036854775808.0; // 2^63
    if (std::isnan(value))
        return 0;
    if (value >= kBound)
        return std::numeric_limits<std::int64_t>::max();
    if (value < -kBound)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value);
}

std::int64_t LeadingNumber(std::string_view text)
{
    std::int64_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    return text.front() == '-' ? std::numeric_limits<std::int64_t>::min()
                               : std::numeric_limits<std::int64_t>::max();
}

std::string RealAsText(double value)
{
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

} // namespace

bool CSQLite3Recordset::Next()
{
    if (m_position <= m_rows)
        ++m_position;
    return m_position <= m_rows;
}

std::string CSQLite3Recordset::GetString(int column) const
{
    const Cell* cell = At(column);
    return cell ? TextOf(*cell) : std::string();
}

int CSQLite3Recordset::GetInt(int column) const
{
    const Cell* cell = At(column);
    if (!cell)
        return 0;
    const std::int64_t low = std::numeric_limits<int>::min();
    const std::int64_t high = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(NumberOf(*cell), low, high));
}

std::int64_t CSQLite3Recordset::GetDateTime(int column) const
{
    const Cell* cell = At(column);
    if (!cell)
        return 0;
    if (cell->kind == Kind::Text)
        return Base::TimeUtil::StrDatetime2TimeT(ViewOf(*cell)).value_or(0);
    return NumberOf(*cell);
}

const CSQLite3Recordset::Cell* CSQLite3Recordset::At(int column) const
{
    if (m_position == 0 || m_position > m_rows || column < 0 || static_cast<std::size_t>(column) >= m_columns)
        return nullptr;
    return &m_cells[(m_position - 1) * m_columns + static_cast<std::size_t>(column)];
}

std::string_view CSQLite3Recordset::ViewOf(const Cell& cell) const
{
    return {m_text.data() + cell.text.offset, cell.text.size};
}

std::string CSQLite3Recordset::TextOf(const Cell& cell) const
{
    switch (cell.kind) {
    case Kind::Integer:
        return std::to_string(cell.integer);
    case Kind::Real:
        return RealAsText(cell.real);
    case Kind::Text:
        return std::string(ViewOf(cell));
    case Kind::Null:
        break;
    }
    return std::string();
}

std::int64_t CSQLite3Recordset::NumberOf(const Cell& cell) const
{
    switch (cell.kind) {
    case Kind::Integer:
        return cell.integer;
    case Kind::Real:
        return IntegerOf(cell.real);
    case Kind::Text:
        return LeadingNumber(ViewOf(cell));
    case Kind::Null:
        break;
    }
    return 0;
}

void CSQLite3Recordset::Reset()
{
    *this = CSQLite3Recordset();
}

void CSQLite3Recordset::FailTooLarge()
{
    Reset();
    m_tooLarge = true;
    throw CSQLite3Exception(kErrorTooBig, "the rows of the query need too much memory");
}

void CSQLite3Recordset::AddInteger(std::int64_t value)
{
    m_cells.emplace_back();
    m_cells.back().kind = Kind::Integer;
    m_cells.back().integer = value;
}

void CSQLite3Recordset::AddReal(double value)
{
    m_cells.emplace_back();
    m_cells.back().kind = Kind::Real;
    m_cells.back().real = value;
}

void CSQLite3Recordset::AddText(const char* text, std::size_t size)
{
    if (m_text.size() + size > kLimitBytes)
        FailTooLarge();
    m_cells.emplace_back();
    m_cells.back().kind = Kind::Text;
    m_cells.back().text = {static_cast<std::uint32_t>(m_text.size()), static_cast<std::uint32_t>(size)};
    if (size > 0)
        m_text.append(text, size);
}

void CSQLite3Recordset::EndRow(std::size_t columns)
{
    m_columns = columns;
    ++m_rows;
    if (m_cells.size() * sizeof(Cell) + m_text.size() > kLimitBytes)
        FailTooLarge();
}

} // namespace Sqlite3DO
