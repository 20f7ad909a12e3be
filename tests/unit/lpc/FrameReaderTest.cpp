#include "WireText.h"

#include "LPC_Wire/Limits.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using lpc::Fault;
using lpc::Kind;

TEST(FrameReader, GivesTheSameMessagesHoweverTheBytesAreCut)
{
    std::string bytes;
    std::vector<std::string> bodies;
    for (const std::size_t size : {0U, 1U, 100U, 70000U, 200000U, 5U, 1048577U, 3U}) {
        bodies.emplace_back(size, static_cast<char>('a' + bodies.size()));
        bytes += WireBytes(Kind::Request, bodies.size(), {{"n", std::to_string(size)}}, bodies.back());
    }
    for (const std::size_t piece : {std::size_t{1}, std::size_t{7}, std::size_t{24}, std::size_t{4096},
                                    std::size_t{65537}, std::size_t{300000}, bytes.size()}) {
        const Reading reading = ReadAll(bytes, piece);
        EXPECT_EQ(Fault::None, reading.fault);
        EXPECT_FALSE(reading.insideMessage);
        ASSERT_EQ(bodies.size(), reading.messages.size()) << piece;
        for (std::size_t i = 0; i < bodies.size(); ++i)
            EXPECT_TRUE(bodies[i] == reading.messages[i].body) << i << " in pieces of " << piece;
    }
}

TEST(FrameReader, KnowsWhetherTheBytesEndInsideAMessage)
{
    const std::string bytes = WireBytes(Kind::Request, 1, {{"k", "v"}}, "body");
    for (std::size_t cut = 1; cut < bytes.size(); ++cut)
        EXPECT_TRUE(ReadAll(bytes.substr(0, cut)).insideMessage) << cut;
    EXPECT_TRUE(ReadAll(Frame(Kind::Request, 1, lpc::kMoreFollows, NoHeaders(), "half")).insideMessage);
    EXPECT_FALSE(ReadAll(bytes).insideMessage);
}

TEST(FrameReader, PutsInterleavedBodiesTogetherByKindAndId)
{
    const std::uint16_t more = lpc::kMoreFollows;
    const Reading reading = ReadAll(
        Frame(Kind::Request, 1, more, NoHeaders(), "re") + Frame(Kind::Answer, 1, more, NoHeaders(), "an") +
        Frame(Kind::Request, 2, 0, NoHeaders(), "whole") + Frame(Kind::Answer, 1, 0, "", "swer") +
        Frame(Kind::Request, 1, 0, "", "quest"));
    ASSERT_EQ(3U, reading.messages.size());
    EXPECT_EQ("whole", reading.messages[0].body);
    EXPECT_EQ("answer", reading.messages[1].body);
    EXPECT_EQ("request", reading.messages[2].body);
}

TEST(FrameReader, RefusesABodyOverTheTotal)
{
    const std::size_t frames = lpc::kMaxBody / lpc::kMaxFrameBody;
    EXPECT_EQ(Fault::None, ReadAll(LongBody(frames)).fault);
    EXPECT_EQ(Fault::BodyTooLong, ReadAll(LongBody(frames) + Frame(Kind::Request, 1, 0, "", "x")).fault);
}

TEST(FrameReader, RefusesTooManyBodiesUnderWay)
{
    EXPECT_EQ(Fault::None, ReadAll(BegunBodies(lpc::kMaxPartialBodies)).fault);
    EXPECT_EQ(Fault::TooManyBodies, ReadAll(BegunBodies(lpc::kMaxPartialBodies + 1)).fault);
}

TEST(FrameReader, RefusesTenThousandHeaders)
{
    EXPECT_EQ(Fault::Headers, ReadAll(Frame(Kind::Request, 1, 0, TenThousandHeaders(), "")).fault);
}

