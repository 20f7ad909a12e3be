#include "PlainClient.h"
#include "simulator/protocol/Digest.h"
#include "support/DeviceSim.h"
#include "support/WaitUntil.h"

#include <gtest/gtest.h>

#include <future>
#include <list>

namespace {

TEST(DeviceSimLimits, FiveWrongPasswordsLockTheDeviceForAWhile)
{
    DeviceSim sim({"--devices", "2", "--channels", "1", "--lock-seconds", "1"});
    PlainClient client(sim.Port());
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(client.Login("wrong").status, 401);
    const auto locked = client.Login();
    EXPECT_EQ(locked.status, 423);
    EXPECT_EQ(locked.Header("Vantor-Error"), "401");
    EXPECT_EQ(PlainClient(sim.Port(1)).Login().status, 200);
    EXPECT_TRUE(WaitUntil([&] { return client.Login().status == 200; }));
}

TEST(DeviceSimLimits, ANonceIsGoodForOneLogin)
{
    DeviceSim sim({"--devices", "1"});
    PlainClient client(sim.Port());
    ASSERT_EQ(client.Login().status, 200);
    client.authorization = client.lastCredentials;
    const auto again = client.Ask("POST", "session");
    EXPECT_EQ(again.status, 401);
    EXPECT_NE(again.Header("WWW-Authenticate").find("stale=true"), std::string::npos);
}

TEST(DeviceSimLimits, CredentialsWithoutANonceAreWrong)
{
    DeviceSim sim({"--devices", "1"});
    PlainClient client(sim.Port());
    const std::string uri = "/vantor/device/v1/session";
    const std::string realm = simulator::kRealm;
    const std::string proof =
        simulator::Sha256Hex(simulator::DigestSecret("admin", "vantor-device") +
                             "::00000001:c:auth:" + simulator::Sha256Hex("POST:" + uri));
    client.authorization = "Digest username=\"admin\", realm=\"" + realm + "\", uri=\"" + uri +
                           "\", algorithm=SHA-256, qop=auth, nc=00000001, cnonce=\"c\", response=\"" + proof +
                           '"';
    EXPECT_EQ(client.Ask("POST", "session").status, 401);
}

TEST(DeviceSimLimits, SessionsEndAndAreCounted)
{
    DeviceSim sim({"--devices", "1", "--sessions", "2", "--session-seconds", "1"});
    PlainClient one(sim.Port());
    PlainClient two(sim.Port());
    PlainClient three(sim.Port());
    ASSERT_EQ(one.Login().status, 200);
    ASSERT_EQ(two.Login().status, 200);
    EXPECT_EQ(three.Login().status, 429);
    EXPECT_EQ(one.Ask("DELETE", "session").status, 204);
    EXPECT_EQ(one.Ask("GET", "config/20001?channel=0").status, 401);
    // What is not used for a second ends, and then there is room again.
    EXPECT_EQ(three.Login().status, 200);
    EXPECT_TRUE(WaitUntil([&] { return PlainClient(sim.Port()).Login().status == 200; }));
}

TEST(DeviceSimLimits, RequestsOverALimitAreRefused)
{
    struct Row
    {
        const char* what;
        std::string lines;
        int status;
    };
    std::string manyLines;
    for (int i = 0; i < 70; ++i)
        manyLines += "A" + std::to_string(i) + ": b\r\n";
    const Row rows[] = {
        {"a long line", "Filler: " + std::string(9000, 'x') + "\r\n", 431},
        {"long headers",
         "F: " + std::string(8000, 'x') + "\r\nG: " + std::string(8000, 'x') +
             "\r\nH: " + std::string(8000, 'x') + "\r\n",
         431},
        {"many headers", manyLines, 431},
        {"a long body", "Content-Length: 16777217\r\n", 413},
        {"an endless body", "Content-Length: 18446744073709551615\r\n", 413},
        {"no number", "Content-Length: x\r\n", 400},
        {"chunks", "Transfer-Encoding: chunked\r\n", 400},
    };
    DeviceSim sim({"--devices", "1"});
    for (const Row& row : rows) {
        PlainClient client(sim.Port());
        ASSERT_EQ(client.Login().status, 200);
        ASSERT_TRUE(client.Send(client.Head("PUT", "config/6119?channel=1", row.lines))) << row.what;
        EXPECT_EQ(client.Receive().status, row.status) << row.what;
        EXPECT_EQ(client.ReceiveRaw(), "") << row.what;
    }
}

TEST(DeviceSimLimits, AConnectionTooManyIsClosed)
{
    DeviceSim sim({"--devices", "1"});
    std::list<PlainClient> clients;
    for (int i = 0; i < 256; ++i)
        EXPECT_EQ(clients.emplace_back(sim.Port()).Ask("POST", "session").status, 401);
    EXPECT_EQ(PlainClient(sim.Port()).Ask("POST", "session").status, 0);
    clients.pop_back();
    EXPECT_TRUE(WaitUntil([&] { return PlainClient(sim.Port()).Login().status == 200; }));
}

TEST(DeviceSimLimits, TwoHundredLogInAtOnce)
{
    DeviceSim sim({"--devices", "1"});
    std::vector<std::future<int>> logins;
    for (int i = 0; i < 200; ++i)
        logins.push_back(std::async(std::launch::async, [&sim] {
            PlainClient client(sim.Port());
            client.Login();
            return client.Ask("GET", "config/1008?channel=1").status;
        }));
    for (auto& login : logins)
        EXPECT_EQ(login.get(), 200);
}

TEST(DeviceSimLimits, RefusesWhatIsNotItsOwn)
{
    struct Row
    {
        const char* method;
        const char* path;
        std::size_t body;
        int status;
        const char* error;
    };
    const Row rows[] = {
        {"GET", "config/6118?channel=5", 0, 404, "501"},
        {"GET", "config/6118?channel=0", 0, 404, "501"},
        {"GET", "config/6119?channel=1", 0, 404, "500"},
        {"GET", "config/3352?channel=1", 0, 404, "500"},
        {"GET", "config/6118", 0, 400, "502"},
        {"GET", "config/6118?channel=99999999999", 0, 400, "502"},
        {"PUT", "config/6119?channel=1", 35, 400, "502"},
        {"PUT", "config/6119?channel=1", 36, 400, "502"},
        {"POST", "batch/get/3352?count=257&condition=76&size=4", 76, 400, "502"},
        {"POST", "batch/get/3352?count=1&condition=76&size=4", 76, 400, "502"},
        {"POST", "std/get/6118", 3, 400, "502"},
        {"GET", "nothing/1", 0, 404, "500"},
        {"GET", "ability/9?channel=1", 0, 404, "500"},
        {"GET", "ability/1?channel=5", 0, 404, "501"},
        {"GET", "ability/1?channel=1", 0, 200, ""},
    };
    DeviceSim sim({"--devices", "1", "--channels", "4"});
    PlainClient client(sim.Port());
    ASSERT_EQ(client.Login().status, 200);
    for (const Row& row : rows) {
        const auto answer = client.Ask(row.method, row.path, std::string(row.body, '\0'));
        EXPECT_EQ(answer.status, row.status) << row.path;
        EXPECT_EQ(answer.Header("Vantor-Error"), row.error) << row.path;
    }
    client.version = "2";
    EXPECT_EQ(client.Ask("GET", "config/6118?channel=1").status, 505);
}

} // namespace
