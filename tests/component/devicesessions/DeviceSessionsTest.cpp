#include "DeviceSessions/DeviceSessions.h"

#include "support/FakeDevices.h"
#include "support/WaitUntil.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <mutex>

using namespace devices;
using std::chrono::milliseconds;

namespace {

SessionLimits Quick()
{
    SessionLimits limits;
    limits.watch = milliseconds(20);
    limits.answer = milliseconds(200);
    limits.again = milliseconds(10);
    limits.longest = milliseconds(40);
    limits.threads = 8;
    return limits;
}

class DeviceSessions : public testing::Test
{
protected:
    void TearDown() override
    {
        sessions.reset();
        for (const auto& [id, status] : told)
            EXPECT_EQ(fakedevices::Sessions(id), 0) << id;
        fakedevices::Clear();
    }

    void Hear(const DeviceStatus& status)
    {
        std::lock_guard<std::mutex> lock(mutex);
        told[status.id] = status;
        states.push_back(status.state);
    }

    void Left(std::int32_t login)
    {
        std::lock_guard<std::mutex> lock(mutex);
        left.push_back(login);
    }

    DeviceStatus Told(const std::string& id)
    {
        std::lock_guard<std::mutex> lock(mutex);
        return told[id];
    }

    bool Becomes(const std::string& id, SessionState state, std::uint32_t error = 0)
    {
        return WaitUntil([&] { return Told(id).state == state && Told(id).error == error; });
    }

    void Add(const std::string& host, const std::string& password = {})
    {
        sessions->Set({host, host, 8000, "admin", password, false});
    }

