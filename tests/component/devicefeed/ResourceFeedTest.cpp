#include "logical/SDK/Session/ResourceCentre.h"
#include "support/CapturedLog.h"
#include "support/FakeDevices.h"
#include "support/WaitUntil.h"

#include <gmock/gmock.h>

#include <map>

using testing::ElementsAre;
using testing::IsEmpty;
using namespace UiDataController;
using namespace std::chrono_literals;

namespace {

/// The framework's list, which a test changes while it is being read.
struct Directory : video::IResourceDirectory
{
    bool Devices(std::vector<protocol::DeviceResponseData>& list) const override
    {
        const std::lock_guard<std::mutex> lock(mutex);
        ++reads;
        for (const auto& [id, device] : devices)
            list.push_back(device);
        if (duringTheRead)
            duringTheRead();
        return reads > failures;
    }
    bool Device(const std::string& id, protocol::DeviceResponseData& device) const override
    {
        const std::lock_guard<std::mutex> lock(mutex);
        ++asked;
        const auto found = devices.find(id);
        if (found != devices.end())
            device = found->second;
        return found != devices.end();
    }
    bool Channels(const std::string& id, std::vector<protocol::DeviceChannelInfo>& list) const override
    {
        const std::lock_guard<std::mutex> lock(mutex);
        const auto found = channels.find(id);
        if (found != channels.end())
            list = found->second;
        return found != channels.end();
    }
    bool Groups(std::vector<protocol::GroupInfo>& list) const override
    {
        list = {{"g", "", "Yard", {"a1"}}};
        return true;
    }

    void Put(const std::string& id, int count, const std::string& user = "admin")
    {
        const std::lock_guard<std::mutex> lock(mutex);
        protocol::DeviceResponseData& device = devices[id];
        device.guid = device.name = id;
        device.address = "198.51.100.1";
        device.userName = user;
        for (int number = 1; number <= count; ++number)
            channels[id].push_back({id + std::to_string(number), id, "", "", number, true});
    }

    mutable std::mutex mutex;
    mutable int reads = 0;
    mutable int asked = 0; ///< for single devices
    int failures = 0;      ///< of the first reads
    std::function<void()> duringTheRead;
    std::map<std::string, protocol::DeviceResponseData> devices;
    std::map<std::string, std::vector<protocol::DeviceChannelInfo>> channels;
};

struct Pool : video::ISessionPool
{
    bool Start(OnStatus onStatus) override
    {
        tell = std::move(onStatus);
        return true;
    }
    void End() override { tell = nullptr; }
    void Set(const devices::DeviceAddress& address) override
    {
        const std::lock_guard<std::mutex> lock(mutex);
        addresses[address.id] = address;
    }
    void Remove(const std::string& id) override
    {
        const std::lock_guard<std::mutex> lock(mutex);
        addresses.erase(id);
    }
    std::int32_t Session(const std::string&) const override { return kNoDevice; }
    std::size_t Count() const
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return addresses.size();
    }

    OnStatus tell;
    mutable std::mutex mutex;
    std::map<std::string, devices::DeviceAddress> addresses;
};

class TheFeed : public testing::Test
{
protected:
    ~TheFeed() override { centre.Stop(); }

