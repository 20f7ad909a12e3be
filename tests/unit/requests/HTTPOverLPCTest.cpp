#include "Base/Error.h"
#include "CommonMethod/HTTPOverLPCClient.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

#include <vector>

using comm_method::CHTTPOverLPCClient;
using commlayer::RequestParams;
using commlayer::RspInfos;

namespace {

using Lines = std::vector<std::string>;

/// A channel that fails with the given errors, one an attempt, and then answers.
class FakeChannel
{
public:
    explicit FakeChannel(std::vector<int> errors = {}, lpcclient::tag_LPCResponseData answer = {})
        : m_errors(std::move(errors)), m_answer(std::move(answer))
    {}

    CHTTPOverLPCClient Client()
    {
        return CHTTPOverLPCClient(
            [this](auto& response, const auto& request, auto& id, std::uint32_t timeoutMs) {
                requests.push_back(request);
                timeouts.push_back(timeoutMs);
                id = requests.size();
                const bool answers = requests.size() > m_errors.size();
                if (answers)
                    response = m_answer;
                return answers;
            },
            [this] { return m_errors.at(requests.size() - 1); },
            [this](std::chrono::milliseconds) { ++pauses; });
    }

    std::vector<lpcclient::tag_LPCRequestData> requests;
    std::vector<std::uint32_t> timeouts;
    int pauses = 0;

private:
    std::vector<int> m_errors;
    lpcclient::tag_LPCResponseData m_answer;
};

RequestParams ParamsFor(const std::string& url)
{
    RequestParams params;
    params.url = url;
    params.method = "GET";
    return params;
}

std::string Retry(int number)
{
    return "Failed to request [url-/a]. lpcclient::SendEx failed. [error-1015].[Retry-" +
           std::to_string(number) + "].";
}

std::string Failed(int error)
{
    return "Failed to request [url-/a]. lpcclient::SendEx failed. [error-" + std::to_string(error) + "].";
}

TEST(SendingARequest, IsRepeatedOnlyWhenAllowedAndOnlyOn1015)
{
    const struct
    {
        const char* name;
        bool retry;
        std::vector<int> errors;
        std::size_t attempts;
        int pauses;
        Lines lines; ///< in their order; all but the last are warnings when there is a failure
        int lastError;
    } rows[] = {
        {"first attempt good", true, {}, 1, 0, {}, 0},
        {"forbidden retry", false, {1015, 1015}, 1, 0, {Failed(1015)}, 1015},
        {"failures", true, {1015, 1015, 1015}, 3, 2, {Retry(1), Retry(2), Retry(3), Failed(1015)}, 1015},
        {"second attempt good", true, {1015}, 2, 1, {Retry(1)}, 0},
        {"third attempt good", true, {1015, 1015}, 3, 2, {Retry(1), Retry(2)}, 0},
        {"other error", true, {1007}, 1, 0, {Failed(1007)}, 1007},
        {"other error after a retry", true, {1015, 1006}, 2, 1, {Retry(1), Failed(1006)}, 1006},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        FakeChannel channel(row.errors);
        Base::Error::SetLastError(0);
        const CapturedLog log;
        RspInfos answer;
        EXPECT_EQ(channel.Client().request(answer, ParamsFor("/a"), row.retry), row.lastError == 0);
        EXPECT_EQ(channel.requests.size(), row.attempts);
        EXPECT_EQ(channel.pauses, row.pauses);
        EXPECT_EQ(Base::Error::GetLastError(), row.lastError);
        EXPECT_EQ(answer.status, row.lastError == 0 ? 200 : 0);
        Lines lines;
        for (const CapturedLog::Line& line : log.Lines()) {
            const bool isRetry = line.message.find("Retry") != std::string::npos;
            EXPECT_EQ(line.level, isRetry ? Base::LogLevel::Warn : Base::LogLevel::Error);
            EXPECT_EQ(line.logger, "VideoLogger");
            lines.push_back(line.message);
        }
        EXPECT_EQ(lines, row.lines);
    }
}

TEST(SentRequest, CarriesRouteMethodTimeoutAndBody)
{
    FakeChannel channel;
    RequestParams params = ParamsFor("/vantor/v1/x");
    params.method = "POST";
    params.body = R"({"a":1})";
    params.timeoutMs = 1234;
    RspInfos answer;
    ASSERT_TRUE(channel.Client().request(answer, params, false));
    const lpc::HeaderMap headers = {{"url", "/vantor/v1/x"},
                                    {"method", "POST"},
                                    {"protocol", "http"},
                                    {"timeout", "1234"},
                                    {"Content-Type", "application/json; charset=\"UTF-8\""}};
    EXPECT_EQ(channel.requests[0].headers, headers);
    EXPECT_EQ(channel.requests[0].body, params.body);
    EXPECT_EQ(channel.timeouts[0], 1234u);
}

TEST(SentRequest, HasNoContentTypeWithoutBodyAndARangeOnlyWhenAsked)
{
    FakeChannel channel;
    RequestParams params = ParamsFor("/picture");
    RspInfos answer;
    ASSERT_TRUE(channel.Client().request(answer, params, false));
    params.range = "bytes=0-99";
    ASSERT_TRUE(channel.Client().request(answer, params, false));
    EXPECT_EQ(channel.requests[0].headers.count("Content-Type"), 0u);
    EXPECT_EQ(channel.requests[0].headers.count("Range"), 0u);
    EXPECT_EQ(channel.requests[1].headers["Range"], "bytes=0-99");
}

std::string Error(int status, int code)
{
    return "Failed to request [url-/a]. [error-" + std::to_string(status) + "-" + std::to_string(code) + "].";
}

std::string Unparsed(const std::string& body)
{
    return "Failed to request [url-/a]. JSON paring failed. [body-" + body + "].";
}

TEST(Answer, IsGoodOrReportedOnce)
{
    constexpr int kBad = commlayer::kBadAnswer;
    const std::string picture("\xFF\xD8\xFF\0{", 5);
    const lpc::HeaderMap json = {{"Content-Type", "application/json; charset=\"UTF-8\""}};
    const lpc::HeaderMap partOfAPicture = {
        {"Content-Type", "image/jpeg"}, {"Content-Range", "bytes 0-4/100"}, {"status", "206"}};
    const std::tuple<const char*, lpc::HeaderMap, std::string, Lines, int> rows[] = {
        {"JSON", {{"status", "200"}}, "{}", {}, 0},
        {"no headers", {}, "{\"a\":1}", {}, 0},
        {"empty", {{"status", "204"}, {"Content-Type", "application/json"}}, "", {}, 0},
        {"not found", {{"status", "404"}}, "", {Error(404, 0)}, 404},
        {"error number", {{"errorCode", "17"}}, "{}", {Error(200, 17)}, 17},
        {"number and status", {{"status", "500"}, {"errorCode", "17"}}, "{}", {Error(500, 17)}, 17},
        {"redirection", {{"status", "302"}}, "{}", {Error(302, 0)}, 302},
        {"status that is no number", {{"status", "2xx"}}, "{}", {Error(-1, 0)}, -1},
        {"error that is no number", {{"errorCode", "0x"}}, "{}", {Error(200, -1)}, -1},
        {"no JSON", {}, "{", {Unparsed("{")}, kBad},
        {"no JSON of stated type", json, "x", {Unparsed("x")}, kBad},
        {"no JSON, a secret", {}, "{\"password\":\"a\"", {Unparsed("{\"password\":***")}, kBad},
        {"long no JSON", {}, std::string(9000, 'x'), {Unparsed(std::string(4096, 'x'))}, kBad},
        {"error before no JSON", {{"status", "500"}}, "x", {Error(500, 0)}, 500},
        {"picture", {{"Content-Type", "image/jpeg"}}, picture, {}, 0},
        {"part of a picture", partOfAPicture, picture, {}, 0},
    };
    for (const auto& [name, headers, body, lines, lastError] : rows) {
        SCOPED_TRACE(name);
        FakeChannel channel({}, {headers, body});
        Base::Error::SetLastError(0);
        const CapturedLog log;
        RspInfos answer;
        EXPECT_EQ(channel.Client().request(answer, ParamsFor("/a"), true), lastError == 0);
        EXPECT_EQ(log.Errors(), lines);
        EXPECT_EQ(log.Lines().size(), lines.size());
        EXPECT_EQ(Base::Error::GetLastError(), lastError);
        EXPECT_EQ(answer.body, body);
        EXPECT_EQ(answer.headers, headers);
        EXPECT_EQ(channel.requests.size(), 1u);
    }
}

TEST(FailedAnswer, LeavesNothingOfAnEarlierOne)
{
    FakeChannel channel({lpc::kTimedOut});
    RspInfos answer;
    answer.body = "earlier";
    answer.headers["x"] = "y";
    EXPECT_FALSE(channel.Client().request(answer, ParamsFor("/a"), false));
    EXPECT_EQ(answer.body, "");
    EXPECT_TRUE(answer.headers.empty());
    EXPECT_EQ(answer.errorCode, lpc::kTimedOut);
}

} // namespace
