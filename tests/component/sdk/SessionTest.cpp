#include "PlayedDevice.h"
#include "SdkClient.h"

TEST(SdkSession, WhatWasSetIsReadBackUntilTheSessionEnds)
{
    CSdk sdk;
    CWellBehaved device;
    CPlayedDevice played([&](CPlayedConnection& connection, int) { device.Serve(connection); });
    const QxNetLogin login = CSdk::To(played.Port());
    QxNetDeviceInfo info{};
    const std::int32_t session = QxNet_Login(&login, &info);
    ASSERT_GE(session, 0) << testing::PrintToString(LastError());
    EXPECT_STREQ(info.name, "Recorder");

    Octets written;
    std::strcpy(written.bytes, "kept");
    Octets read;
    EXPECT_EQ(NET_DVR_SetDVRConfig(session, 1009, 3, &written, sizeof written), 1);
    EXPECT_EQ(NET_DVR_GetDVRConfig(session, 1009, 3, &read, sizeof read), 1);
    EXPECT_STREQ(read.bytes, "kept");
    EXPECT_EQ(NET_DVR_GetDVRConfig(session, 1008, 3, &read, sizeof read), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_NOT_SUPPORTED, 7, 42}));

    EXPECT_EQ(QxNet_Logout(session), 1);
    EXPECT_EQ(NET_DVR_GetDVRConfig(session, 1009, 3, &read, sizeof read), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_HANDLE, 0, 0}));
    EXPECT_EQ(played.Connections(), 1);
}

TEST(SdkSession, WhatIsLongerThanItsBufferSaysHowLongAndBadDocumentsAreKept)
{
    CSdk sdk;
    CWellBehaved device;
    std::string body;
    CPlayedDevice played([&](CPlayedConnection& connection, int) {
        for (std::string request; !(request = connection.Request()).empty();) {
            const bool isOurs =
                request.find("/std/") != std::string::npos || request.find("/ability/") != std::string::npos;
            connection.Send(isOurs ? AnswerBytes("200 OK", "", body) : device.Answer(request));
        }
    });
    const std::int32_t session = CSdk::LogIn(played.Port());
    char text[9] = "........";
    std::uint32_t length = 0;
    body = "<a>bc</a>";
    EXPECT_EQ(QxNet_GetAbility(session, QXNET_ABILITY_BASIC, 0, text, sizeof text, &length), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_BUFFER_TOO_SMALL, 10, 0}));
    EXPECT_EQ(length, 9u);
    EXPECT_STREQ(text, "........");
    body = "<a>b</a>";
    EXPECT_EQ(QxNet_GetAbility(session, QXNET_ABILITY_BASIC, 0, text, sizeof text, &length), 1);
    EXPECT_STREQ(text, "<a>b</a>");
    body = "<!DOCTYPE a [<!ENTITY b \"c\">]><a>&b;</a>";
    EXPECT_EQ(QxNet_GetAbility(session, QXNET_ABILITY_BASIC, 0, text, sizeof text, &length), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_UNREADABLE, 0, 0}));

    tagNET_DVR_STD_CONFIG config{};
    config.output = text;
    config.outputSize = sizeof text;
    body = "ten octets";
    EXPECT_EQ(NET_DVR_GetSTDConfig(session, 7, &config), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_BUFFER_TOO_SMALL, 10, 0}));
    body = "nine octs";
    EXPECT_EQ(NET_DVR_GetSTDConfig(session, 7, &config), 1);
    EXPECT_EQ(std::string(text, config.outputLength), body);
    body.assign((1 << 20) + 1, ' ');
    EXPECT_EQ(NET_DVR_GetSTDConfig(session, 7, &config), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_TOO_LONG, 0, 0}));
    EXPECT_EQ(QxNet_GetAbility(session, QXNET_ABILITY_BASIC, 0, text, sizeof text, &length), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_TOO_LONG, 0, 0}));
}