    void Notify(const std::string& type, const std::string& id, const std::string& data = "null")
    {
        protocol::WebSocketNotifyData notification;
        notification.type = type;
        notification.guid = id;
        notification.data.text = data;
        centre.OnNotification(notification);
    }
    std::vector<std::string> Ids()
    {
        std::vector<std::string> ids;
        for (const ElementInfo& element : centre.Model().Snapshot().elements)
            ids.push_back(element.id.toStdString());
        return ids;
    }
    testing::AssertionResult Shows(const std::vector<std::string>& ids)
    {
        if (WaitUntil([&] { return Ids() == ids; }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << testing::PrintToString(Ids());
    }

    Directory directory;
    Pool pool;
    Base::CMessageLoop loop{"test"};
    video::CResourceCentre centre{loop, directory, pool, {1ms, 4ms}};
};

TEST_F(TheFeed, LosesNoNotificationThatComesDuringTheFirstRead)
{
    directory.Put("a", 2);
    directory.Put("b", 0);
    directory.duringTheRead = [this] {
        directory.devices["c"] = directory.devices["b"];
        directory.devices["c"].guid = "c";
        directory.channels["c"] = {};
        directory.channels["a"][1].name = "Old";
        Notify("deviceAdd", "c");
        Notify("channelAdd", "c1", R"({"guid":"c1","deviceGuid":"c","channelNo":1})");
        Notify("channelChange", "a2", R"({"guid":"a2","deviceGuid":"a","channelNo":2,"name":"New"})");
        Notify("channelAdd", "x1", R"({"guid":"x1","deviceGuid":"x","channelNo":1})");
        Notify("groupAdd", "h", R"({"guid":"h","parentGuid":"g","name":"Door","channelGuids":["c1"]})");
        Notify("deviceRemove", "b");
    };
    centre.Start();
    EXPECT_TRUE(Shows({"a", "c", "g", "h", "a1", "a2", "c1"}));
    EXPECT_EQ(centre.Model().Find("a2")->name, "New");
    EXPECT_EQ(centre.Model().Find("a1")->groupId, "g");
    EXPECT_EQ(centre.Model().Find("c1")->groupId, "h");
    EXPECT_TRUE(WaitUntil([this] { return pool.Count() == 2; }));
}

TEST_F(TheFeed, AsksAgainForWhatItCouldNotRead)
{
    directory.Put("a", 1);
    directory.channels.clear();
    directory.failures = 3;
    centre.Start();
    EXPECT_TRUE(Shows({"a", "g"}));
    Notify("deviceAdd", "b");
    directory.Put("b", 1);
    directory.Put("a", 1);
    EXPECT_TRUE(Shows({"a", "b", "g", "a1", "b1"}));
    EXPECT_EQ(directory.reads, 4);
}

TEST_F(TheFeed, AsksOnceForADeviceThatAFloodOfNotificationsNames)
{
    const CapturedLog log;
    video::CResourceCentre patient{loop, directory, pool, {1h, 1h}};
    patient.Start();
    EXPECT_TRUE(WaitUntil([&] { return patient.Model().Find("g").has_value(); }));
    protocol::WebSocketNotifyData notification;
    notification.type = "deviceAdd";
    for (const std::string& id : {std::string("unknown"), std::string(2000, 'g')}) {
        notification.guid = id;
        for (int i = 0; i < 100; ++i)
            patient.OnNotification(notification);
    }
    notification.type = "groupAdd";
    notification.data.text = R"({"guid":"last","name":"Last"})";
    patient.OnNotification(notification);
    EXPECT_TRUE(WaitUntil([&] { return patient.Model().Find("last").has_value(); }));
    EXPECT_LE(directory.asked, 1);
    EXPECT_LE(log.Errors().size(), 10u);
}

TEST_F(TheFeed, ReadsEverythingAnewWhenTooMuchWaits)
{
    directory.Put("a", 1);
    directory.Put("gone", 1);
    centre.Start();
    EXPECT_TRUE(Shows({"a", "gone", "g", "a1", "gone1"}));
    {
        const std::lock_guard<std::mutex> lock(directory.mutex);
        directory.devices.erase("gone");
        Notify("deviceChange", "a"); // for its answer the feed waits meanwhile
        for (std::size_t i = 0; i < 2 * video::CResourceFeed::kMostWaiting + 2; ++i)
            Notify("channelRemove", "nobody");
    }
    directory.Put("late", 1);
    Notify("deviceAdd", "late");
    EXPECT_TRUE(Shows({"a", "late", "g", "a1", "late1"}));
    EXPECT_TRUE(WaitUntil([this] { return pool.Count() == 2; }));
}

TEST_F(TheFeed, ShowsWhatSessionsTellAndWhyThereIsNone)
{
    directory.Put("a", 1);
    directory.Put("nobody", 0, "");
    centre.Start();
    EXPECT_TRUE(Shows({"a", "nobody", "g", "a1"}));
    EXPECT_TRUE(WaitUntil([this] { return pool.Count() == 1; }));
    EXPECT_TRUE(centre.Model().Find("nobody")->problem.contains("password"));
    devices::DeviceStatus status;
    status.id = "a";
    status.state = devices::SessionState::Online;
    status.channels = {{1, QXNET_CHANNEL_RECORDING, "Gate"}};
    pool.tell(status);
    EXPECT_EQ(centre.Model().Find("a1")->name, "Gate");
    EXPECT_EQ(centre.Model().Counts().channelsOnline, 1u);
    status.state = devices::SessionState::Offline;
    status.error = QXNET_ERROR_VERSION;
    status.moduleError = 9;
    pool.tell(status);
    EXPECT_EQ(centre.Model().Find("a1")->state, ElementState::NotSupported);
    EXPECT_TRUE(centre.Model().Find("a")->problem.contains("version 9"));
}

TEST_F(TheFeed, SaysWhichNotificationItCannotRead)
{
    const CapturedLog log;
    directory.Put("a", 1);
    centre.Start();
    EXPECT_TRUE(Shows({"a", "g", "a1"}));
    Notify("channelChange", "a1", R"({"guid":7})");
    Notify("groupChange", "g", "{");
    Notify("channelRemove", "a1");
    EXPECT_TRUE(Shows({"a", "g"}));
    EXPECT_EQ(log.Count("The notification [channelChange] of [a1] cannot be read."), 1u);
    EXPECT_EQ(log.Errors().size(), 2u);
}

TEST(TheCentre, LetsNeitherPagesNorItsEndWaitForADeviceThatHangs)
{
    fakedevices::Device device = fakedevices::Make(1);
    device.error = QXNET_ERROR_ANSWER_TIMEOUT;
    fakedevices::Set("198.51.100.1", device);
    devices::SessionLimits limits;
    limits.answer = 1min;
    Directory directory;
    directory.Put("a", 1);
    Base::CMessageLoop loop("test");
    video::CSessionPool pool("", limits);
    video::CResourceCentre centre(loop, directory, pool);
    centre.Start();
    std::shared_ptr<ICamera> camera;
    ASSERT_TRUE(WaitUntil([&] { return (camera = centre.Model().Camera("a1")) != nullptr; }));
    ASSERT_TRUE(WaitUntil([] { return fakedevices::Hanging() == 1; }));
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(camera->Login(kLoginOfDevice), kLoginFailed);
    centre.Stop();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 10s);
    EXPECT_EQ(camera->Login(kLoginOfDevice), kLoginFailed);
    fakedevices::Clear();
}

} // namespace
