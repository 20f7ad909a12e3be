#include "Sqlite3DO/Statement.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

using Sqlite3DO::FormatStatement;
using Sqlite3DO::Quoted;

TEST(Quoted, DoublesEveryQuoteAndLeavesTheRest)
{
    const std::pair<std::string, std::string> rows[] = {
        {"", ""},
        {"plain", "plain"},
        {"O'Hara's", "O''Hara''s"},
        {"''", "''''"},
        {"%s \\ \" ; --", "%s \\ \" ; --"},
        {"\xE6\x91\x84\xE5\x83\x8F", "\xE6\x91\x84\xE5\x83\x8F"},
        {std::string("a\0b", 3), "a\xEF\xBF\xBD"
                                 "b"},
    };
    for (const auto& [text, quoted] : rows)
        EXPECT_EQ(Quoted(text), quoted);
}

TEST(FormatStatement, GivesTheStatementThatFitsWithItsClosingByte)
{
    EXPECT_EQ(FormatStatement<8>("%s=%d", "abcd", 12), "abcd=12");
}

TEST(FormatStatement, RefusesAStatementThatIsOneByteTooLongWithOneLine)
{
    const CapturedLog log;
    EXPECT_EQ(FormatStatement<8>("%s=%d", "abcde", 12), "");
    EXPECT_EQ(log.Errors().size(), 1u);
}
