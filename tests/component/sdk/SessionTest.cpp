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
