#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Sqlite3DO {

/// The rows of one query, copied out of the database while the statement ran, so that it holds no lock and
/// may outlive the connection. It stands before its first row: `while (rows.Next()) use(rows.GetString(0));`
///
/// Columns are numbered from 0. A column that does not exist, a NULL, and any column outside a row read as an
/// empty text and 0. An object belongs to one thread at a time.
class CSQLite3Recordset
{
public:
    /// A query whose rows need more memory than this fails with kErrorTooBig.
    static constexpr std::size_t kLimitBytes = std::size_t{256} << 20;

    CSQLite3Recordset() = default;
    ~CSQLite3Recordset() = default;

    /// Goes to the next row; false when there is none.
    bool Next();

    /// The text, or a number written as one.
    std::string GetString(int column) const;

    /// The number, a real one cut to an integer, or the number that a text begins with; kept within the range
    /// of int.
    int GetInt(int column) const;

    /// Seconds since 1970: those of a date-time text in the form of Base::TimeUtil, or a number as it is. 0
    /// for any other text.
    std::int64_t GetDateTime(int column) const;

    std::size_t RowCount() const { return m_rows; }

    /// Whether the query failed because its rows need more than kLimitBytes.
    bool TooLarge() const { return m_tooLarge; }

private:
    friend class CSQLite3Engine;

    enum class Kind : std::uint8_t { Null, Integer, Real, Text };

    struct Span
    {
        std::uint32_t offset;
        std::uint32_t size;
    };

    struct Cell
    {
        Kind kind = Kind::Null;
        union {
            std::int64_t integer = 0;
            double real;
            Span text;
        };
    };

    void Reset();
    [[noreturn]] void FailTooLarge();
    void AddInteger(std::int64_t value);
    void AddReal(double value);
    void AddText(const char* text, std::size_t size);
    void AddNull() { m_cells.emplace_back(); }
    void EndRow(std::size_t columns);

    const Cell* At(int column) const;
    std::string_view ViewOf(const Cell& cell) const; ///< of a text
    std::string TextOf(const Cell& cell) const;
    std::int64_t NumberOf(const Cell& cell) const;

    std::vector<Cell> m_cells;
    std::string m_text;
    std::size_t m_columns = 0;
    std::size_t m_rows = 0;
    std::size_t m_position = 0;
    bool m_tooLarge = false;
};

} // namespace Sqlite3DO
