#include "PlayedDevice.h"
#include "SdkClient.h"

#include <chrono>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uint32_t kTimeoutMs = 200;
constexpr char kOk[] = "HTTP/1.1 200 OK\r\nVantor-Protocol: 1\r\n";

std::string GoodOctets()
{
    const Octets octets;
    return {reinterpret_cast<const char*>(&octets), sizeof octets};
}

std::string Repeated(const std::string& text, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

enum class Then { Close, Wait };

/// What a device answers to a read, and how the call ends.
struct Row
{
    const char* name;
    std::string bytes;
    Then then;
    ErrorTriple error;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

std::vector<Row> Rows()
{
    const std::string length = "Content-Length: 32\r\n\r\n";
    const std::string refused = "HTTP/1.1 500 Failed\r\nVantor-Protocol: 1\r\nContent-Length: 0\r\n";
    return {
        {"nothing, closed", "", Then::Close, {QXNET_ERROR_CONNECTION_LOST, 0, 0}},
        {"nothing, silent", "", Then::Wait, {QXNET_ERROR_ANSWER_TIMEOUT, 0, 0}},
        {"no HTTP", "SSH-2.0-x\r\n\r\n", Then::Wait, {QXNET_ERROR_NOT_A_DEVICE, 0, 0}},
        {"HTTP/1.0", "HTTP/1.0 200 OK\r\nVantor-Protocol: 1\r\n" + length, Then::Wait, {300, 200, 0}},
        {"a web page", "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nhi", Then::Wait, {300, 200, 0}},
        {"a redirect",
         "HTTP/1.1 302 Go\r\nVantor-Protocol: 1\r\nContent-Length: 0\r\n\r\n",
         Then::Wait,
         {300, 302, 0}},
        {"another version",
         "HTTP/1.1 505 No\r\nVantor-Protocol: 7\r\nContent-Length: 0\r\n\r\n",
         Then::Wait,
         {QXNET_ERROR_VERSION, 7, 0}},
        {"version no number",
         "HTTP/1.1 200 OK\r\nVantor-Protocol: one\r\n" + length,
         Then::Wait,
         {304, 0, 0}},
        {"version twice", std::string(kOk) + "Vantor-Protocol: 1\r\n" + length, Then::Wait, {304, 0, 0}},
        {"continue for ever",
         Repeated("HTTP/1.1 100 Continue\r\nVantor-Protocol: 1\r\n\r\n", 100000),
         Then::Wait,
         {300, 100, 0}},
        {"ten thousand headers", kOk + Repeated("X: y\r\n", 10000), Then::Wait, {QXNET_ERROR_TOO_LONG, 0, 0}},
        {"65 headers", kOk + Repeated("X: y\r\n", 63) + length, Then::Wait, {QXNET_ERROR_TOO_LONG, 0, 0}},
        {"a header without end",
         kOk + ("X: " + std::string(1 << 20, 'y')),
         Then::Wait,
         {QXNET_ERROR_TOO_LONG, 0, 0}},
        {"a header of 9000 bytes",
         kOk + ("X: " + std::string(9000, 'y')) + "\r\n" + length,
         Then::Wait,
         {302, 0, 0}},
        {"a zero in a header", kOk + std::string("X: a\0b\r\n", 8) + length, Then::Wait, {300, 0, 0}},
        {"cut in the head", kOk, Then::Close, {QXNET_ERROR_CONNECTION_LOST, 0, 0}},
        {"cut in the body", kOk + length + "half", Then::Close, {QXNET_ERROR_CONNECTION_LOST, 0, 0}},
        {"stuck in the body", kOk + length + "half", Then::Wait, {QXNET_ERROR_ANSWER_TIMEOUT, 0, 0}},
        {"no length", kOk + std::string("\r\n") + GoodOctets(), Then::Close, {300, 200, 0}},
        {"4 GB",
         kOk + std::string("Content-Length: 4294967296\r\n\r\n"),
         Then::Wait,
         {QXNET_ERROR_TOO_LONG, 0, 0}},
        {"more than 64 bits",
         kOk + std::string("Content-Length: 99999999999999999999\r\n\r\n"),
         Then::Wait,
         {300, 0, 0}},
        {"negative length", kOk + std::string("Content-Length: -1\r\n\r\n"), Then::Wait, {300, 0, 0}},
        {"two lengths", kOk + std::string("Content-Length: 31\r\n") + length, Then::Wait, {300, 0, 0}},
        {"a shorter structure",
         kOk + std::string("Content-Length: 31\r\n\r\n"),
         Then::Wait,
         {QXNET_ERROR_WRONG_SIZE, 31, 0}},
        {"a longer structure",
         kOk + std::string("Content-Length: 33\r\n\r\n"),
         Then::Wait,
         {QXNET_ERROR_WRONG_SIZE, 33, 0}},
        {"another size inside",
         kOk + length + std::string("\x21\0\0\0", 4) + std::string(28, '\0'),
         Then::Wait,
         {QXNET_ERROR_WRONG_SIZE, 33, 0}},
        {"bytes behind", kOk + length + GoodOctets() + "HTTP/1.1", Then::Wait, {300, 200, 0}},
        {"chunked",
         kOk + std::string("Transfer-Encoding: chunked\r\n\r\n0\r\n\r\n"),
         Then::Wait,
         {300, 200, 0}},
        {"compressed", kOk + std::string("Content-Encoding: gzip\r\n") + length, Then::Wait, {300, 200, 0}},
        {"done without a body", "HTTP/1.1 204 Done\r\nVantor-Protocol: 1\r\n\r\n", Then::Wait, {300, 204, 0}},
        {"no reason", refused + "\r\n", Then::Wait, {300, 500, 0}},
        {"reason no number", refused + "Vantor-Error: -504\r\n\r\n", Then::Wait, {304, 0, 0}},
        {"a refusal",
         refused + "Vantor-Error: 504\r\nVantor-Module-Error: 9\r\nVantor-Own-Error: 11\r\n\r\n",
         Then::Wait,
         {QXNET_ERROR_DEVICE, 9, 11}},
        {"an unknown reason",
         refused + "Vantor-Error: 999\r\nVantor-Module-Error: 9\r\n\r\n",
         Then::Wait,
         {QXNET_ERROR_DEVICE, 9, 999}},
        {"the user may not",
         refused + "Vantor-Error: 402\r\nVantor-Module-Error: 9\r\n\r\n",
         Then::Wait,
         {QXNET_ERROR_PERMISSION, 500, 0}},
        {"a refusal with 4 GB",
         "HTTP/1.1 500 No\r\nVantor-Protocol: 1\r\nVantor-Error: 504\r\n"
         "Content-Length: 4294967295\r\n\r\n",
         Then::Wait,
         {QXNET_ERROR_TOO_LONG, 0, 0}},
        {"not logged in, without end",
         "HTTP/1.1 401 No\r\nVantor-Protocol: 1\r\nContent-Length: 0\r\n\r\n",
         Then::Wait,
         {QXNET_ERROR_PASSWORD, 401, 0}},
    };
}

class SdkHostile : public testing::TestWithParam<Row>
{};

bool IsLogin(const std::string& request)
{
    return request.rfind("POST /vantor/device/v1/session ", 0) == 0;
}

} // namespace

TEST_P(SdkHostile, AnswersEndInTheirErrorAndLeaveTheBufferAlone)
{
    const Row& row = GetParam();
    CSdk sdk;
    CWellBehaved device;
    CPlayedDevice played([&](CPlayedConnection& connection, int) {
        std::string request;
        while (IsLogin(request = connection.Request()))
            connection.Send(device.Answer(request));
        if (request.empty() || !connection.Send(row.bytes) || row.then == Then::Close)
            return;
        connection.WaitForEnd();
    });
    const std::int32_t session = CSdk::LogIn(played.Port(), kTimeoutMs);
    ASSERT_GE(session, 0) << testing::PrintToString(LastError());
    Octets octets;
    std::memset(octets.bytes, 'k', sizeof octets.bytes);
    const auto start = Clock::now();
    EXPECT_EQ(NET_DVR_GetDVRConfig(session, 1008, 1, &octets, sizeof octets), 0);
    EXPECT_EQ(LastError(), row.error);
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(5));
    EXPECT_EQ(std::string(octets.bytes, sizeof octets.bytes), std::string(sizeof octets.bytes, 'k'));
}

