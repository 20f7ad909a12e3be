#include "PlayedDevice.h"
#include "SdkClient.h"

#include "support/WaitUntil.h"

#include <future>

namespace {

/// Closes its connection at the first request but a login after dropped was 0, as a device may that drops an
/// idle one just then. Other connections are served well.
void DropOnce(CWellBehaved& device, std::atomic<int>& dropped, CPlayedConnection& connection)
{
    for (std::string request = connection.Request(); !request.empty(); request = connection.Request()) {
        if (request.find("/session ") == std::string::npos && dropped++ == 0)
            return;
        connection.Send(device.Answer(request));
    }
}

Octets WithText(const char* text)
{
    Octets octets;
    std::strcpy(octets.bytes, text);
    return octets;
}

std::vector<std::thread> Threads(int count, const std::function<void(int)>& work)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
        threads.emplace_back(work, i);
    return threads;
}

void JoinAll(std::vector<std::thread> threads)
{
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace

TEST(SdkConnection, ADroppedReadIsRepeatedOnceAndADroppedWriteNever)
{
    CSdk sdk;
    CWellBehaved device;
    std::atomic<int> dropped = 1;
    CPlayedDevice played([&](CPlayedConnection& connection, int) { DropOnce(device, dropped, connection); });
    const std::int32_t session = CSdk::LogIn(played.Port());
    Octets octets = WithText("kept");
    ASSERT_EQ(NET_DVR_SetDVRConfig(session, 8, 1, &octets, sizeof octets), 1);

    std::uint32_t status = 0;
    tagNET_DVR_STD_CONFIG standard{};
    struct
    {
        std::function<int()> call;
        int requests;
        std::uint32_t error;
    } const rows[] = {
        {[&] { return NET_DVR_SetDVRConfig(session, 8, 1, &octets, sizeof octets); }, 1, 204},
        {[&] { return NET_DVR_SetDeviceConfig(session, 8, 1, "c", 1, &status, &octets, sizeof octets); }, 1,
         204},
        {[&] { return NET_DVR_SetSTDConfig(session, 8, &standard); }, 1, 204},
        {[&] { return NET_DVR_GetDVRConfig(session, 8, 2, &octets, sizeof octets); }, 2, 500},
        {[&] { return NET_DVR_GetDeviceConfig(session, 8, 1, "c", 1, &status, &octets, sizeof octets); }, 2,
         500},
        {[&] { return NET_DVR_GetSTDConfig(session, 8, &standard); }, 2, 500},
    };
    for (const auto& row : rows) {
        // So that the request goes out on a connection that served before.
        ASSERT_EQ(NET_DVR_GetDVRConfig(session, 8, 1, &octets, sizeof octets), 1);
        dropped = 0;
        EXPECT_EQ(row.call(), 0);
        EXPECT_EQ(dropped, row.requests);
        EXPECT_EQ(LastError().code, row.error);
    }
    EXPECT_STREQ(octets.bytes, "kept");
}

TEST(SdkConnection, APasswordThatWasChangedMeanwhileIsTriedOnceHoweverManyCall)
{
    CSdk sdk;
    CWellBehaved device;
    CPlayedDevice played([&](CPlayedConnection& connection, int) { device.Serve(connection); });
    const std::int32_t session = CSdk::LogIn(played.Port());
    device.ForgetSessions();
    device.ChangePassword();
    std::atomic<int> refused = 0;
    JoinAll(Threads(12, [&](int i) {
        Octets octets;
        for (int again = 0; again < 3; ++again) {
            (void)NET_DVR_GetDVRConfig(session, 8, i, &octets, sizeof octets);
            refused += LastError() == ErrorTriple{QXNET_ERROR_PASSWORD, 401, 0};
        }
    }));
    EXPECT_EQ(refused, 36);
    EXPECT_EQ(device.WrongPasswords(), 1);
}

TEST(SdkConnection, ASessionThatTheDeviceEndsAgainAndAgainIsLostAndNoWrongPassword)
{
    CSdk sdk;
    CWellBehaved device;
    CPlayedDevice played([&](CPlayedConnection& connection, int) {
        for (std::string request = connection.Request(); !request.empty(); request = connection.Request()) {
            device.ForgetSessions();
            connection.Send(device.Answer(request));
        }
    });
    const std::int32_t session = CSdk::LogIn(played.Port());
    Octets octets;
    EXPECT_EQ(NET_DVR_GetDVRConfig(session, 8, 1, &octets, sizeof octets), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_CONNECTION_LOST, 0, 0}));
    EXPECT_EQ(device.Logins(), 2);
}

TEST(SdkConnection, CallsOfASessionThatTheDeviceEndedShareOneLogin)
{
    CSdk sdk;
    CWellBehaved device;
    CPlayedDevice played([&](CPlayedConnection& connection, int) { device.Serve(connection); });
    const std::int32_t session = CSdk::LogIn(played.Port());
    const Octets octets;
    for (int round = 1; round <= 3; ++round) {
        device.ForgetSessions();
        std::atomic<int> good = 0;
        JoinAll(
            Threads(12, [&](int i) { good += NET_DVR_SetDVRConfig(session, 8, i, &octets, sizeof octets); }));
        EXPECT_EQ(good, 12);
        EXPECT_EQ(device.Logins(), 1 + round);
    }
}

