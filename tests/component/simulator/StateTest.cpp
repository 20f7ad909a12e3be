#include "DeviceStructures/Commands.h"
#include "DeviceStructures/Values.h"
#include "PlainClient.h"
#include "support/DeviceSim.h"
#include "support/WaitUntil.h"

#include "QxNetSDK/Structures.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <utility>

namespace {

using devices::ConfigCommand;
using devices::Field;
using devices::Scope;

/// Another good value in the first member that can have one.
bool ChangeOne(const devices::Layout& layout, std::uint8_t* bytes)
{
    for (const Field& field : layout) {
        if (field.kind == devices::Kind::Nested && ChangeOne(field.nested(), bytes + field.offset))
            return true;
        if (!devices::IsNumber(field) || field.max <= field.min)
            continue;
        const std::int64_t old = devices::ReadNumber(field, bytes + field.offset);
        devices::WriteNumber(field, bytes + field.offset, old == field.min ? field.min + 1 : field.min);
        return true;
    }
    return false;
}

/// Whether the device shows at once and for ever what was set.
bool IsKeptAsItComes(const ConfigCommand& command)
{
    return command.get != 0 && command.set != 0 && command.get != QXNET_GET_CLOCK &&
           command.get != QXNET_GET_WIPER && command.get != QXNET_GET_USERS;
}

std::string PathOf(const ConfigCommand& command, bool gets)
{
    const std::string number = std::to_string(gets ? command.get : command.set);
    if (command.scope == Scope::Item)
        return std::string(gets ? "batch/get/" : "batch/set/") + number +
               "?count=1&condition=76&size=" + std::to_string(command.layout().size);
    return "config/" + number + (command.scope == Scope::Device ? "?channel=0" : "?channel=1");
}

std::string Condition(const ConfigCommand& command)
{
    tagNET_DVR_CHANNEL_GROUP group{};
    group.size = sizeof group;
    group.channel = 1;
    return command.scope == Scope::Item ? std::string(reinterpret_cast<const char*>(&group), sizeof group)
                                        : std::string();
}

std::string Read(PlainClient& client, const ConfigCommand& command)
{
    const bool inBatch = command.scope == Scope::Item;
    const std::string body =
        client.Ask(inBatch ? "POST" : "GET", PathOf(command, true), Condition(command)).body;
    return inBatch && body.size() > 4 ? body.substr(4) : body;
}

int Write(PlainClient& client, const ConfigCommand& command, const std::string& structure)
{
    return client
        .Ask(command.scope == Scope::Item ? "POST" : "PUT", PathOf(command, false),
             Condition(command) + structure)
        .status;
}

template<class Structure>
Structure Get(PlainClient& client, unsigned command, unsigned channel)
{
    const auto answer =
        client.Ask("GET", "config/" + std::to_string(command) + "?channel=" + std::to_string(channel));
    Structure structure{};
    EXPECT_EQ(answer.body.size(), sizeof structure) << command;
    std::memcpy(&structure, answer.body.data(), std::min(answer.body.size(), sizeof structure));
    return structure;
}

template<class Structure>
int Put(PlainClient& client, unsigned command, unsigned channel, Structure structure)
{
    structure.size = sizeof structure;
    return client
        .Ask("PUT", "config/" + std::to_string(command) + "?channel=" + std::to_string(channel),
             std::string(reinterpret_cast<const char*>(&structure), sizeof structure))
        .status;
}

TEST(DeviceSimState, KeepsEveryStructureOverAKill)
{
    DeviceSim sim({"--devices", "1", "--channels", "2", "--first-kind", "recorder"}, DeviceSim::Keeps::State);
    std::map<unsigned, std::string> written;
    {
        PlainClient client(sim.Port());
        ASSERT_EQ(client.Login().status, 200);
        for (const ConfigCommand& command : devices::ConfigCommands()) {
            if (!IsKeptAsItComes(command))
                continue;
            std::string structure = Read(client, command);
            ASSERT_EQ(structure.size(), command.layout().size) << command.parameter;
            ASSERT_TRUE(ChangeOne(command.layout(), reinterpret_cast<std::uint8_t*>(structure.data())));
            ASSERT_LE(Write(client, command, structure), 204) << command.parameter;
            written[command.get] = structure;
        }
        sim.Kill();
    }
    ASSERT_GT(written.size(), 20U);
    ASSERT_TRUE(sim.Restart()) << sim.Output();
    PlainClient client(sim.Port());
    ASSERT_EQ(client.Login().status, 200);
    for (const auto& [number, structure] : written)
        EXPECT_EQ(Read(client, *devices::FindCommand(number)), structure) << number;
}

TEST(DeviceSimState, ADamagedFileIsSetAside)
{
    DeviceSim sim({"--devices", "1", "--channels", "1"}, DeviceSim::Keeps::State);
    {
        PlainClient client(sim.Port());
        ASSERT_EQ(client.Login().status, 200);
        ASSERT_EQ(Put(client, QXNET_SET_CABAC, 1, tagNET_DVR_STREAM_CABAC{}), 204);
        ASSERT_EQ(Get<tagNET_DVR_STREAM_CABAC>(client, QXNET_GET_CABAC, 1).enabled, 0);
    }
    ASSERT_EQ(sim.Stop(), 0);
    std::ofstream(sim.StateFolder() + "device-0/6118-1.state", std::ios::in | std::ios::ate) << "x";
    ASSERT_TRUE(sim.Restart()) << sim.Output();
    PlainClient client(sim.Port());
    ASSERT_EQ(client.Login().status, 200);
    EXPECT_EQ(Get<tagNET_DVR_STREAM_CABAC>(client, QXNET_GET_CABAC, 1).enabled, 1);
    EXPECT_NE(sim.Output().find("6118-1.state is damaged and was set aside"), std::string::npos);
}

TEST(DeviceSimState, LivesOnItsOwn)
{
    DeviceSim sim({"--devices", "1", "--channels", "2", "--first-kind", "recorder", "--reboot-seconds", "1"});
    PlainClient client(sim.Port());
    ASSERT_EQ(client.Login().status, 200);

    auto clock = Get<QxNetClock>(client, QXNET_GET_CLOCK, 0);
    clock.year = 2031;
    clock.month = 2;
    clock.day = 28;
    EXPECT_EQ(Put(client, QXNET_SET_CLOCK, 0, clock), 204);
    EXPECT_EQ(Get<QxNetClock>(client, QXNET_GET_CLOCK, 0).year, 2031);
    clock.day = 30;
    EXPECT_EQ(Put(client, QXNET_SET_CLOCK, 0, clock), 400);

    EXPECT_EQ(Put(client, QXNET_SWITCH_ALARM_OUTPUT, 3, QxNetOutputSwitch{0, 1, {}}), 204);
    EXPECT_EQ(Get<QxNetAlarmStates>(client, QXNET_GET_ALARM_STATES, 0).outputs[0], 4);

    EXPECT_EQ(Put(client, QXNET_SET_WIPER, 2, QxNetWiper{0, QXNET_WIPER_ONCE, 0, 5, {}}), 204);
    EXPECT_EQ(Get<QxNetWiper>(client, QXNET_GET_WIPER, 2).mode, QXNET_WIPER_OFF);
    EXPECT_EQ(client.Ask("POST", "std/get/20131", std::string("\2\0\0\0", 4)).body,
              std::string("\1\0\0\0", 4));

    EXPECT_EQ(Put(client, QXNET_FORMAT_DISK, 0, QxNetDiskFormat{0, 2, {}}), 204);
    EXPECT_EQ(Get<QxNetDiskList>(client, QXNET_GET_DISKS, 0).disks[1].state, QXNET_DISK_FORMATTING);

    EXPECT_EQ(Put(client, QXNET_RESET, 0, QxNetReset{0, QXNET_RESET_SETTINGS, {}}), 204);
    EXPECT_EQ(Get<QxNetAlarmStates>(client, QXNET_GET_ALARM_STATES, 0).outputs[0], 0);

    EXPECT_EQ(Put(client, QXNET_REBOOT, 0, QxNetReboot{}), 204);
    EXPECT_TRUE(WaitUntil([&] { return !PlainClient(sim.Port()).IsConnected(); }));
    EXPECT_TRUE(WaitUntil([&] { return PlainClient(sim.Port()).IsConnected(); }));
    PlainClient after(sim.Port());
    after.session = client.session;
    EXPECT_EQ(after.Ask("GET", "config/20001?channel=0").Header("Vantor-Session"), "ended");
}

TEST(DeviceSimState, UsersMayWhatTheListSays)
{
    DeviceSim sim({"--devices", "1", "--channels", "1"}, DeviceSim::Keeps::State);
    PlainClient client(sim.Port());
    ASSERT_EQ(client.Login().status, 200);
    auto users = Get<QxNetUserList>(client, QXNET_GET_USERS, 0);
    std::strcpy(users.users[5].name, "viewer");
    users.users[5].enabled = 1;
    EXPECT_EQ(Put(client, QXNET_SET_USERS, 0, users), 204);
    QxNetUserPassword password{};
    std::strcpy(password.name, "viewer");
    std::strcpy(password.password, "look only");
    EXPECT_EQ(Put(client, QXNET_SET_USER_PASSWORD, 0, password), 204);
    users.users[0].enabled = 0;
    EXPECT_EQ(Put(client, QXNET_SET_USERS, 0, users), 400);

    sim.Kill();
    ASSERT_TRUE(sim.Restart()) << sim.Output();
    PlainClient viewer(sim.Port());
    viewer.user = "viewer";
    ASSERT_EQ(viewer.Login("look only").status, 200);
    EXPECT_EQ(Get<tagNET_DVR_STREAM_CABAC>(viewer, QXNET_GET_CABAC, 1).enabled, 1);
    EXPECT_EQ(Put(viewer, QXNET_SET_CABAC, 1, tagNET_DVR_STREAM_CABAC{}), 403);

    PlainClient admin(sim.Port());
    ASSERT_EQ(admin.Login().status, 200);
    users.users[0].enabled = 1;
    const QxNetUser gone = std::exchange(users.users[5], QxNetUser{});
    EXPECT_EQ(Put(admin, QXNET_SET_USERS, 0, users), 204);
    EXPECT_EQ(viewer.Ask("GET", "config/6118?channel=1").Header("Vantor-Session"), "ended");
    users.users[7] = gone;
    EXPECT_EQ(Put(admin, QXNET_SET_USERS, 0, users), 204);
    PlainClient again(sim.Port());
    again.user = "viewer";
    EXPECT_EQ(again.Login("look only").status, 401);
}

TEST(DeviceSimState, AListOfUsersThatLetsNoAdministratorInIsRefused)
{
    DeviceSim sim({"--devices", "1", "--channels", "1"});
    PlainClient client(sim.Port());
    ASSERT_EQ(client.Login().status, 200);
    const auto users = Get<QxNetUserList>(client, QXNET_GET_USERS, 0);
    auto stranger = users;
    std::strcpy(stranger.users[0].name, "stranger");
    EXPECT_EQ(Put(client, QXNET_SET_USERS, 0, stranger), 400);
    auto twice = users;
    twice.users[1] = users.users[0];
    EXPECT_EQ(Put(client, QXNET_SET_USERS, 0, twice), 400);
    EXPECT_EQ(PlainClient(sim.Port()).Login().status, 200);
}

} // namespace
