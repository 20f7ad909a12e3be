#include "CommonMethod/DecryptionComm.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

namespace {

using Base::Encrypt::AESParams;
using Base::Encrypt::Seal;
using comm_method::decryptDeviceResponse;
using comm_method::decryptDeviceResponseList;
using Lines = std::vector<std::string>;

class DeviceCredentials : public ::testing::Test
{
protected:
    DeviceCredentials() { Base::Encrypt::SetAESParams(params); }
    ~DeviceCredentials() override { Base::Encrypt::ClearAESParams(); }

    protocol::DeviceResponseData Device(const std::string& userName, const std::string& password) const
    {
        protocol::DeviceResponseData device;
        device.guid = "d";
        device.userName = userName;
        device.password = password;
        return device;
    }

    const AESParams params =
        Base::Encrypt::ParamsOf(std::string(2 * Base::Encrypt::kKeyBytes, '7'), "devices").value();
};

TEST_F(DeviceCredentials, AreOpenedAndMayBeAbsent)
{
    const CapturedLog log;
    for (const char* password : {"secret", ""}) {
        auto device = Device(Seal(params, "admin"), *password ? Seal(params, password) : "");
        EXPECT_TRUE(decryptDeviceResponse(device));
        EXPECT_EQ(device.userName, "admin");
        EXPECT_EQ(device.password, password);
    }
    EXPECT_TRUE(log.Lines().empty());
}

TEST_F(DeviceCredentials, AreBothEmptiedWhenOneDoesNotOpen)
{
    AESParams other = params;
    other.label = "other";
    const std::string good = Seal(params, "x");
    const std::pair<std::string, std::string> rows[] = {
        {"plain", good},
        {good, "plain"},
        {good, good.substr(1)},
        {good, Seal(other, "secret")},
    };
    for (const auto& [userName, password] : rows) {
        auto device = Device(userName, password);
        const CapturedLog log;
        EXPECT_FALSE(decryptDeviceResponse(device));
        EXPECT_EQ(device.userName + device.password, "");
        EXPECT_EQ(device.guid, "d");
        EXPECT_EQ(log.Errors(), Lines{"CDecryptionComm failed!"});
    }
}

TEST_F(DeviceCredentials, DoNotOpenWithoutParameters)
{
    auto device = Device(Seal(params, "admin"), Seal(params, "secret"));
    Base::Encrypt::ClearAESParams();
    const CapturedLog log;
    EXPECT_FALSE(decryptDeviceResponse(device));
    EXPECT_EQ(device.userName + device.password, "");
    EXPECT_EQ(log.Errors(), Lines{"CDecryptionComm failed!"});
}

TEST_F(DeviceCredentials, OfAListOpenEachForItself)
{
    protocol::DeviceResponseListData list;
    list.devices = {Device("bad", ""), Device(Seal(params, "admin"), Seal(params, "secret")),
                    Device("", "bad")};
    const CapturedLog log;
    EXPECT_FALSE(decryptDeviceResponseList(list));
    EXPECT_EQ(list.devices[0].userName, "");
    EXPECT_EQ(list.devices[1].password, "secret");
    EXPECT_EQ(list.devices[2].password, "");
    EXPECT_EQ(log.Errors(), Lines{"CDecryptionComm failed!"});
}

} // namespace
