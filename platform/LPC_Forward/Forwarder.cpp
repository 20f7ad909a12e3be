#include "LPC_Forward/Forwarder.h"

#include "LPC_Forward/Answer.h"

#include <algorithm>
#include <cstdlib>

namespace lpcforward {

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

CForwarder::CForwarder(lpcserver::CLPCServer& server, std::string ownName, std::string componentName,
                       OnPassage onPassage)
    : m_server(server), m_ownName(std::move(ownName)), m_componentName(std::move(componentName)),
      m_onPassage(std::move(onPassage))
{}

void CForwarder::SetServed(std::vector<std::string> urls)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_served = std::move(urls);
}

bool CForwarder::Serves(const lpc::CallBackData& data) const
{
    const std::string url = data.Header("url");
    const std::string address = url.empty() ? data.Header("method") : url;
    std::lock_guard<std::mutex> lock(m_mutex);
    return std::find(m_served.begin(), m_served.end(), address) != m_served.end();
}

void CForwarder::Show(const Passage& passage) const
{
    if (m_onPassage)
        m_onPassage(passage);
}

void CForwarder::Forward(lpcserver::ClientId client, const std::string& name, const lpc::CallBackData& data,
                         lpcserver::ClientId component)
{
    if (data.requestId != 0) {
        ForwardRequest(client, name, data, component);
    } else if (component != 0 && Serves(data)) {
        Show({"notify", m_ownName, m_componentName, data.headers, data.body});
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
    Show({"request", m_ownName, m_componentName, data.headers, data.body});
    const auto relay = [this, client, name, id = data.requestId](int error, const lpc::Message& answer) {
        Show({"reply", m_componentName, m_ownName, answer.headers, answer.body, error});
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
    Show({"reply", m_ownName, name, answer.headers, answer.body});
    (void)m_server.Reply(client, {request, answer.headers, answer.body});
}

} // namespace lpcforward
