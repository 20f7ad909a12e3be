#include "QxNetSDK/library/session/TrustFile.h"
#include "QxNetSDK/library/session/TrustStore.h"
#include "support/TestDataRoot.h"

#include <chrono>
#include <fstream>
#include <gtest/gtest.h>

namespace {

const std::string kOne(64, '1');
const std::string kOther(64, '2');

} // namespace

TEST(SdkTrust, TwoProgramsWithOneFileTrustWhatTheOtherDoes)
{
    TestDataRoot root;
    sdk::CTrustStore first;
    sdk::CTrustStore second;
    ASSERT_FALSE(first.UseFile(root.Path() + "trusted"));
    ASSERT_FALSE(second.UseFile(root.Path() + "trusted"));
    EXPECT_FALSE(first.Keep("a:1", kOne));
    EXPECT_FALSE(second.Keep("b:1", kOther));
    EXPECT_FALSE(first.Keep("c:1", kOne));
    EXPECT_EQ(first.Check("b:1", kOne).code, QXNET_ERROR_CERTIFICATE_CHANGED);
    EXPECT_EQ(second.Keep("c:1", kOther).code, QXNET_ERROR_CERTIFICATE_CHANGED);
}

TEST(SdkTrust, AFileThatAnotherProgramHoldsForEverIsGivenUp)
{
    TestDataRoot root;
    sdk::CTrustStore store;
    ASSERT_FALSE(store.UseFile(root.Path() + "trusted"));
    const sdk::CTrustFile held(root.Path() + "trusted");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(store.Keep("a:1", kOne).code, QXNET_ERROR_TRUST_FILE);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(SdkTrust, NobodyIsTrustedForWantOfADamagedFile)
{
    TestDataRoot root;
    const std::string file = root.Path() + "trusted";
    std::ofstream(file) << "a:1 " << kOne << "\nb:1 cut";
    sdk::CTrustStore store;
    EXPECT_EQ(store.UseFile(file).code, QXNET_ERROR_TRUST_FILE);
    EXPECT_EQ(store.Check("a:1", kOther).code, QXNET_ERROR_TRUST_FILE);
    EXPECT_EQ(store.Keep("c:1", kOther).code, QXNET_ERROR_TRUST_FILE);
    EXPECT_FALSE(store.UseFile(""));
    EXPECT_FALSE(store.Keep("c:1", kOther));
}
