#include "lpc/json/Matcher.h"

#include <gtest/gtest.h>

using namespace lpctool;

namespace {

struct MatchRow
{
    const char* name;
    const char* pattern;
    const char* value;
    const char* path; ///< of the mismatch; empty when the value matches
    const char* wanted = "";
    const char* got = "";
};

const MatchRow kRows[] = {
    {"equal texts", R"("a")", R"("a")", ""},
    {"texts differ in case", R"("a")", R"("A")", "$", R"("a")", R"("A")"},
    {"a text is no number", R"("1")", "1", "$", R"("1")", "1"},
    {"numbers by value", "1.0", "1", ""},
    {"numbers differ", "1", "2", "$", "1", "2"},
    {"true is not false", "true", "false", "$", "true", "false"},
    {"null is null", "null", "null", ""},
    {"null is not nothing", R"({"a":null})", "{}", "$.a", "null", "nothing: there is no such member"},
    {"a star matches an object", R"("*")", R"({"a":1})", ""},
    {"a star matches null", R"({"a":"*"})", R"({"a":null})", ""},
    {"a star demands that the member is there", R"({"a":"*"})", R"({"b":1})", "$.a", R"("*")",
     "nothing: there is no such member"},
    {"more members are allowed", R"({"a":1})", R"({"b":2,"a":1})", ""},
    {"member names differ in case", R"({"a":1})", R"({"A":1})", "$.a", "1",
     "nothing: there is no such member"},
    {"an object is no array", R"({"a":{}})", R"({"a":[]})", "$.a", "{}", "[]"},
    {"deep members", R"({"a":{"b":[{"c":1},{"c":2}]}})", R"({"a":{"b":[{"c":1},{"c":3}]}})", "$.a.b[1].c",
     "2", "3"},
    {"arrays in another order", "[1,2]", "[2,1]", "$[0]", "1", "2"},
    {"an array too long", "[1]", "[1,2]", "$", "1 elements", "2 elements: [1,2]"},
    {"an array too short", R"({"a":[1,2]})", R"({"a":[1]})", "$.a", "2 elements", "1 elements: [1]"},
    {"an empty array demands an empty one", "[]", "[1]", "$", "0 elements", "1 elements: [1]"},
    {"an empty object matches any object", "{}", R"({"a":1})", ""},
    {"members of elements may be more", R"([{"a":1}])", R"([{"a":1,"b":2}])", ""},
    {"a variable stores, then compares", R"(["$x","$x"])", "[5,5]", ""},
    {"a variable that differs later", R"(["$x","$x"])", "[5,6]", "$[1]", "5 ($x)", "6"},
    {"a stored object is compared exactly", R"(["$x","$x"])", R"([{"a":1},{"a":1,"b":2}])", "$[1]",
     R"({"a":1} ($x))", R"({"a":1,"b":2})"},
    {"a known variable compares", R"("$known")", "7", ""},
    {"a known variable differs", R"({"id":"$known"})", R"({"id":8})", "$.id", "7 ($known)", "8"},
    {"two dollars stand for one", R"("$$known")", R"("$known")", ""},
    {"a price is no variable", R"("$5")", R"("$5")", ""},
    {"a secret is not shown", R"({"password":"a"})", R"({"password":"b"})", "$.password", "***", "***"},
};

TEST(Matcher, FindsTheFirstDifferenceAndNamesItsPath)
{
    for (const MatchRow& row : kRows) {
        SCOPED_TRACE(row.name);
        Variables variables;
        variables["known"] = ParseJson("7");
        const JsonValue pattern = ParseJson(row.pattern);
        const JsonValue value = ParseJson(row.value);
        ASSERT_TRUE(pattern && value);
        const auto mismatch = Match(*pattern, *value, variables);
        EXPECT_EQ(mismatch ? mismatch->path : "", row.path);
        EXPECT_EQ(mismatch ? mismatch->wanted : "", row.wanted);
        EXPECT_EQ(mismatch ? mismatch->got : "", row.got);
    }
}

TEST(Matcher, StoresVariablesOnlyWhenTheWholeMatches)
{
    Variables variables;
    const JsonValue pattern = ParseJson(R"({"a":"$x","b":1})");
    EXPECT_TRUE(Match(*pattern, *ParseJson(R"({"a":5,"b":2})"), variables));
    EXPECT_TRUE(variables.empty());
    EXPECT_FALSE(Match(*pattern, *ParseJson(R"({"a":6,"b":1})"), variables));
    ASSERT_EQ(variables.count("x"), 1u);
    EXPECT_EQ(ToText(*variables["x"]), "6");
}

TEST(Matcher, CutsALongValueInItsExplanation)
{
    Variables variables;
    const JsonValue value = ParseJson('"' + std::string(100000, 'x') + '"');
    const auto mismatch = Match(*ParseJson("1"), *value, variables);
    ASSERT_TRUE(mismatch);
    EXPECT_LT(mismatch->got.size(), 1000u);
}

TEST(Substitution, FillsInVariablesEverywhere)
{
    const Variables variables = {{"n", ParseJson("7")}, {"o", ParseJson(R"({"a":["$n"]})")}};
    // The result is empty when a variable is unknown.
    const std::pair<const char*, const char*> rows[] = {
        {R"("$n")", "7"},
        {R"({"a":"$n","b":["$n",{"c":"$n"}]})", R"({"a":7,"b":[7,{"c":7}]})"},
        {R"({"a":"$o"})", R"({"a":{"a":["$n"]}})"},
        {R"(["$$n","$5","x$n","*"])", R"(["$n","$5","x$n","*"])"},
        {R"({"a":["$n","$other"]})", ""},
    };
    for (const auto& [text, wanted] : rows) {
        std::string unknown;
        const JsonValue result = Substitute(ParseJson(text), variables, unknown);
        EXPECT_EQ(result ? ToText(*result) : "", wanted) << text;
        EXPECT_EQ(unknown, result ? "" : "other") << text;
    }
}

} // namespace