INSTANTIATE_TEST_SUITE_P(Rows, SdkHostile, testing::ValuesIn(Rows()));

namespace {

/// What a device answers to a login: without credentials, and with them.
struct LoginRow
{
    const char* name;
    std::string first;
    std::string second;
    ErrorTriple error;
};

void PrintTo(const LoginRow& row, std::ostream* out)
{
    *out << row.name;
}

std::string InfoWith(std::size_t offset, const std::string& bytes)
{
    return DeviceInfoBytes().replace(offset, bytes.size(), bytes);
}

std::vector<LoginRow> LoginRows()
{
    const std::string asked = AnswerBytes("401 Log in", kChallenge);
    const std::string session = "Vantor-Session: 0123456789abcdef0123456789abcdef\r\n";
    const std::string stale =
        "WWW-Authenticate: Digest realm=\"d\", qop=\"auth\", algorithm=SHA-256, nonce=\"n\", stale=true\r\n";
    const std::string md5 =
        "WWW-Authenticate: Digest realm=\"d\", qop=\"auth\", algorithm=MD5, nonce=\"n\"\r\n";
    const auto in = [&](const std::string& info) { return AnswerBytes("200 OK", session, info); };
    return {
        {"wrong password", asked, asked, {QXNET_ERROR_PASSWORD, 401, 0}},
        {"locked", AnswerBytes("423 Locked", "Vantor-Error: 401\r\n"), "", {QXNET_ERROR_LOCKED, 423, 0}},
        {"full", asked, AnswerBytes("429 Full", "Vantor-Error: 403\r\n"), {QXNET_ERROR_DEVICE_FULL, 429, 0}},
        {"always stale", asked, AnswerBytes("401 Again", stale), {QXNET_ERROR_PASSWORD, 401, 0}},
        {"no challenge", AnswerBytes("401 Log in", ""), "", {QXNET_ERROR_NOT_A_DEVICE, 401, 0}},
        {"MD5", AnswerBytes("401 Log in", md5), "", {QXNET_ERROR_NOT_A_DEVICE, 401, 0}},
        {"no question asked", in(DeviceInfoBytes()), "", {QXNET_ERROR_NOT_A_DEVICE, 200, 0}},
        {"no session", asked, AnswerBytes("200 OK", "", DeviceInfoBytes()), {QXNET_ERROR_UNREADABLE, 0, 0}},
        {"a short session",
         asked,
         AnswerBytes("200 OK", "Vantor-Session: 01\r\n", DeviceInfoBytes()),
         {304, 0, 0}},
        {"513 channels",
         asked,
         in(InfoWith(12, std::string("\x01\x02\0\0", 4))),
         {QXNET_ERROR_UNREADABLE, 0, 0}},
        {"a name without end", asked, in(InfoWith(32, std::string(64, 'x'))), {QXNET_ERROR_UNREADABLE, 0, 0}},
        {"a name not in UTF-8", asked, in(InfoWith(32, "\xC0\xAF")), {QXNET_ERROR_UNREADABLE, 0, 0}},
        {"a surrogate", asked, in(InfoWith(32, "\xED\xA0\x80")), {QXNET_ERROR_UNREADABLE, 0, 0}},
        {"another structure",
         asked,
         in(InfoWith(0, std::string("\xFF\0\0\0", 4))),
         {QXNET_ERROR_WRONG_SIZE, 255, 0}},
    };
}

class SdkHostileLogin : public testing::TestWithParam<LoginRow>
{};

} // namespace

