#include "lpc/json/Masking.h"
#include "lpc/host/Traffic.h"

#include <gtest/gtest.h>

using namespace lpctool;

namespace {

TEST(Masking, HidesSecretsAtAnyDepthAndOfAnyKind)
{
    const std::pair<const char*, const char*> rows[] = {
        {R"({"password":"x","user":"u"})", R"({"password":"***","user":"u"})"},
        {R"([{"a":{"devicePassword":"x"}}])", R"([{"a":{"devicePassword":"***"}}])"},
        {R"({"Access-Token":5,"after":1})", R"({"Access-Token":"***","after":1})"},
        {R"({"secret":{"a":["x"]},"pwd":null})", R"({"secret":"***","pwd":"***"})"},
        {R"({"data":"{\"password\":\"x\"}"})", R"({"data":"{\"password\":\"***\"}"})"},
        {R"("{\"password\":\"x\"}")", R"("{\"password\":\"***\"}")"},
        {R"({"keyboard":"k","url":"/u"})", R"({"keyboard":"k","url":"/u"})"},
    };
    for (const auto& [value, shown] : rows)
        EXPECT_EQ(MaskedText(*ParseJson(value)), shown);
}

TEST(Traffic, ShowsAMessageWithoutItsSecrets)
{
    const lpc::HeaderMap headers = {{"url", "/u"}, {"Authorization", "Digest x"}};
    const std::string body = R"({"device":{"password":"clear"}})";
    const JsonValue line = ParseJson(PassageText({"request", "a", "b", headers, body}));
    ASSERT_TRUE(line);
    EXPECT_EQ(ToText(*Member(line.get(), "headers")), R"({"Authorization":"***","url":"/u"})");
    EXPECT_EQ(ToText(*Member(line.get(), "body")), R"({"device":{"password":"***"}})");
    EXPECT_EQ(Member(line.get(), "size")->valuedouble, static_cast<double>(body.size()));
}

TEST(Traffic, DoesNotShowWhatIsNoJson)
{
    const JsonValue line = ParseJson(PassageText({"notify", "a", "b", {}, R"({"password":"clear")"}));
    ASSERT_TRUE(line);
    EXPECT_EQ(TextMember(line.get(), "body"), "(19 bytes that are not JSON)");
}

TEST(Traffic, CutsALongBody)
{
    const std::string body = '"' + std::string(1000000, 'x') + '"';
    EXPECT_LT(PassageText({"notify", "a", "b", {}, body}).size(), 20000u);
}

} // namespace
