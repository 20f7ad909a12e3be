#include "WireText.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

/// A fenced block of the page: its fields and the bytes it shows.
struct Sample
{
    std::vector<std::pair<std::string, std::string>> fields;
    std::string bytes;
    int line = 0;

    std::string Field(const std::string& key) const
    {
        for (const auto& [name, value] : fields)
            if (name == key)
                return value;
        return {};
    }
    lpc::HeaderMap Headers() const
    {
        lpc::HeaderMap headers;
        for (const auto& [name, value] : fields)
            if (name == "header")
                headers[value.substr(0, value.find('='))] = value.substr(value.find('=') + 1);
        return headers;
    }
    /// The text, or "<count> times <character>".
    std::string Body() const
    {
        const std::string text = Field("body");
        const std::size_t times = text.find(" times ");
        return times == std::string::npos ? text : std::string(std::stoul(text), text[times + 7]);
    }
    lpc::Kind Kind() const
    {
        const std::map<std::string, lpc::Kind> kinds{
            {"hello", lpc::Kind::Hello},     {"hello answer", lpc::Kind::HelloAnswer},
            {"request", lpc::Kind::Request}, {"notification", lpc::Kind::Notification},
            {"answer", lpc::Kind::Answer},   {"refusal", lpc::Kind::Refusal},
        };
        return kinds.at(Field("kind"));
    }
};

void AppendHex(const std::string& line, std::string& bytes)
{
    std::istringstream words(line);
    for (std::string word; words >> word;) {
        const auto value = static_cast<char>(std::stoul(word.substr(0, 2), nullptr, 16));
        bytes.append(word.size() > 2 ? std::stoul(word.substr(3)) : 1, value);
    }
}

/// The blocks with that mark. Fields stand above the empty line, bytes below it.
std::vector<Sample> Samples(const std::string& mark)
{
    std::ifstream page(LPC_PROTOCOL_PAGE);
    std::vector<Sample> samples;
    bool inside = false;
    bool inBytes = false;
    int number = 0;
    for (std::string line; std::getline(page, line);) {
        ++number;
        if (line == "```" + mark) {
            inside = true;
            inBytes = false;
            samples.emplace_back();
            samples.back().line = number;
        } else if (line == "```") {
            inside = false;
        } else if (inside && line.empty()) {
            inBytes = true;
        } else if (inside && inBytes) {
            AppendHex(line, samples.back().bytes);
        } else if (inside) {
            const std::size_t colon = line.find(": ");
            samples.back().fields.emplace_back(line.substr(0, colon), line.substr(colon + 2));
        }
    }
    return samples;
}

TEST(ProtocolPage, ItsMessagesReadAsTheyAreDescribed)
{
    const auto samples = Samples("lpc-message");
    ASSERT_GE(samples.size(), 9U);
    for (const Sample& sample : samples) {
        SCOPED_TRACE("line " + std::to_string(sample.line));
        const Reading reading = ReadAll(sample.bytes);
        EXPECT_EQ(lpc::Fault::None, reading.fault);
        EXPECT_FALSE(reading.insideMessage);
        ASSERT_EQ(1U, reading.messages.size());
        const lpc::WireMessage& message = reading.messages[0];
        EXPECT_EQ(sample.Kind(), message.kind);
        EXPECT_EQ(sample.Field("id"), std::to_string(message.id));
        EXPECT_EQ(sample.Headers(), message.headers);
        EXPECT_TRUE(sample.Body() == message.body);
    }
}

TEST(ProtocolPage, TheWriterGivesItsBytes)
{
    int compared = 0;
    for (const Sample& sample : Samples("lpc-message")) {
        if (!sample.Field("read only").empty())
            continue;
        SCOPED_TRACE("line " + std::to_string(sample.line));
        EXPECT_TRUE(sample.bytes == WireBytes(sample.Kind(), std::stoull(sample.Field("id")),
                                              sample.Headers(), sample.Body()));
        ++compared;
    }
    EXPECT_GE(compared, 8);
}

TEST(ProtocolPage, ItsFaultsAreFoundAndNamed)
{
    const auto samples = Samples("lpc-fault");
    ASSERT_GE(samples.size(), 15U);
    for (const Sample& sample : samples) {
        SCOPED_TRACE("line " + std::to_string(sample.line));
        const Reading reading = ReadAll(sample.bytes);
        EXPECT_EQ(sample.Field("fault"), lpc::FaultText(reading.fault));
        EXPECT_TRUE(reading.messages.empty());
    }
}

} // namespace