TEST(SdkConnection, ALogoutEndsTheCallsUnderWayFirstWhichHeldUpNobodyElse)
{
    CSdk sdk;
    CWellBehaved device;
    std::atomic<int> waiting = 0;
    CPlayedDevice played([&](CPlayedConnection& connection, int) {
        for (std::string request = connection.Request(); !request.empty(); request = connection.Request()) {
            if (request.find("/config/") != std::string::npos)
                ++waiting;
            else
                connection.Send(device.Answer(request));
        }
    });
    const std::int32_t session = CSdk::LogIn(played.Port(), 30000);
    std::atomic<int> closed = 0;
    // More than there are connections for: some wait for one.
    auto threads = Threads(10, [&](int) {
        Octets octets;
        if (NET_DVR_GetDVRConfig(session, 8, 1, &octets, sizeof octets) == 0)
            closed += LastError() == ErrorTriple{QXNET_ERROR_CLOSED, 0, 0} ||
                      LastError().code == QXNET_ERROR_HANDLE;
    });
    EXPECT_TRUE(WaitUntil([&] { return waiting == 8; }));
    Octets octets;
    CPlayedDevice other([&](CPlayedConnection& connection, int) { device.Serve(connection); });
    const std::int32_t good = CSdk::LogIn(other.Port());
    EXPECT_EQ(NET_DVR_SetDVRConfig(good, 8, 1, &octets, sizeof octets), 1);
    EXPECT_EQ(closed, 0);
    EXPECT_EQ(QxNet_Logout(session), 1);
    JoinAll(std::move(threads));
    EXPECT_EQ(closed, 10);
}

TEST(SdkConnection, ACleanUpEndsLoginsUnderWay)
{
    std::atomic<int> waiting = 0;
    CPlayedDevice played([&](CPlayedConnection& connection, int) {
        (void)connection.Request();
        ++waiting;
        connection.WaitForEnd();
    });
    std::future<ErrorTriple> login;
    {
        CSdk sdk;
        login = std::async(std::launch::async, [&] {
            EXPECT_EQ(CSdk::LogIn(played.Port(), 30000), -1);
            return LastError();
        });
        EXPECT_TRUE(WaitUntil([&] { return waiting == 1; }));
    }
    ASSERT_EQ(login.wait_for(std::chrono::seconds(5)), std::future_status::ready);
    EXPECT_EQ(login.get(), (ErrorTriple{QXNET_ERROR_CLOSED, 0, 0}));
    EXPECT_EQ(CSdk::LogIn(played.Port()), -1);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_NOT_INITIALISED, 0, 0}));
}

TEST(SdkConnection, AddressesThatLeadNowhereSaySo)
{
    CSdk sdk;
    std::uint16_t freePort = 0;
    {
        CPlayedDevice gone([](CPlayedConnection&, int) {});
        freePort = gone.Port();
    }
    EXPECT_EQ(CSdk::LogIn(freePort), -1);
    EXPECT_EQ(LastError().code, static_cast<std::uint32_t>(QXNET_ERROR_UNREACHABLE));
    EXPECT_NE(LastError().module, 0u);

    QxNetLogin login = CSdk::To(80, 1000);
    std::strcpy(login.address, "no-such-host.invalid");
    EXPECT_EQ(QxNet_Login(&login, nullptr), -1);
    EXPECT_EQ(LastError().code, static_cast<std::uint32_t>(QXNET_ERROR_RESOLVE));

    for (const char* address : {"", "a b", "a\r\nX: y", "a/b"}) {
        std::strcpy(login.address, address);
        EXPECT_EQ(QxNet_Login(&login, nullptr), -1);
        EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_ARGUMENT, 0, 0})) << address;
    }
}

TEST(SdkConnection, WhoDoesNotTakeConnectionsMeetsTheConnectTimeoutOrTheCleanUp)
{
    using boost::asio::ip::tcp;
    boost::asio::io_context context;
    tcp::acceptor full(context, tcp::v4());
    full.bind(tcp::endpoint(boost::asio::ip::address_v4::loopback(), 0));
    full.listen(0);
    const std::uint16_t port = full.local_endpoint().port();
    std::list<tcp::socket> waiting;
    for (int i = 0; i < 4; ++i) {
        waiting.emplace_back(context, tcp::v4());
        waiting.back().async_connect(full.local_endpoint(), [](const boost::system::error_code&) {});
    }
    std::future<ErrorTriple> login;
    {
        CSdk sdk;
        EXPECT_EQ(CSdk::LogIn(port, 150), -1);
        EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_CONNECT_TIMEOUT, 0, 0}));
        std::promise<void> begun;
        login = std::async(std::launch::async, [&] {
            begun.set_value();
            EXPECT_EQ(CSdk::LogIn(port, 30000), -1);
            return LastError();
        });
        begun.get_future().wait();
    }
    ASSERT_EQ(login.wait_for(std::chrono::seconds(10)), std::future_status::ready);
    EXPECT_THAT(login.get().code, testing::AnyOf(QXNET_ERROR_CLOSED, QXNET_ERROR_NOT_INITIALISED));
}

TEST(SdkConnection, ARefusalDuringALongRequestIsHeard)
{
    CSdk sdk;
    CWellBehaved device;
    CPlayedDevice played([&](CPlayedConnection& connection, int) {
        connection.Send(device.Answer(connection.Request()));
        connection.Send(device.Answer(connection.Request()));
        connection.BeginRequest();
        connection.Send(AnswerBytes("413 Long", "Vantor-Error: 502\r\n"));
        connection.Linger();
    });
    const std::int32_t session = CSdk::LogIn(played.Port());
    // More than the system takes at once: the device stops reading in the middle.
    std::vector<char> much(16 << 20);
    EXPECT_EQ(NET_DVR_SetDVRConfig(session, 8, 1, much.data(), static_cast<std::uint32_t>(much.size())), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_VALUE, 0, 0}));
}