    std::mutex mutex;
    std::map<std::string, DeviceStatus> told;
    std::vector<SessionState> states;
    std::vector<std::int32_t> left; ///< sessions that ended
    std::unique_ptr<CDeviceSessions> sessions =
        std::make_unique<CDeviceSessions>([this](const DeviceStatus& status) { Hear(status); }, Quick());
};

TEST_F(DeviceSessions, FollowADeviceThatGoesAndComesBack)
{
    fakedevices::Device device = fakedevices::Make(130);
    fakedevices::Set("a", device);
    Add("a");
    ASSERT_TRUE(Becomes("a", SessionState::Online));
    ASSERT_EQ(Told("a").channels.size(), 130u);
    EXPECT_EQ(Told("a").channels[129].name, "Camera 130");
    const std::int32_t first = sessions->Session("a");
    EXPECT_GE(first, 0);

    // Quiet looks read one page only; a change of the last page is found by the count.
    const int before = fakedevices::Pages("a");
    ASSERT_TRUE(WaitUntil([&] { return fakedevices::Pages("a") > before + 5; }));
    std::strcpy(device.channels[129].name, "Y\xC3\xA4rd\x01\xFF");
    ++device.changes;
    fakedevices::Set("a", device);
    EXPECT_TRUE(WaitUntil([&] { return Told("a").channels[129].name == "Y\xC3\xA4rd??"; }));

    device.error = QXNET_ERROR_CONNECTION_LOST;
    fakedevices::Set("a", device);
    ASSERT_TRUE(Becomes("a", SessionState::Offline, QXNET_ERROR_CONNECTION_LOST));
    EXPECT_EQ(sessions->Session("a"), -1);
    EXPECT_EQ(Told("a").channels.size(), 130u);
    device.error = 0;
    fakedevices::Set("a", device);
    ASSERT_TRUE(Becomes("a", SessionState::Online));
    EXPECT_GT(sessions->Session("a"), first);
    using S = SessionState;
    EXPECT_THAT(states, testing::ElementsAre(S::Connecting, S::Online, S::Online, S::Offline, S::Online));
}

TEST_F(DeviceSessions, NoticeADeviceThatDiesAmongManyThatDoNotAnswer)
{
    fakedevices::Device dead = fakedevices::Make(1);
    dead.error = QXNET_ERROR_ANSWER_TIMEOUT;
    for (int number = 0; number < 100; ++number) {
        fakedevices::Set("dead" + std::to_string(number), dead);
        fakedevices::Set("well" + std::to_string(number), fakedevices::Make(1));
        Add("dead" + std::to_string(number));
    }
    for (int number = 0; number < 100; ++number)
        Add("well" + std::to_string(number));
    const auto isWell = [&](int number) {
        return Told("well" + std::to_string(number)).state == SessionState::Online;
    };
    ASSERT_TRUE(WaitUntil([&] { return isWell(99); }, std::chrono::seconds(30)));
    const auto begin = std::chrono::steady_clock::now();
    dead.error = QXNET_ERROR_UNREACHABLE;
    fakedevices::Set("well50", dead);
    EXPECT_TRUE(Becomes("well50", SessionState::Offline, QXNET_ERROR_UNREACHABLE));
    // The logins to the dead ones take 5 s a round.
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
}

// Whoever asks for a session, and the end of the program, do not wait for devices that do not answer.
TEST_F(DeviceSessions, LetNobodyWaitForADeviceThatHangs)
{
    SessionLimits limits = Quick();
    limits.answer = std::chrono::minutes(1);
    sessions = std::make_unique<CDeviceSessions>([this](const DeviceStatus& status) { Hear(status); }, limits,
                                                 [this](std::int32_t login) { Left(login); });
    fakedevices::Device device = fakedevices::Make(1);
    fakedevices::Set("dies", device);
    Add("dies");
    ASSERT_TRUE(Becomes("dies", SessionState::Online));
    const std::int32_t login = sessions->Session("dies");
    device.error = QXNET_ERROR_ANSWER_TIMEOUT;
    for (const char* host : {"dies", "hangs", "too"})
        fakedevices::Set(host, device);
    Add("hangs");
    Add("too");
    ASSERT_TRUE(WaitUntil([] { return fakedevices::Hanging() == 3; }));
    const auto begin = std::chrono::steady_clock::now();
    DeviceStatus status;
    EXPECT_EQ(sessions->Session("hangs"), -1);
    EXPECT_EQ(sessions->Session("dies"), login);
    EXPECT_TRUE(sessions->Status("hangs", status));
    sessions->Remove("too");
    sessions.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
    EXPECT_EQ(left, std::vector<std::int32_t>{login});
}

TEST_F(DeviceSessions, WaitLongAfterAWrongPasswordUnlessAsked)
{
    fakedevices::Device device = fakedevices::Make(1);
    device.password = "right";
    fakedevices::Set("a", device);
    Add("a", "wrong");
    ASSERT_TRUE(Becomes("a", SessionState::Offline, QXNET_ERROR_PASSWORD));
    device.error = QXNET_ERROR_UNREACHABLE;
    fakedevices::Set("b", device);
    Add("b");
    ASSERT_TRUE(WaitUntil([&] { return fakedevices::Logins("b") > 5; }));
    EXPECT_EQ(fakedevices::Logins("a"), 1);
    sessions->TryNow("a");
    EXPECT_TRUE(WaitUntil([&] { return fakedevices::Logins("a") == 2; }));
    Add("a", "right");
    EXPECT_TRUE(Becomes("a", SessionState::Online));
}

TEST_F(DeviceSessions, TellNothingOfARemovedDeviceAndBelieveNoNonsense)
{
    fakedevices::Set("a", fakedevices::Make(2));
    Add("a");
    ASSERT_TRUE(Becomes("a", SessionState::Online));
    sessions->Remove("a");
    EXPECT_EQ(sessions->Session("a"), -999);
    EXPECT_TRUE(WaitUntil([] { return fakedevices::Sessions("a") == 0; }));

    fakedevices::Device device = fakedevices::Make(2);
    const std::pair<const char*, std::function<void(fakedevices::Device&)>> rows[] = {
        {"counts", [](auto& bad) { bad.info.alarmInputs = 513; }},
        {"numbers", [](auto& bad) { bad.channels[1].channel = 7; }},
        {"states", [](auto& bad) { bad.channels[0].state = 3; }},
        {"sizes", [](auto& bad) { bad.info.size = 1; }}};
    for (const auto& [name, spoil] : rows) {
        fakedevices::Device bad = device;
        spoil(bad);
        fakedevices::Set(name, bad);
        Add(name);
        EXPECT_TRUE(Becomes(name, SessionState::Offline, QXNET_ERROR_UNREADABLE)) << name;
    }
}

} // namespace
