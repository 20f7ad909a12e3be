#include "PlainClient.h"
#include "support/DeviceSim.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

constexpr const char* kRequest = "config/6118?channel=1";
constexpr std::size_t kSize = 36;

class DeviceSimFaults : public testing::Test
{
protected:
    /// What a logged-in client gets for one request under a rule.
    PlainClient::Answer Under(const std::string& rule)
    {
        m_client = std::make_unique<PlainClient>(m_sim.Port());
        m_sim.SetFaults("[]");
        EXPECT_EQ(m_client->Login().status, 200);
        m_sim.SetFaults("[{\"path\":\"config/6118\",\"times\":1," + rule + "}]");
        return m_client->Ask("GET", kRequest);
    }

    DeviceSim m_sim{{"--devices", "1", "--channels", "2"}};
    std::unique_ptr<PlainClient> m_client;
};

TEST_F(DeviceSimFaults, HappenAsOftenAsTheRuleSays)
{
    const auto answer = Under(R"("fault":"error","status":507,"error":505,"module":7,"own":99)");
    EXPECT_EQ(answer.status, 507);
    EXPECT_EQ(answer.Header("Vantor-Error"), "505");
    EXPECT_EQ(answer.Header("Vantor-Module-Error"), "7");
    EXPECT_EQ(answer.Header("Vantor-Own-Error"), "99");
    EXPECT_EQ(m_client->Ask("GET", kRequest).status, 200);
}

TEST_F(DeviceSimFaults, MeanOnlyWhatTheyName)
{
    struct Row
    {
        const char* rule;
        bool isMeant;
    };
    const Row rows[] = {
        {R"("path":"*")", true},           {R"("path":"config")", true},
        {R"("path":"config/611")", false}, {R"("device":0,"channel":1,"method":"GET")", true},
        {R"("device":1)", false},          {R"("channel":2)", false},
        {R"("method":"PUT")", false},      {R"("path":"session")", false},
        {R"("times":0)", false},
    };
    PlainClient client(m_sim.Port());
    ASSERT_EQ(client.Login().status, 200);
    for (const Row& row : rows) {
        m_sim.SetFaults(std::string("[{\"fault\":\"error\",") + row.rule + "}]");
        EXPECT_EQ(client.Ask("GET", kRequest).status, row.isMeant ? 500 : 200) << row.rule;
    }
}

TEST_F(DeviceSimFaults, SpoilAnswers)
{
    EXPECT_EQ(Under(R"("fault":"truncate","bytes":6)").body.size(), kSize - 6);
    EXPECT_EQ(Under(R"("fault":"oversize","bytes":9)").body.size(), kSize + 9);
    EXPECT_EQ(Under(R"("fault":"version","version":3)").Header("Vantor-Protocol"), "3");
    EXPECT_GT(Under(R"("fault":"headers","count":500)").headers.size(), 500U);
    EXPECT_EQ(Under(R"("fault":"no-keep-alive")").status, 200);
    EXPECT_EQ(m_client->Ask("GET", kRequest).status, 0);
    EXPECT_EQ(Under(R"("fault":"refuse")").status, 0);
    EXPECT_EQ(m_client->ReceiveRaw(), "");

    Under(R"("fault":"cut","bytes":20)");
    EXPECT_EQ(m_client->ReceiveRaw(), "HTTP/1.1 200 OK\r\nVan");
    Under(R"("fault":"garbage","bytes":50)");
    EXPECT_EQ(m_client->ReceiveRaw().size(), 50U);
}

TEST_F(DeviceSimFaults, TakeTheirTime)
{
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    EXPECT_EQ(Under(R"("fault":"delay","ms":300)").body.size(), kSize);
    EXPECT_GE(Clock::now() - begin, std::chrono::milliseconds(300));
    const auto dripping = Clock::now();
    EXPECT_EQ(Under(R"("fault":"drip","ms":2)").body.size(), kSize);
    EXPECT_GE(Clock::now() - dripping, std::chrono::milliseconds(2 * kSize));
}

TEST_F(DeviceSimFaults, LeaveOthersAlone)
{
    PlainClient waiting(m_sim.Port());
    ASSERT_EQ(waiting.Login().status, 200);
    m_sim.SetFaults(R"([{"path":"config/6118","channel":1,"fault":"silent"},
                        {"path":"config/6118","times":1,"fault":"length","bytes":4294967296}])");
    ASSERT_TRUE(waiting.Send(waiting.Head("GET", kRequest, "")));
    PlainClient other(m_sim.Port());
    ASSERT_EQ(other.Login().status, 200);
    const std::string second = "config/6118?channel=2";
    ASSERT_TRUE(other.Send(other.Head("GET", second, "")));
    EXPECT_NE(other.ReceiveRaw(100).find("Content-Length: 4294967296"), std::string::npos);
    PlainClient third(m_sim.Port());
    ASSERT_EQ(third.Login().status, 200);
    EXPECT_EQ(third.Ask("GET", second).status, 200);
}

TEST_F(DeviceSimFaults, ABadFileIsToldAndChangesNothing)
{
    PlainClient client(m_sim.Port());
    ASSERT_EQ(client.Login().status, 200);
    m_sim.SetFaults(R"({"rules":[{"fault":"error","path":"config"}],
                        "channels":[{"device":0,"channel":2,"name":"Yard","state":0}]})");
    EXPECT_EQ(client.Ask("GET", kRequest).status, 500);
    m_sim.SetFaults(R"([{"fault":"eror"}])");
    EXPECT_EQ(client.Ask("GET", kRequest).status, 500);
    EXPECT_NE(m_sim.Output().find("unknown fault \"eror\""), std::string::npos);
    m_sim.SetFaults("[]");
    const std::string page = client.Ask("GET", "config/20002?channel=1").body;
    ASSERT_EQ(page.size(), 5152U);
    EXPECT_STREQ(page.data() + 16 + 80 + 8, "Yard");
    EXPECT_EQ(page[12], 2);
}

TEST(DeviceSimVoice, HasItsFaultsWhenItEnds)
{
    DeviceSim sim({"--devices", "1"});
    sim.SetFaults(R"([{"path": "voice", "fault": "version", "version": 2, "times": 1}])");
    PlainClient speaker(sim.Port());
    ASSERT_EQ(speaker.Login().status, 200);
    for (const char* version : {"2", "1"}) {
        ASSERT_TRUE(speaker.Send(
            speaker.Head("POST", "voice/1?encoding=0&rate=8000", "Transfer-Encoding: chunked\r\n") +
            "1\r\nx\r\n0\r\n\r\n"));
        const auto answer = speaker.Receive();
        EXPECT_EQ(answer.status, 204);
        EXPECT_EQ(answer.Header("Vantor-Protocol"), version);
    }
}

} // namespace
