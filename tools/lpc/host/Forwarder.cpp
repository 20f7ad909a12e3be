#include "lpc/host/Forwarder.h"

#include "lpc/script/Answers.h"

#include <algorithm>
#include <cstdlib>

namespace lpctool {

namespace {

constexpr std::uint32_t kDefaultTimeoutMs = 30000;
constexpr std::uint32_t kLongestTimeoutMs = 3600 * 1000;

/// The request's own "timeout" in milliseconds when it is sensible.
std::uint32_t TimeoutOf(const lpc::CallBackData& data)
{
    const unsigned long wanted = std::strtoul(data.Header("timeout").c_str(), nullptr, 10);
    return wanted == 0 || wanted > kLongestTimeoutMs ? kDefaultTimeoutMs : static_cast<std::uint32_t>(wanted);
}

} // namespace

void CForwarder::Learn(const std::string& registration)
{
    m_served.clear();
    const JsonValue body = ParseJson(registration);
    const cJSON* list = Member(Member(body.get(), "componentRegisterInfo"), "supportUrlList");
    const cJSON* url = nullptr;
    cJSON_ArrayForEach(url, list) if (cJSON_IsString(url)) m_served.emplace_back(url->valuestring);
}

bool CForwarder::Serves(const lpc::CallBackData& data) const
{
    const std::string url = data.Header("url");
    const std::string address = url.empty() ? data.Header("method") : url;
    return std::find(m_served.begin(), m_served.end(), address) != m_served.end();
}

void CForwarder::Forward(lpcserver::ClientId client, const std::string& name, const lpc::CallBackData& data,
                         lpcserver::ClientId component)
{
    if (data.requestId != 0) {
        ForwardRequest(client, name, data, component);
    } else if (component != 0 && Serves(data)) {
        m_traffic.Show({"notify", "host", m_componentName, data.headers, data.body});
        (void)m_server.Notify(component, {data.headers, data.body});
    }
}

void CForwarder::ForwardRequest(lpcserver::ClientId client, const std::string& name,
                                const lpc::CallBackData& data, lpcserver::ClientId component)
{
    if (component == 0)
        return Answer(client, name, data.requestId, MakeAnswer(503, lpc::kNotConnected, {}));
    if (!Serves(data))
        return Answer(client, name, data.requestId, MakeAnswer(404, 0, {}));
    m_traffic.Show({"request", "host", m_componentName, data.headers, data.body});
    const auto relay = [this, client, name, id = data.requestId](int error, const lpc::Message& answer) {
        m_traffic.Show({"reply", m_componentName, "host", answer.headers, answer.body, error});
        if (error == lpc::kNoError)
            Answer(client, name, id, answer);
        else
            Answer(client, name, id, MakeAnswer(error == lpc::kTimedOut ? 504 : 502, error, {}));
    };
    const int error = m_server.Send(component, {data.headers, data.body}, TimeoutOf(data), relay);
    if (error != lpc::kNoError)
        Answer(client, name, data.requestId, MakeAnswer(502, error, {}));
}

void CForwarder::Answer(lpcserver::ClientId client, const std::string& name, lpc::RequestId request,
                        const lpc::Message& answer)
{
    m_traffic.Show({"reply", "host", name, answer.headers, answer.body});
    (void)m_server.Reply(client, {request, answer.headers, answer.body});
}

} // namespace lpctool
