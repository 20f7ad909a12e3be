#include "Sqlite3DO/SQLite3Engine.h"

#include <gtest/gtest.h>

#include <limits>

using Sqlite3DO::CSQLite3Engine;
using Sqlite3DO::CSQLite3Exception;
using Sqlite3DO::CSQLite3Recordset;

namespace {

class Recordset : public testing::Test
{
protected:
    CSQLite3Recordset Query(const std::string& sql)
    {
        CSQLite3Recordset rows;
        m_engine.Run(sql, &rows);
        return rows;
    }

    CSQLite3Engine m_engine{":memory:", CSQLite3Engine::Mode::Create, ""};
};

} // namespace

TEST_F(Recordset, ReadsEveryKindOfColumnInEveryWay)
{
    const std::tuple<const char*, std::string, int, std::int64_t> rows[] = {
        {"NULL", "", 0, 0},
        {"''", "", 0, 0},
        {"x''", "", 0, 0},
        {"42", "42", 42, 42},
        {"-7", "-7", -7, -7},
        {"1099511627776", "1099511627776", std::numeric_limits<int>::max(), 1099511627776},
        {"-1099511627776", "-1099511627776", std::numeric_limits<int>::min(), -1099511627776},
        {"2.75", "2.75", 2, 2},
        {"1e300", "1e+300", std::numeric_limits<int>::max(), std::numeric_limits<std::int64_t>::max()},
        {"'12abc'", "12abc", 12, 0},
        {"'99999999999999999999'", "99999999999999999999", std::numeric_limits<int>::max(), 0},
        {"'-99999999999999999999'", "-99999999999999999999", std::numeric_limits<int>::min(), 0},
        {"'text'", "text", 0, 0},
        {"'1970-01-02 00:00:01'", "1970-01-02 00:00:01", 1970, 86401},
        {"'1970-13-02 00:00:01'", "1970-13-02 00:00:01", 1970, 0},
        {"x'410042'", std::string("A\0B", 3), 0, 0},
    };
    for (const auto& [value, text, number, time] : rows) {
        CSQLite3Recordset result = Query(std::string("SELECT ") + value);
        ASSERT_TRUE(result.Next());
        EXPECT_EQ(result.GetString(0), text) << value;
        EXPECT_EQ(result.GetInt(0), number) << value;
        EXPECT_EQ(result.GetDateTime(0), time) << value;
    }
}

TEST_F(Recordset, GivesEmptyValuesOutsideItsRowsAndColumns)
{
    CSQLite3Recordset rows = Query("SELECT 'a', 5");
    EXPECT_EQ(rows.GetString(0), "") << "before the first row";
    ASSERT_TRUE(rows.Next());
    EXPECT_EQ(rows.GetInt(1), 5);
    for (const int column : {-1, 2, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(rows.GetString(column), "");
        EXPECT_EQ(rows.GetInt(column), 0);
        EXPECT_EQ(rows.GetDateTime(column), 0);
    }
    EXPECT_FALSE(rows.Next());
    EXPECT_FALSE(rows.Next());
    EXPECT_EQ(rows.GetInt(1), 0) << "behind the last row";
}

TEST_F(Recordset, ForgetsTheRowsOfTheQueryBefore)
{
    CSQLite3Recordset rows = Query("SELECT 1 UNION SELECT 2");
    ASSERT_TRUE(rows.Next());
    m_engine.Run("SELECT 3", &rows);
    ASSERT_TRUE(rows.Next());
    EXPECT_EQ(rows.GetInt(0), 3);
    EXPECT_FALSE(rows.Next());
    EXPECT_THROW(m_engine.Run("SELECT nothing", &rows), CSQLite3Exception);
    EXPECT_EQ(rows.RowCount(), 0u);
}

TEST_F(Recordset, IsEmptyAfterAnErrorBetweenTwoRows)
{
    CSQLite3Recordset rows;
    EXPECT_THROW(m_engine.Run("SELECT 1 UNION ALL SELECT abs(-9223372036854775807 - 1)", &rows),
                 CSQLite3Exception);
    EXPECT_EQ(rows.RowCount(), 0u);
}

TEST_F(Recordset, RefusesRowsThatNeedTooMuchMemory)
{
    CSQLite3Recordset rows;
    try {
        m_engine.Run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000) "
                     "SELECT zeroblob(1000000) FROM n",
                     &rows);
        FAIL() << "a gigabyte was read";
    } catch (const CSQLite3Exception& error) {
        EXPECT_EQ(error.Code(), Sqlite3DO::kErrorTooBig);
    }
    EXPECT_EQ(rows.RowCount(), 0u);
    EXPECT_TRUE(rows.TooLarge());
    m_engine.Run("SELECT 1", &rows);
    EXPECT_FALSE(rows.TooLarge());
}

TEST_F(Recordset, RunsExactlyOneStatement)
{
    const std::pair<std::string, bool> rows[] = {
        {"SELECT 1", true},
        {"SELECT 1;", true},
        {"SELECT 1; ; -- done\n /* really */", true},
        {"", false},
        {" -- nothing", false},
        {"SELECT 1; SELECT 2", false},
        {"SELECT 1; nonsense", false},
        {std::string("SELECT 1\0", 9), false},
        {"CREATE TABLE Made (a); CREATE TABLE MadeToo (a)", false},
    };
    for (const auto& [sql, runs] : rows) {
        if (runs)
            EXPECT_NO_THROW(m_engine.Run(sql)) << sql;
        else
            EXPECT_THROW(m_engine.Run(sql), CSQLite3Exception) << sql;
    }
    EXPECT_EQ(m_engine.QueryInt("SELECT count(*) FROM sqlite_master"), 0)
        << "the first of two statements ran";
}
