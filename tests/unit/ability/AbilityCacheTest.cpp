#include "CapabilitySet/CapabilitySet.h"
#include "CapabilitySet/SdkQuestion.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <future>

using namespace CapabilitySet;

namespace {

const std::string kBasic = "<basicAbility version='1'><cabac>true</cabac></basicAbility>";
const std::string kRecord = "<recordAbility version='1'/>";

/// What the device behind the SDK says, and how often it was asked.
struct Device
{
    std::string document = kBasic;
    std::uint32_t error = 0;
    int questions = 0;
};
Device device;

} // namespace

extern "C" int QxNet_GetAbility(int32_t, uint32_t, int32_t, char* text, uint32_t capacity, uint32_t* length)
{
    ++device.questions;
    *length = static_cast<uint32_t>(device.document.size());
    if (device.error || capacity <= *length)
        return 0;
    std::memcpy(text, device.document.c_str(), *length + 1);
    return 1;
}

extern "C" uint32_t NET_DVR_GetLastError()
{
    return device.error ? device.error : static_cast<uint32_t>(QXNET_ERROR_BUFFER_TOO_SMALL);
}

extern "C" uint32_t NET_DVR_GetLastErrorModelCode(uint32_t*)
{
    return 7;
}

namespace {

TEST(CapabilitySet, AsksADeviceOnceAndTellsWhyItFailed)
{
    device = {};
    BasicFeatures features;
    const CapturedLog log;
    device.error = QXNET_ERROR_UNREACHABLE;
    EXPECT_FALSE(BasicCapability::GetBasicCapability(3, 1, features));
    EXPECT_EQ(LastError().error, static_cast<unsigned>(QXNET_ERROR_UNREACHABLE));
    EXPECT_EQ(LastError().moduleError, 7u);
    EXPECT_EQ(log.Errors(), std::vector<std::string>{"QxNet_GetAbility failed, [201]-[7]."});
    device.error = 0;
    device.document = kRecord;
    EXPECT_FALSE(BasicCapability::GetBasicCapability(3, 1, features));
    EXPECT_EQ(LastError().error, static_cast<unsigned>(QXNET_ERROR_UNREADABLE));
    EXPECT_EQ(log.Errors().size(), 2u);
    EXPECT_FALSE(BasicCapability::GetBasicCapability(-1, 1, features));
    EXPECT_EQ(LastError().error, static_cast<unsigned>(QXNET_ERROR_ARGUMENT));
    EXPECT_EQ(device.questions, 2);

    device.document = kBasic;
    EXPECT_TRUE(BasicCapability::GetBasicCapability(3, 1, features));
    EXPECT_TRUE(features.cabac);
    EXPECT_TRUE(BasicCapability::GetBasicCapability(3, 1, features));
    EXPECT_EQ(device.questions, 3);
    Forget(3);
    EXPECT_TRUE(BasicCapability::GetBasicCapability(3, 1, features));
    EXPECT_EQ(device.questions, 4);
}

TEST(CapabilitySet, GetsDocumentsOfAnyLengthThatTheSdkMayGive)
{
    for (const std::size_t length : {1ul, 32'767ul, 32'768ul, 1024 * 1024ul}) {
        device = {};
        device.document = std::string(length, 'x');
        std::string document;
        AbilityError error;
        EXPECT_TRUE(AskSdk(1, QXNET_ABILITY_BASIC, 1, document, error));
        EXPECT_EQ(document, device.document);
    }
    device.document += 'x';
    std::string document;
    AbilityError error;
    EXPECT_FALSE(AskSdk(1, QXNET_ABILITY_BASIC, 1, document, error));
}

/// Counts questions; answers each with the ability of its kind.
class AbilityCache : public testing::Test
{
protected:
    bool Ask(std::int32_t login, std::uint32_t kind, std::string& document)
    {
        ++m_questions;
        if (login == m_slowLogin)
            m_answerNow.wait();
        document = kind == QXNET_ABILITY_BASIC ? kBasic : kRecord;
        return true;
    }

    template<typename Ability = BasicFeatures>
    int Questions(CAbilityCache& cache, std::int32_t login, std::int32_t channel)
    {
        const int before = m_questions;
        Ability ability;
        AbilityError error;
        EXPECT_TRUE(cache.Get(login, channel, ability, error));
        return m_questions - before;
    }

    CAbilityCache::Ask m_ask = [this](std::int32_t login, std::uint32_t kind, std::int32_t,
                                      std::string& document,
                                      AbilityError&) { return Ask(login, kind, document); };
    std::atomic<int> m_questions{0};
    std::int32_t m_slowLogin = -1;
    std::promise<void> m_answer;
    std::shared_future<void> m_answerNow = m_answer.get_future().share();
};

TEST_F(AbilityCache, KeepsEachSessionChannelAndKindByItself)
{
    CAbilityCache cache(m_ask);
    EXPECT_EQ(Questions(cache, 1, 1), 1);
    EXPECT_EQ(Questions(cache, 1, 2), 1);
    EXPECT_EQ(Questions(cache, 2, 1), 1);
    EXPECT_EQ(Questions<RecordOptions>(cache, 1, 1), 1);
    EXPECT_EQ(Questions(cache, 1, 1) + Questions(cache, 1, 2) + Questions(cache, 2, 1), 0);
    cache.Forget(1);
    EXPECT_EQ(Questions(cache, 2, 1), 0);
    EXPECT_EQ(Questions(cache, 1, 1) + Questions(cache, 1, 2) + Questions<RecordOptions>(cache, 1, 1), 3);
}

TEST_F(AbilityCache, GivesUpWhatWasUsedLongestAgo)
{
    CAbilityCache cache(m_ask, 10 * 600);
    for (int channel = 1; channel <= 1000; ++channel) {
        EXPECT_EQ(Questions(cache, 1, channel), 1);
        EXPECT_EQ(Questions(cache, 1, 1), 0);
    }
    EXPECT_EQ(Questions(cache, 1, 1000), 0);
    EXPECT_EQ(Questions(cache, 1, 900), 1);
}

TEST_F(AbilityCache, LetsNobodyWaitForAnothersDeviceAndForgetsWhatIsUnderWay)
{
    m_slowLogin = 1;
    CAbilityCache cache(m_ask);
    auto slow = std::async(std::launch::async, [&] { return Questions(cache, 1, 1); });
    auto other = std::async(std::launch::async, [&] {
        while (m_questions == 0)
            std::this_thread::yield();
        Questions(cache, 2, 1);
        cache.Forget(1);
    });
    EXPECT_EQ(other.wait_for(std::chrono::seconds(20)), std::future_status::ready);
    EXPECT_EQ(slow.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
    m_answer.set_value();
    slow.get();
    EXPECT_EQ(Questions(cache, 1, 1), 1);
    EXPECT_EQ(Questions(cache, 1, 1), 0);
}

} // namespace
