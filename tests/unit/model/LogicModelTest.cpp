#include "UiDataController/Model/LogicModel.h"

#include <gtest/gtest.h>

#include <atomic>
#include <map>
#include <thread>

using namespace UiDataController;

namespace {

struct Logins : IDeviceLogins
{
    std::int32_t Session(const std::string& deviceId) const override
    {
        ++asked;
        const auto found = sessions.find(deviceId);
        return found == sessions.end() ? kNoDevice : found->second;
    }
    std::map<std::string, std::int32_t> sessions;
    mutable std::atomic<int> asked{0};
};

struct Observer : IElementObserver
{
    void OnElements(std::uint64_t version, const ElementChanges& changes) override
    {
        EXPECT_EQ(version, ++versions);
        count += changes.size();
    }
    std::uint64_t versions = 0;
    std::size_t count = 0;
};

class TheModel : public testing::Test
{
protected:
    TheModel() { model->AddObserver(observer); }

    ModelEdits Devices(int devices, int channels)
    {
        ModelEdits edits;
        for (int device = 0; device < devices; ++device) {
            const QID id = "d" + QString::number(device);
            edits.push_back(DeviceResource{id, id, "host", 1, 0});
            for (int channel = 1; channel <= channels; ++channel)
                edits.push_back(ChannelResource{id + "c" + QString::number(channel), id, "g", {}, channel});
        }
        edits.push_back(GroupResource{"g", {}, "All"});
        return edits;
    }

    Logins logins;
    Base::CMessageLoop loop{"test"};
    Observer observer;
    std::unique_ptr<CLogicModel> model = std::make_unique<CLogicModel>(loop, logins);
};

TEST_F(TheModel, TellsOfABatchOfTenThousandChannelsOnce)
{
    model->Apply(Devices(100, 100));
    model->Apply(Devices(100, 100));
    EXPECT_EQ(model->Snapshot().version, 1u);
    EXPECT_EQ(model->Snapshot().elements.size(), 10101u);
    model->Apply({Removal{"g"}});
    loop.Stop();
    EXPECT_EQ(observer.versions, 2u);
    EXPECT_EQ(observer.count, 10101u + 10000u + 10001u); // the group comes behind its channels
}

TEST_F(TheModel, KeepsTheOrderOfChangesThatSeveralThreadsMake)
{
    model->Apply(Devices(8, 8));
    std::vector<std::thread> threads;
    for (int device = 0; device < 4; ++device)
        threads.emplace_back([this, id = "d" + QString::number(device)] {
            for (int i = 0; i < 100; ++i) {
                const auto camera = model->Camera(id + "c1");
                model->Apply(
                    {DeviceHeard{id, i % 2 ? ElementState::Online : ElementState::Offline, {}, 0, 0, {}}});
                (void)camera->DisplayName();
                (void)camera->Login(kLoginOfDevice);
                (void)model->Snapshot();
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    loop.Stop();
    EXPECT_EQ(observer.versions, 401u);
}

TEST_F(TheModel, GivesCamerasAndStorageServersWithTheirSessions)
{
    model->Apply(Devices(1, 2));
    model->Apply({DeviceResource{"s", "Store", "198.51.100.7", 128, 0}});
    const auto camera = model->Camera("d0c2");
    ASSERT_TRUE(camera);
    EXPECT_EQ(model->Camera("d0c2"), camera);
    EXPECT_FALSE(model->Camera("d0") || model->Camera("unknown") || model->Task("d0"));
    EXPECT_EQ(camera->ChannelNumber(), 2);
    EXPECT_EQ(camera->Login(kLoginOfDevice), kLoginFailed) << "nobody has logged in yet";
    EXPECT_EQ(camera->Login(kLoginOfStorageServer), kNoDevice);
    logins.sessions = {{"d0", 5}, {"s", 6}};
    ASSERT_TRUE(camera->SetLinkedServer({"s", "Store", "198.51.100.7", "Group 1", 0}));
    EXPECT_EQ(camera->Login(kLoginOfDevice), 5);
    EXPECT_EQ(camera->Login(kLoginOfStorageServer), 6);
    EXPECT_EQ(model->Task("s")->Login(), 6);
    EXPECT_EQ(model->Task("s")->Address(), "198.51.100.7");
    EXPECT_TRUE(camera->SetLinkedServerId("s"));
    EXPECT_EQ(camera->LinkedServer().diskGroup, 0);
    EXPECT_TRUE(camera->SetLinkedServerId("other"));
    EXPECT_EQ(camera->LinkedServer(), (LinkedStorageServer{"other", {}, {}, {}, -1}));
    model->Apply({DeviceHeard{"d0", ElementState::NotSupported, {}, 15, 6, {}}});
    EXPECT_EQ(camera->DeviceStatus(), ElementState::NotSupported);
    EXPECT_EQ(camera->DeviceInfo().typeCode, 15);
    EXPECT_EQ(camera->DeviceInfo().subType, 6);
}

// A job of a page may hold a camera while the framework removes it, or the program ends.
TEST_F(TheModel, LeavesRemovedCamerasToThoseWhoHoldThem)
{
    model->Apply(Devices(2, 1));
    logins.sessions = {{"d0", 5}, {"d1", 6}};
    const auto removed = model->Camera("d0c1");
    const auto orphan = model->Camera("d1c1");
    EXPECT_TRUE(removed->SetDeviceRecordEnabled(true));
    model->Apply({Removal{"d0"}});
    model.reset();
    for (const auto& camera : {removed, orphan}) {
        logins.asked = 0;
        EXPECT_EQ(camera->Login(kLoginOfDevice), kNoDevice);
        EXPECT_EQ(logins.asked, 0);
        EXPECT_FALSE(camera->SetCaptureEnabled(true) || camera->SetLinkedServerId("s"));
        EXPECT_FALSE(camera->DisplayName().isEmpty());
    }
    EXPECT_TRUE(removed->IsDeviceRecordEnabled());
}

} // namespace
