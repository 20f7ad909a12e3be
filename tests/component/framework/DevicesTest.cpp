#include "component/framework/CoreWorld.h"

#include "support/FakeDevices.h"
#include "support/WaitUntil.h"

using testing::ElementsAre;

namespace {

/// A core that is connected to devices played in this process.
class Devices : public CoreTest
{
protected:
    Devices()
    {
        connectDevices = true;
        StartCore();
    }
    ~Devices() override
    {
        core.reset();
        fakedevices::Clear();
    }

    std::string Add(const std::string& host)
    {
        std::string error;
        const std::string guid = core->Resources().Add({host, host, 8000, "admin", "right", false}, error);
        EXPECT_NE(guid, "") << error;
        return guid;
    }

    std::vector<std::string> Names(const std::string& guid)
    {
        std::vector<std::string> names;
        for (const auto& channel : core->Resources().Channels(guid))
            names.push_back(channel.name + (channel.online ? "+" : "-"));
        return names;
    }

    bool Has(const std::string& guid, const std::vector<std::string>& names)
    {
        return WaitUntil([&] { return Names(guid) == names; });
    }
};

TEST_F(Devices, AreToldToComponentsWithTheirChannelsAsTheyComeAndGo)
{
    fakedevices::Device played = fakedevices::Make(2);
    played.password = "right";
    fakedevices::Set("gate", played);
    TestClient component(lpc::kVideoComponentName);
    component.BecomeReady();
    const std::string gate = Add("gate");
    EXPECT_TRUE(component.received.Take("websocket {\"guid\":\"" + gate + "\",\"type\":\"deviceAdd\""));
    ASSERT_TRUE(Has(gate, {"Camera 1+", "Camera 2+"}));
    EXPECT_EQ(core->Resources().Devices()[0].typeCode, framework::Recorder);
    EXPECT_EQ(core->Resources().AlarmOutputs(gate).size(), 2u);
    const std::string camera = core->Resources().Channels(gate)[0].guid;
    const std::string group = core->Resources().Groups()[0].guid;

    played.channels[0].state = QXNET_CHANNEL_NOT_SUPPORTED;
    played.channels.pop_back();
    ++played.changes;
    fakedevices::Set("gate", played);
    ASSERT_TRUE(Has(gate, {"Camera 1-"}));
    EXPECT_EQ(core->Resources().Channels(gate)[0].guid, camera);
    EXPECT_TRUE(component.received.Take("websocket {\"guid\":\"" + group + "\",\"type\":\"groupChange\""));

    played.channels[0].state = QXNET_CHANNEL_RECORDING;
    fakedevices::Set("gate", played);
    ASSERT_TRUE(Has(gate, {"Camera 1+"}));
    played.error = QXNET_ERROR_UNREACHABLE;
    fakedevices::Set("gate", played);
    ASSERT_TRUE(Has(gate, {"Camera 1-"}));
    EXPECT_TRUE(events.texts.Take("operation : Device \"gate\" is offline."));
    EXPECT_EQ(core->Devices().Status(gate).error, QXNET_ERROR_UNREACHABLE);
    played.error = 0;
    fakedevices::Set("gate", played);
    ASSERT_TRUE(Has(gate, {"Camera 1+"}));

    StartCore();
    ASSERT_TRUE(Has(gate, {"Camera 1+"}));
    EXPECT_EQ(core->Resources().Channels(gate)[0].guid, camera);
    ASSERT_TRUE(core->Resources().Remove(gate));
    EXPECT_TRUE(WaitUntil([&] { return core->Devices().Session(gate) == -999; }));
    EXPECT_TRUE(WaitUntil([] { return fakedevices::Sessions("gate") == 0; }));
}

TEST_F(Devices, AreReachedAnewWhenTheirEntryChanges)
{
    fakedevices::Device played = fakedevices::Make(1);
    played.password = "new";
    fakedevices::Set("gate", played);
    const std::string gate = Add("gate");
    ASSERT_TRUE(WaitUntil([&] { return core->Devices().Status(gate).error == QXNET_ERROR_PASSWORD; }));
    framework::DeviceEntry entry;
    ASSERT_TRUE(core->Resources().EntryOf(gate, entry));
    entry.password = "new";
    std::string error;
    ASSERT_TRUE(core->Resources().Edit(gate, entry, error)) << error;
    EXPECT_TRUE(Has(gate, {"Camera 1+"}));
}

} // namespace