TEST(FrameReader, HeadersAreUtf8)
{
    struct Row
    {
        const char* text;
        bool good;
    };
    const Row rows[] = {
        {"plain text of some length", true},
        {"Stra\xc3\x9f"
         "e \xe2\x82\xac \xf0\x9f\x93\xb7",
         true},
        {"longer than eight bytes \x80", false}, // begins in the middle
        {"\xc3", false},                         // ends in the middle
        {"\xc0\xaf", false},                     // longer than need be
        {"\xed\xa0\x80", false},                 // half a pair of another encoding
        {"\xf4\x90\x80\x80", false},             // beyond the last character
        {"\xff", false},
    };
    for (const Row& row : rows)
        for (const auto& [key, value] : {std::pair{row.text, "v"}, std::pair{"k", row.text}}) {
            SCOPED_TRACE(row.text);
            const std::string section = std::string("\1\0", 2) + Text(key) + Text(value);
            EXPECT_EQ(row.good ? Fault::None : Fault::Headers,
                      ReadAll(Frame(Kind::Request, 1, 0, section, "")).fault);
            EXPECT_EQ(row.good ? lpc::kNoError : lpc::kInvalidArgument,
                      lpc::CFrameSet(Kind::Request, 1, {{key, value}}, "").Error());
        }
}

/// A length that nothing follows costs no memory: the room offered stays small.
TEST(FrameReader, GrowsWithWhatArrivesNotWithWhatIsAnnounced)
{
    lpc::FrameHead head;
    head.id = 1;
    head.headerBytes = 2;
    head.bodyBytes = lpc::kMaxFrameBody;
    std::string bytes(lpc::kFrameHeadBytes, '\0');
    lpc::WriteFrameHead(head, bytes.data());
    bytes += NoHeaders();

    lpc::CFrameReader reader;
    std::memcpy(reader.Room()[0].data, bytes.data(), bytes.size());
    reader.Commit(bytes.size());
    lpc::WireMessage message;
    EXPECT_FALSE(reader.Next(message));
    EXPECT_LE(reader.Room()[0].size, 64 * lpc::kKiB);
}

TEST(FrameReader, SurvivesDamagedBytes)
{
    std::mt19937 random(20240501);
    const std::string good =
        WireBytes(Kind::Hello, 0, {{"name", "n"}, {"version", "1"}}, "") +
        WireBytes(Kind::Request, 1, {{"url", "/a"}, {"method", "GET"}}, "body of the request") +
        Frame(Kind::Answer, 1, lpc::kMoreFollows, NoHeaders(), "a") + Frame(Kind::Answer, 1, 0, "", "b");
    for (int round = 0; round < 20000; ++round) {
        std::string bytes = good;
        for (unsigned changes = 1 + random() % 3; changes > 0; --changes)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        const Reading reading = ReadAll(bytes, 1 + random() % bytes.size());
        ASSERT_LE(reading.messages.size(), 4U);
    }
}

TEST(FrameSet, GivesAnErrorForWhatIsOverALimit)
{
    struct Row
    {
        const char* what;
        lpc::HeaderMap headers;
        std::size_t bodyBytes;
        int error;
    };
    lpc::HeaderMap most;
    lpc::HeaderMap tooMany;
    for (std::size_t i = 0; i <= lpc::kMaxHeaders; ++i)
        (i < lpc::kMaxHeaders ? most : tooMany)["k" + std::to_string(i)] = "";
    tooMany.insert(most.begin(), most.end());
    // The section holds the count, two lengths, the key and the value.
    const std::size_t longest = lpc::kMaxHeaderBytes - 2 - 4 - 1;
    const Row rows[] = {
        {"the most headers", most, 0, lpc::kNoError},
        {"one header more", tooMany, 0, lpc::kTooLong},
        {"the longest header", {{"k", std::string(longest, 'v')}}, 0, lpc::kNoError},
        {"a longer header", {{"k", std::string(longest + 1, 'v')}}, 0, lpc::kTooLong},
        {"an empty key", {{"", "v"}}, 0, lpc::kTooLong},
        {"the longest body", {}, lpc::kMaxBody, lpc::kNoError},
        {"a longer body", {}, lpc::kMaxBody + 1, lpc::kTooLong},
    };
    for (const Row& row : rows) {
        const std::string body(row.bodyBytes, 'b');
        EXPECT_EQ(row.error, lpc::CFrameSet(Kind::Request, 1, row.headers, body).Error()) << row.what;
    }
}

} // namespace
