#include "MultimediaComm/MultimediaComm.h"
#include "support/CapturedLog.h"

#include <gmock/gmock.h>

#include <future>
#include <set>

namespace {

using multimediacomm::HardwareDecoder;

class MultimediaComm : public testing::Test
{
protected:
    ~MultimediaComm() override { multimediacomm::UnInit(); }
};

TEST_F(MultimediaComm, EachKindOfDeviceIsListedOnceAndTheLogSumsThemUp)
{
    CapturedLog log;
    EXPECT_TRUE(multimediacomm::HardwareDecoders().empty());
    ASSERT_TRUE(multimediacomm::Init());
    EXPECT_TRUE(log.Lines().empty());

    std::set<std::string> names;
    const std::vector<HardwareDecoder> decoders = multimediacomm::HardwareDecoders();
    const auto lines = log.Messages(Base::LogLevel::Info);
    ASSERT_EQ(lines.size(), 1u);
    const std::size_t border = lines[0].find("; no device: ");
    for (const HardwareDecoder& decoder : decoders) {
        EXPECT_TRUE(names.insert(decoder.name).second) << decoder.name;
        EXPECT_EQ(lines[0].find(decoder.name) < border, decoder.usable) << lines[0];
    }
    EXPECT_THAT(names, testing::Contains("vaapi"));
}

TEST_F(MultimediaComm, DevicesAreLookedForOnceUntilUnInitForgetsThem)
{
    ASSERT_TRUE(multimediacomm::Init());
    CapturedLog log;
    for (int life = 1; life <= 2; ++life) {
        EXPECT_TRUE(multimediacomm::Init());
        EXPECT_FALSE(multimediacomm::HardwareDecoders().empty());
        EXPECT_FALSE(multimediacomm::HardwareDecoders().empty());
        EXPECT_EQ(log.Lines().size(), static_cast<std::size_t>(life));
        multimediacomm::UnInit();
        multimediacomm::UnInit();
        EXPECT_TRUE(multimediacomm::HardwareDecoders().empty());
    }
}

TEST_F(MultimediaComm, ThreadsThatAskAtOnceGetAll)
{
    ASSERT_TRUE(multimediacomm::Init());
    auto asking = std::async(std::launch::async, multimediacomm::HardwareDecoders);
    const std::size_t seen = multimediacomm::HardwareDecoders().size();
    EXPECT_GT(seen, 0u);
    EXPECT_EQ(asking.get().size(), seen);
}

} // namespace