TEST_P(SdkHostileLogin, IsRefusedWithItsError)
{
    CSdk sdk;
    CPlayedDevice played([](CPlayedConnection& connection, int) {
        for (std::string request = connection.Request(); !request.empty(); request = connection.Request())
            connection.Send(HeaderOf(request, "Authorization").empty() ? GetParam().first
                                                                       : GetParam().second);
    });
    EXPECT_EQ(CSdk::LogIn(played.Port(), kTimeoutMs), -1);
    EXPECT_EQ(LastError(), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(Rows, SdkHostileLogin, testing::ValuesIn(LoginRows()));

namespace {

/// Where in a session a device begins to send one byte at a time, and what it sends.
struct SlowRow
{
    const char* name;
    int exchange; ///< exchanges that it serves well before
    std::string bytes;
    bool isTls;
    std::uint32_t error;
};

std::vector<SlowRow> SlowRows()
{
    const std::string head = kOk + std::string("Vantor-Session: 0123456789abcdef0123456789abcdef\r\n");
    const std::string endless = kOk + std::string(4000, 'x');
    const std::string body = kOk + std::string("Content-Length: 32\r\n\r\n") + GoodOctets();
    return {
        {"agreeing on TLS", 0, std::string("\x16\x03\x03\x40\0", 5) + std::string(4000, 'x'), true, 202},
        {"being asked for credentials", 0, endless, false, 203},
        {"the answer to the credentials", 1, head + "Content-Length: 256\r\n\r\n" + DeviceInfoBytes(), false,
         203},
        {"the head", 2, endless, false, 203},
        {"the body", 2, body, false, 203},
    };
}

} // namespace

TEST(SdkSlowDevice, OneByteATimeMeetsTheTimeoutWhereverItBegins)
{
    CSdk sdk;
    for (const SlowRow& row : SlowRows()) {
        SCOPED_TRACE(row.name);
        CWellBehaved device;
        CPlayedDevice played([&](CPlayedConnection& connection, int) {
            for (int i = 0; i < row.exchange; ++i)
                connection.Send(device.Answer(connection.Request()));
            connection.BeginRequest();
            connection.Drip(row.bytes, 20);
        });
        QxNetLogin login = CSdk::To(played.Port(), kTimeoutMs);
        login.useTls = row.isTls;
        const auto start = Clock::now();
        const std::int32_t session = QxNet_Login(&login, nullptr);
        ASSERT_EQ(session >= 0, row.exchange == 2);
        Octets octets;
        EXPECT_FALSE(session >= 0 && NET_DVR_GetDVRConfig(session, 1008, 1, &octets, sizeof octets));
        EXPECT_EQ(LastError(), (ErrorTriple{row.error, 0, 0}));
        EXPECT_LT(Clock::now() - start, std::chrono::seconds(5));
    }
}

TEST(SdkSlowDevice, OneThatNeverStopsTalkingMeetsTheTimeoutToo)
{
    CSdk sdk;
    // Requests to begin anew, which a TLS client passes over while it is agreeing.
    const std::string record = std::string("\x16\x03\x03\x40\0", 5) + std::string(0x4000, '\0');
    CPlayedDevice played([&](CPlayedConnection& connection, int) {
        while (connection.Send(record))
            continue;
    });
    QxNetLogin login = CSdk::To(played.Port(), kTimeoutMs);
    login.useTls = 1;
    const auto start = Clock::now();
    EXPECT_EQ(QxNet_Login(&login, nullptr), -1);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_CONNECT_TIMEOUT, 0, 0}));
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(5));
}
