#include "PlayedDevice.h"
#include "SdkClient.h"
#include "support/DevicePage.h"

#include <regex>

namespace {

/// The request as the page would show it: its device and, where there is one, its client nonce.
std::string AsOnThePage(std::string request, std::uint16_t port)
{
    const std::string host = "127.0.0.1:" + std::to_string(port);
    const std::size_t at = request.find(host);
    if (at != std::string::npos)
        request.replace(at, host.size(), "192.0.2.10:8000");
    return std::regex_replace(request, std::regex("(cnonce|response)=\"[0-9a-f]+\""), "$1=\"...\"");
}

tagNET_DVR_STREAM_CABAC Cabac(int enabled)
{
    tagNET_DVR_STREAM_CABAC structure{};
    structure.size = sizeof structure;
    structure.enabled = static_cast<std::uint8_t>(enabled);
    return structure;
}

} // namespace

TEST(SdkProtocolPage, ItsSessionIsWhatTheLibrarySendsAndTakes)
{
    const std::vector<PageMessage> page = PageMessages(DEVICE_PROTOCOL_PAGE);
    ASSERT_EQ(page.size(), 14u);
    std::atomic<std::size_t> next = 0;
    std::atomic<std::uint16_t> port = 0;
    CSdk sdk;
    CPlayedDevice played([&](CPlayedConnection& connection, int) {
        for (std::string request = connection.Request(); !request.empty(); request = connection.Request()) {
            const std::size_t index = next.fetch_add(2);
            ASSERT_LT(index + 1, page.size());
            ASSERT_TRUE(page[index].isRequest && !page[index + 1].isRequest);
            EXPECT_EQ(AsOnThePage(request, port), AsOnThePage(page[index].bytes, port));
            connection.Send(page[index + 1].bytes);
        }
    });
    port = played.Port();
    const QxNetLogin login = CSdk::To(port);
    QxNetDeviceInfo info{};
    const std::int32_t session = QxNet_Login(&login, &info);
    ASSERT_GE(session, 0) << testing::PrintToString(LastError());
    EXPECT_STREQ(info.serial, "QX-0001");

    tagNET_DVR_STREAM_CABAC read{};
    EXPECT_EQ(NET_DVR_GetDVRConfig(session, QXNET_GET_CABAC, 3, &read, sizeof read), 1);
    EXPECT_EQ(read.enabled, 1);
    const tagNET_DVR_STREAM_CABAC written = Cabac(0);
    EXPECT_EQ(NET_DVR_SetDVRConfig(session, QXNET_SET_CABAC, 3, &written, sizeof written), 1);

    tagNET_DVR_CHANNEL_GROUP groups[2] = {};
    groups[0].size = groups[1].size = sizeof groups[0];
    groups[0].channel = 1;
    groups[1].channel = 9;
    std::uint32_t status[2] = {7, 7};
    tagNET_DVR_AUDIO_EXCEPTION batch[2] = {};
    batch[1].size = sizeof batch[1];
    EXPECT_EQ(NET_DVR_GetDeviceConfig(session, QXNET_GET_AUDIO_EXCEPTION, 2, groups, sizeof groups, status,
                                      batch, sizeof batch),
              1);
    EXPECT_THAT(status, testing::ElementsAre(0, QXNET_ERROR_CHANNEL));
    EXPECT_EQ(batch[0].enabled, 1);
    EXPECT_EQ(batch[1].size, 0u);

    EXPECT_EQ(NET_DVR_GetDVRConfig(session, QXNET_GET_CABAC, 9, &read, sizeof read), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_CHANNEL, 12, 1017}));
    EXPECT_EQ(QxNet_Logout(session), 1);
    EXPECT_EQ(next, page.size()); // the device was told of the logout too
}
