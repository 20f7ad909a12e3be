#include "CloudP2PReport/CloudP2PManager.h"
#include "CloudP2PReport/ReportManager.h"
#include "support/CapturedLog.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

using cloudreport::CCloudP2PManager;
using cloudreport::CReportManager;
using cloudreport::OpenSDKInfo;

TEST(CloudP2P, SaysOnceWhyThereIsNoCloud)
{
    TestDataRoot data;
    const std::string file = data.Path() + "cloud.json";
    const std::tuple<bool, Base::LogLevel, std::string> rows[] = {
        {false, Base::LogLevel::Info,
         "Cloud service: none is configured, reports and peer-to-peer connections are off."},
        {true, Base::LogLevel::Warn,
         "Cloud service: [" + file + "] is not used, this edition has no cloud client."},
    };
    for (const auto& [configured, level, line] : rows) {
        if (configured)
            std::ofstream(file) << "{}";
        CCloudP2PManager cloud;
        CapturedLog log;
        for (int time = 0; time < 2; ++time)
            EXPECT_EQ(cloud.loadConfig(data.Path()), configured);
        EXPECT_FALSE(cloud.init() || cloud.isLoggedIn() || cloud.setLoginInfo()) << "there is no client";
        ASSERT_EQ(log.Lines().size(), 1u);
        EXPECT_EQ(log.Lines().front().level, level);
        EXPECT_EQ(log.Lines().front().message, line);
    }
}

TEST(CloudReport, ReportsOnlyBetweenInitAndReleaseAndWhileASessionIsKnown)
{
    const OpenSDKInfo session{"cloud", "user", "session"};
    CReportManager reports;
    EXPECT_FALSE(reports.setOpenSDKInfo(session));
    EXPECT_FALSE(reports.init({}));
    EXPECT_TRUE(reports.init({"BlackRedSkin", "1", "2"}));
    EXPECT_FALSE(reports.isReporting());
    EXPECT_TRUE(reports.setOpenSDKInfo(session));
    EXPECT_TRUE(reports.isReporting());
    EXPECT_TRUE(reports.setOpenSDKInfo({}));
    EXPECT_FALSE(reports.isReporting());

    EXPECT_TRUE(reports.setOpenSDKInfo(session));
    reports.releaseManager();
    reports.releaseManager();
    EXPECT_TRUE(reports.init({"BlackRedSkin"}));
    EXPECT_FALSE(reports.isReporting());
}

} // namespace
