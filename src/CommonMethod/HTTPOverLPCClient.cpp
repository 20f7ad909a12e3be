#include "CommonMethod/HTTPOverLPCClient.h"

#include "Base/Error.h"
#include "Base/Log.h"
#include "Protocol/JSONStruct/JSONTree.h"
#include "Protocol/JSONStruct/LoggableText.h"

#include <charconv>
#include <thread>
#include <utility>

namespace comm_method {

namespace {

constexpr const char* kLogger = "VideoLogger";
constexpr const char* kContentType = "Content-Type";
constexpr const char* kJsonContent = R"(application/json; charset="UTF-8")";
constexpr int kStatusOk = 200;
constexpr int kUnreadableNumber = -1;

lpcclient::tag_LPCRequestData RequestOf(const commlayer::RequestParams& in)
{
    lpcclient::tag_LPCRequestData request;
    request.headers = {{"url", in.url},
                       {"method", in.method},
                       {"protocol", "http"},
                       {"timeout", std::to_string(in.timeoutMs)}};
    if (!in.body.empty())
        request.headers[kContentType] = kJsonContent;
    if (!in.range.empty())
        request.headers["Range"] = in.range;
    request.body = in.body;
    return request;
}

int NumberIn(const commlayer::RspInfos& answer, const char* header, int absent)
{
    const std::string text = answer.Header(header);
    if (text.empty())
        return absent;
    int number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = result.ec == std::errc() && result.ptr == text.data() + text.size();
    return whole ? number : kUnreadableNumber;
}

commlayer::RspInfos AnswerOf(lpcclient::tag_LPCResponseData& received)
{
    commlayer::RspInfos answer;
    answer.headers = std::move(received.headers);
    answer.body = std::move(received.body);
    answer.status = NumberIn(answer, lpc::kStatusHeader, kStatusOk);
    answer.errorCode = NumberIn(answer, lpc::kErrorCodeHeader, 0);
    return answer;
}

bool IsOfType(const commlayer::RspInfos& answer, const std::string& type)
{
    const std::string stated = answer.Header(kContentType);
    return stated.compare(0, type.size(), type) == 0;
}

bool ReportsNoError(const commlayer::RspInfos& answer, const std::string& url)
{
    if (answer.status / 100 == 2 && answer.errorCode == 0)
        return true;
    Base::Error::SetLastError(answer.errorCode != 0 ? answer.errorCode : answer.status);
    BASE_ERROR_TO(kLogger, "Failed to request [url-%s]. [error-%d-%d].", url.c_str(), answer.status,
                  answer.errorCode);
    return false;
}

bool HoldsJsonIfItShould(const commlayer::RspInfos& answer, const std::string& url)
{
    const bool isJson = answer.Header(kContentType).empty() || IsOfType(answer, "application/json");
    std::string error;
    if (!isJson || answer.body.empty() || protocol::json::ParseText(answer.body, error))
        return true;
    Base::Error::SetLastError(commlayer::kBadAnswer);
    BASE_ERROR_TO(kLogger, "Failed to request [url-%s]. JSON paring failed. [body-%s].", url.c_str(),
                  protocol::LoggableText(answer.body).c_str());
    return false;
}

} // namespace

CHTTPOverLPCClient::CHTTPOverLPCClient()
    : CHTTPOverLPCClient(&lpcclient::SendEx, &lpcclient::GetLPCLastError,
                         [](std::chrono::milliseconds pause) { std::this_thread::sleep_for(pause); })
{}

CHTTPOverLPCClient::CHTTPOverLPCClient(SendFunction send, LastErrorFunction lastError, PauseFunction pause)
    : m_send(std::move(send)), m_lastError(std::move(lastError)), m_pause(std::move(pause))
{}

bool CHTTPOverLPCClient::request(commlayer::RspInfos& out, const commlayer::RequestParams& in, bool retry)
{
    out = {};
    lpcclient::tag_LPCResponseData received;
    if (const std::optional<int> error = Send(received, in, retry)) {
        out.errorCode = *error;
        Base::Error::SetLastError(*error);
        BASE_ERROR_TO(kLogger, "Failed to request [url-%s]. lpcclient::SendEx failed. [error-%d].",
                      in.url.c_str(), *error);
        return false;
    }
    out = AnswerOf(received);
    return ReportsNoError(out, in.url) && HoldsJsonIfItShould(out, in.url);
}

std::optional<int> CHTTPOverLPCClient::Send(lpcclient::tag_LPCResponseData& answer,
                                            const commlayer::RequestParams& in, bool retry)
{
    const lpcclient::tag_LPCRequestData request = RequestOf(in);
    for (int attempt = 1;; ++attempt) {
        lpcclient::RequestId id = 0;
        if (m_send(answer, request, id, in.timeoutMs))
            return std::nullopt;
        const int error = m_lastError();
        if (error != lpc::kTryAgain || !retry)
            return error;
        BASE_WARN_TO(kLogger, "Failed to request [url-%s]. lpcclient::SendEx failed. [error-%d].[Retry-%d].",
                     in.url.c_str(), error, attempt);
        if (attempt == kAttempts)
            return error;
        m_pause(kPause);
    }
}

} // namespace comm_method
