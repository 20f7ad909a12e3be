#include "Base/StringUtil.h"
#include "Base/GuidUtil.h"

#include <gtest/gtest.h>

#include <chrono>
#include <clocale>
#include <regex>
#include <set>

using namespace Base;
using namespace Base::StringUtil;

namespace {

TEST(StringReplace, ReplacesEveryOccurrenceOnce)
{
    EXPECT_EQ(StringReplace("it's 'x'", "'", "''"), "it''s ''x''");
    EXPECT_EQ(StringReplace("aaa", "aa", "b"), "ba");
    EXPECT_EQ(StringReplace("abc", "", "x"), "abc");
    EXPECT_EQ(StringReplace("", "a", "b"), "");
    EXPECT_EQ(StringReplace("abc", "c", ""), "ab");
}

TEST(Split, KeepsEmptyParts)
{
    EXPECT_EQ(Split("a  b ", ' '), (std::vector<std::string>{"a", "", "b", ""}));
    EXPECT_EQ(Split("", ' '), std::vector<std::string>{""});
}

TEST(CutUtf8, NeverCutsInsideACharacter)
{
    const std::string text = "aä中";
    EXPECT_EQ(CutUtf8(text, 6), text);
    EXPECT_EQ(CutUtf8(text, 5), "aä");
    EXPECT_EQ(CutUtf8(text, 3), "aä");
    EXPECT_EQ(CutUtf8(text, 2), "a");
    EXPECT_EQ(CutUtf8(text, 0), "");
}

TEST(CodePages, TakeTheCLocaleAsUtf8AndReplaceBrokenBytes)
{
    std::setlocale(LC_CTYPE, "C");
    EXPECT_EQ(LocalToUTF8("Grüße 中"), "Grüße 中");
    EXPECT_EQ(UTF8ToLocal("Grüße 中"), "Grüße 中");
    EXPECT_EQ(LocalToUTF8("a\xff z"), "a? z");
    EXPECT_EQ(LocalToUTF8("cut \xe4\xb8"), "cut ??");
    const std::string longerThanABuffer = StringReplace(std::string(5000, '.'), ".", "中");
    EXPECT_EQ(LocalToUTF8(longerThanABuffer), longerThanABuffer);
}

TEST(Guids, HaveTheUsualFormDifferAndSortByTime)
{
    const std::regex form("([0-9a-f]{8})-([0-9a-f]{4})-7[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
    using namespace std::chrono;
    const auto now = [] { return duration_cast<milliseconds>(system_clock::now().time_since_epoch()); };
    const auto begin = now();
    std::set<std::string> seen;
    for (int i = 0; i < 1000; ++i)
        seen.insert(GuidUtil::CreateGuid());
    const auto end = now();
    EXPECT_EQ(seen.size(), 1000u);
    for (const std::string& guid : {*seen.begin(), *seen.rbegin()}) {
        std::smatch parts;
        ASSERT_TRUE(std::regex_match(guid, parts, form)) << guid;
        const milliseconds made(std::stoll(parts.str(1) + parts.str(2), nullptr, 16));
        EXPECT_TRUE(begin <= made && made <= end) << guid;
    }
}

} // namespace
