#include "CommonMethod/SDKErrorCode.h"
#include "ui/Public/RemoteConfigBusiness/StreamCfgBusiness.h"
#include "unit/device/OperationRows.h"

#include <thread>

using namespace rows;
using Business = video::CStreamCfgBusiness;

TEST(StandardConfiguration, PassesTheCallersCommandAndConditionOn)
{
    FakeSdk sdk;
    char output[8] = "";
    tagNET_DVR_STD_CONFIG config{"where", 5, "what", 4, output, sizeof(output), 0};
    for (const auto& [call, function] :
         {std::pair(Business::GetDeviceConfig, std::string("NET_DVR_GetSTDConfig")),
          std::pair(Business::SetDeviceConfig, std::string("NET_DVR_SetSTDConfig"))}) {
        SCOPED_TRACE(function);
        CapturedLog log;
        sdk.Answer(31007, FakeSdk::Bytes{'y', 'e', 's'});
        EXPECT_EQ(-1, call(-1, 31007, &config));
        EXPECT_EQ(-1, call(kLogin, 31007, nullptr));
        EXPECT_TRUE(sdk.Calls().empty());
        EXPECT_EQ(0, call(kLogin, 31007, &config));
        ASSERT_EQ(1u, sdk.Calls().size());
        EXPECT_EQ(function, sdk.Calls()[0].function);
        EXPECT_EQ(31007u, sdk.Calls()[0].command);
        EXPECT_EQ((FakeSdk::Bytes{'w', 'h', 'e', 'r', 'e'}), sdk.Calls()[0].condition);
        EXPECT_TRUE(log.Errors().empty());
        sdk.Fail(function, {QXNET_ERROR_NOT_SUPPORTED, 9, 0});
        EXPECT_EQ(-1, call(kLogin, 31007, &config));
        ExpectOneErrorLine(log, function + " failed, [500]-[9].");
        sdk.ForgetCalls();
    }
    EXPECT_STREQ("yes", output);
    EXPECT_EQ(3u, config.outputLength);
}

TEST(SdkErrors, ThePairIsTheThreadsOwnAndLoggedInTwoLinesBelowErrorLevel)
{
    FakeSdk sdk;
    CapturedLog log;
    sdk.Fail("NET_DVR_GetSTDConfig", {QXNET_ERROR_DEVICE, 0x1f, 0xab});
    tagNET_DVR_STD_CONFIG config{};
    EXPECT_EQ(0, NET_DVR_GetSTDConfig(kLogin, 1, &config));
    int error = -1;
    int moduleError = -1;
    std::thread([&] { comm_method::getLastSDKError(error, moduleError, false); }).join();
    EXPECT_EQ(0, error) << "the failed call was another thread's";
    EXPECT_EQ(0, moduleError);
    comm_method::getLastSDKError(error, moduleError, false);
    EXPECT_EQ(QXNET_ERROR_DEVICE, error);
    EXPECT_EQ(0x1f, moduleError);
    EXPECT_TRUE(log.Lines().empty());
    comm_method::getLastSDKError(error, moduleError, true);
    ASSERT_EQ(2u, log.Lines().size());
    EXPECT_EQ("NET_DVR_GetLastError: [504]", log.Lines()[0].message);
    EXPECT_EQ("NET_DVR_GetLastErrorModelCode, ErrModelCode:[0x1f], MErrDevSelfEx:[0xab].",
              log.Lines()[1].message);
    EXPECT_TRUE(log.Errors().empty());
}
