#include "CapabilitySet/CapabilitySet.h"
#include "CapabilitySet/SdkQuestion.h"
#include "support/CapturedLog.h"
#include "support/FakeSdk.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <thread>

using namespace CapabilitySet;

namespace {

const std::string kBasic = "<basicAbility version='1'><cabac>true</cabac></basicAbility>";
const std::string kRecord = "<recordAbility version='1'/>";

FakeSdk::Bytes Bytes(const std::string& document)
{
    return {document.begin(), document.end()};
}

TEST(CapabilitySet, TellsWhyItFailedAndAsksAgain)
{
    FakeSdk sdk;
    BasicFeatures features;
    const CapturedLog log;
    sdk.Answer(QXNET_ABILITY_BASIC, Bytes(kRecord));
    EXPECT_FALSE(BasicCapability::GetBasicCapability(3, 1, features));
    EXPECT_EQ(LastError().error, static_cast<unsigned>(QXNET_ERROR_UNREADABLE));
    EXPECT_FALSE(BasicCapability::GetBasicCapability(-1, 1, features));
    EXPECT_EQ(LastError().error, static_cast<unsigned>(QXNET_ERROR_ARGUMENT));
    sdk.Fail("QxNet_GetAbility", {QXNET_ERROR_UNREACHABLE, 7, 0});
    EXPECT_FALSE(BasicCapability::GetBasicCapability(3, 1, features));
    EXPECT_EQ(LastError().error, static_cast<unsigned>(QXNET_ERROR_UNREACHABLE));
    EXPECT_EQ(LastError().moduleError, 7u);
    EXPECT_EQ(sdk.Calls().size(), 2u);
    ASSERT_EQ(log.Errors().size(), 3u);
    EXPECT_EQ(log.Errors().back(), "QxNet_GetAbility failed, [201]-[7].");
}

TEST(CapabilitySet, AsksADeviceOnceUntilItIsForgotten)
{
    FakeSdk sdk;
    BasicFeatures features;
    sdk.Answer(QXNET_ABILITY_BASIC, Bytes(kBasic));
    EXPECT_TRUE(BasicCapability::GetBasicCapability(4, 1, features));
    features = {};
    EXPECT_TRUE(BasicCapability::GetBasicCapability(4, 1, features));
    EXPECT_TRUE(features.cabac);
    EXPECT_EQ(sdk.Calls().size(), 1u);
    Forget(4);
    EXPECT_TRUE(BasicCapability::GetBasicCapability(4, 1, features));
    EXPECT_EQ(sdk.Calls().size(), 2u);
}

TEST(CapabilitySet, GetsDocumentsOfAnyLengthThatTheSdkMayGive)
{
    FakeSdk sdk;
    std::string document;
    AbilityError error;
    for (const std::size_t length : {1, 32'767, 32'768, 1024 * 1024}) {
        sdk.Answer(QXNET_ABILITY_BASIC, Bytes(std::string(length, 'x')));
        EXPECT_TRUE(AskSdk(1, QXNET_ABILITY_BASIC, 1, document, error));
        EXPECT_EQ(document, std::string(length, 'x'));
    }
    sdk.Answer(QXNET_ABILITY_BASIC, Bytes(document + 'x'));
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
