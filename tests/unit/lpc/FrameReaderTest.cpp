#include "WireText.h"

#include "LPC_Wire/Limits.h"

#include <gmock/gmock.h>

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

TEST(FrameReader, TakesTheMostAndRefusesWhatBothEndsRefuse)
{
    EXPECT_EQ(Fault::None, ReadAll(LongBody(lpc::kMaxBody / lpc::kMaxFrameBody)).fault);
    EXPECT_EQ(Fault::None, ReadAll(BegunBodies(lpc::kMaxPartialBodies)).fault);
    for (const FaultRow& row : FaultRows())
        EXPECT_THAT(lpc::FaultText(ReadAll(row.bytes).fault), testing::StartsWith(row.line));
}

TEST(FrameReader, HeadersAreUtf8)
{
    const std::pair<const char*, bool> rows[] = {
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
    for (const auto& [text, good] : rows)
        for (const auto& [key, value] : {std::pair{text, "v"}, std::pair{"k", text}}) {
            SCOPED_TRACE(text);
            const std::string section = std::string("\1\0", 2) + Text(key) + Text(value);
            EXPECT_EQ(good ? Fault::None : Fault::Headers,
                      ReadAll(Frame(Kind::Request, 1, 0, section, "")).fault);
            EXPECT_EQ(good ? lpc::kNoError : lpc::kInvalidArgument,
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
