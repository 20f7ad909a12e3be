#include "Protocol/JSONStruct/JSONKinds.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace kinds {

enum class Numbered { First = 2, Last = 4 };
constexpr protocol::EnumRange<Numbered> JSONEnum(Numbered)
{
    return {Numbered::First, Numbered::Last};
}

enum class Named { Left, Right };
constexpr std::array<protocol::EnumText<Named>, 2> JSONEnum(Named)
{
    return {{{Named::Left, "left side"}, {Named::Right, "right side"}}};
}

struct Inner
{
    std::optional<std::int32_t> number;
    static constexpr auto Fields() { return std::make_tuple(protocol::May("number", &Inner::number)); }
};

struct Outer
{
    std::vector<Inner> inners;
    static constexpr auto Fields() { return std::make_tuple(protocol::Must("inners", &Outer::inners)); }
};

} // namespace kinds

namespace {

using namespace protocol;

template<typename T>
std::optional<T> Read(const std::string& text, json::ReadError& error)
{
    const json::Tree item = json::ParseText(text, error.reason);
    T value{};
    return item && json::Kind<T>::Read(item.get(), value, error) ? std::optional<T>(value) : std::nullopt;
}

template<typename T>
std::optional<T> Read(const std::string& text)
{
    json::ReadError error;
    return Read<T>(text, error);
}

template<typename T>
std::string Written(const T& value)
{
    return json::PrintText(json::Kind<T>::Write(value).get());
}

template<typename T>
void ExpectLimits(const std::string& below, const std::string& least, const std::string& greatest,
                  const std::string& above)
{
    EXPECT_FALSE(Read<T>(below)) << below;
    EXPECT_EQ(Read<T>(least), std::numeric_limits<T>::min());
    EXPECT_EQ(Read<T>(greatest), std::numeric_limits<T>::max());
    EXPECT_FALSE(Read<T>(above)) << above;
    EXPECT_EQ(Read<T>(Written(std::numeric_limits<T>::min())), std::numeric_limits<T>::min());
    EXPECT_EQ(Read<T>(Written(std::numeric_limits<T>::max())), std::numeric_limits<T>::max());
}

TEST(Integers, AreReadWithinTheLimitsOfTheirType)
{
    ExpectLimits<std::int8_t>("-129", "-128", "127", "128");
    ExpectLimits<std::uint8_t>("-1", "0", "255", "256");
    ExpectLimits<std::int16_t>("-32769", "-32768", "32767", "32768");
    ExpectLimits<std::uint16_t>("-1", "0", "65535", "65536");
    ExpectLimits<std::int32_t>("-2147483649", "-2147483648", "2147483647", "2147483648");
    ExpectLimits<std::uint32_t>("-1", "0", "4294967295", "4294967296");
    ExpectLimits<std::int64_t>("\"-9223372036854775809\"", "\"-9223372036854775808\"",
                               "\"9223372036854775807\"", "\"9223372036854775808\"");
    ExpectLimits<std::uint64_t>("\"-1\"", "\"0\"", "\"18446744073709551615\"", "\"18446744073709551616\"");
}

TEST(Integers, AreRefusedWhenTheyMayHaveBeenRounded)
{
    EXPECT_EQ(Read<std::int64_t>("9007199254740991"), 9007199254740991);
    EXPECT_EQ(Read<std::int64_t>("-9007199254740991"), -9007199254740991);
    EXPECT_EQ(Read<std::uint64_t>("9007199254740991"), 9007199254740991u);
    for (const char* text : {"9007199254740992", "9007199254740993", "1e300", "1e999", "-1e999"})
        EXPECT_FALSE(Read<std::int64_t>(text)) << text;
}

TEST(Integers, AreWrittenDigitByDigit)
{
    EXPECT_EQ(Written<std::int64_t>(9007199254740991), "9007199254740991");
    EXPECT_EQ(Written<std::int64_t>(-9007199254740991), "-9007199254740991");
    EXPECT_EQ(Written<std::int64_t>(9007199254740992), "\"9007199254740992\"");
    EXPECT_EQ(Written<std::uint64_t>(0), "0");
}

TEST(Integers, TakeNothingButWholeNumbers)
{
    EXPECT_EQ(Read<std::int32_t>("7.0"), 7);
    EXPECT_EQ(Read<std::int32_t>("\"7\""), 7);
    for (const char* text :
         {"7.5", "true", "null", "[]", "{}", "\"\"", "\"7 \"", "\" 7\"", "\"0x7\"", "\"7.0\"", "\"+7\""})
        EXPECT_FALSE(Read<std::int32_t>(text)) << text;
}

TEST(Doubles, KeepTheirExactValue)
{
    for (double value : {0.1, 1.0 / 3, -2.5e-300, 1e22, 9007199254740993.0, 123456789.123456789})
        EXPECT_EQ(Read<double>(Written(value)), value);
    EXPECT_EQ(Written(0.1), "0.1");
    EXPECT_EQ(Written(std::nan("")), "null");
    for (const char* text : {"1e999", "\"1\"", "true", "null"})
        EXPECT_FALSE(Read<double>(text)) << text;
}

TEST(Bools, AreTrueOrFalseAndNothingElse)
{
    EXPECT_EQ(Read<bool>("true"), true);
    EXPECT_EQ(Read<bool>("false"), false);
    for (const char* text : {"1", "0", "\"true\"", "null"})
        EXPECT_FALSE(Read<bool>(text)) << text;
}

TEST(Texts, RoundTripWhateverCanBeWritten)
{
    for (const std::string text :
         {"", "a\"b\\c/d\n\t\x01", "\xD8\xB4\xD8\xA8", "\xF0\x9F\x8E\xA5", "100%s'--"})
        EXPECT_EQ(Read<std::string>(Written(text)), text);
    EXPECT_EQ(Read<std::string>(R"("\ud83c\udfa5")"), "\xF0\x9F\x8E\xA5");
}

TEST(Texts, AreWrittenReadablyWhenTheyHoldOtherBytes)
{
    EXPECT_EQ(Written(std::string("a\xFFz")), "\"a\xEF\xBF\xBDz\"");
    EXPECT_EQ(Written(std::string("a\xC3z")), "\"a\xEF\xBF\xBDz\"");
    EXPECT_EQ(Written(std::string("a\0z", 3)), "\"a\xEF\xBF\xBDz\"");
}

TEST(Enumerations, AreLimitedToTheirValues)
{
    EXPECT_EQ(Read<kinds::Numbered>("2"), kinds::Numbered::First);
    EXPECT_EQ(Read<kinds::Numbered>("4"), kinds::Numbered::Last);
    EXPECT_FALSE(Read<kinds::Numbered>("1"));
    EXPECT_FALSE(Read<kinds::Numbered>("5"));
    EXPECT_EQ(Read<kinds::Named>("\"right side\""), kinds::Named::Right);
    EXPECT_FALSE(Read<kinds::Named>("\"Right side\""));
    EXPECT_FALSE(Read<kinds::Named>("1"));
    EXPECT_EQ(Written(kinds::Named::Left), "\"left side\"");
}

TEST(Times, AreReadFromNumbersAndFromTexts)
{
    EXPECT_EQ(Read<Seconds>("1700000000"), Seconds{1700000000});
    EXPECT_EQ(Read<Seconds>("\"2023-11-14 22:13:20\""), Seconds{1700000000});
    EXPECT_EQ(Written(Seconds{1700000000}), "1700000000");
    for (const char* text : {"\"1700000000\"", "\"2023-02-30 00:00:00\"", "1.5", "253402300800", "true"})
        EXPECT_FALSE(Read<Seconds>(text)) << text;
}

TEST(RawValues, AreKeptWithTheirNumbersAsTheyAre)
{
    const std::string text = R"({"a":[9007199254740991,0.1,-0.5,1e+30,true,null,"\u0001"],"b":{}})";
    ASSERT_TRUE(Read<RawJSON>(text));
    EXPECT_EQ(Read<RawJSON>(text)->text, text);
    EXPECT_EQ(Written(RawJSON{text}), text);
    EXPECT_EQ(Written(RawJSON{"{\"a\":"}), "null");
}

TEST(NestedFields, AreNamedByTheirPath)
{
    json::ReadError error;
    EXPECT_FALSE(Read<kinds::Outer>(R"({"inners":[{"number":1},{},{"number":"x"}]})", error));
    EXPECT_EQ(error.path, "inners[2].number");
    EXPECT_EQ(error.reason, "expected an integer from -2147483648 to 2147483647");
    EXPECT_FALSE(Read<kinds::Outer>(R"({"inners":[{},null]})", error));
}

TEST(OptionalFields, TellWhetherTheKeyWasThere)
{
    const auto outer = Read<kinds::Outer>(R"({"inners":[{"number":0},{},{"number":null}]})");
    ASSERT_TRUE(outer);
    EXPECT_EQ(outer->inners[0].number, 0);
    EXPECT_EQ(outer->inners[1].number, std::nullopt);
    EXPECT_EQ(outer->inners[2].number, std::nullopt);
    EXPECT_EQ(Written(*outer), R"({"inners":[{"number":0},{},{}]})");
}

} // namespace
