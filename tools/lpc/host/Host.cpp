#include "lpc/host/Host.h"

#include "lpc/Names.h"

namespace lpctool {

namespace {

/// The message as scripts see it: headers as members, the body as "body".
JsonValue MessageValue(const lpc::CallBackData& data)
{
    cJSON* message = cJSON_Duplicate(HeadersValue(data.headers).get(), true);
    if (!data.body.empty()) {
        cJSON_DeleteItemFromObjectCaseSensitive(message, "body");
        cJSON_AddItemToObject(message, "body", cJSON_Duplicate(BodyValue(data.body).get(), true));
    }
    return OwnJson(message);
}

/// The served list in the body of a registration; none for a body without one.
std::vector<std::string> ServedUrls(const std::string& registration)
{
    std::vector<std::string> urls;
    const JsonValue body = ParseJson(registration);
    const cJSON* list = Member(Member(body.get(), "componentRegisterInfo"), "supportUrlList");
    const cJSON* url = nullptr;
    cJSON_ArrayForEach(url, list) if (cJSON_IsString(url)) urls.emplace_back(url->valuestring);
    return urls;
}

} // namespace

CHost::CHost(std::string componentName)
    : m_componentName(std::move(componentName)), m_server(*this), m_traffic(m_server),
      m_forwarder(m_server, "host", m_componentName,
                  [this](const lpcforward::Passage& passage) { m_traffic.Show(passage); })
{}

CHost::~CHost()
{
    m_server.Stop();
}

int CHost::Invoke(lpcserver::ClientId component, const lpc::Message& request, std::uint32_t timeoutMs,
                  lpc::Message& answer)
{
    m_traffic.Show({"request", "host", m_componentName, request.headers, request.body});
    const int error = m_server.SendEx(component, request, timeoutMs, answer);
    m_traffic.Show({"reply", m_componentName, "host", answer.headers, answer.body, error});
    return error;
}

int CHost::Notify(lpcserver::ClientId component, const lpc::Message& notification)
{
    m_traffic.Show({"notify", "host", m_componentName, notification.headers, notification.body});
    return m_server.Notify(component, notification);
}

void CHost::OnClientConnected(lpcserver::ClientId client, const std::string& name)
{
    m_names[client] = name;
    if (name == m_componentName)
        m_inbox.Connected(client);
}

void CHost::OnClientDisconnected(lpcserver::ClientId client)
{
    m_names.erase(client);
    m_traffic.RemoveWatcher(client);
    if (m_inbox.Client() == client)
        m_forwarder.SetServed({});
    m_inbox.Disconnected(client);
}

void CHost::OnData(lpcserver::ClientId client, const lpc::CallBackData& data)
{
    m_traffic.Show(
        {data.requestId == 0 ? "notify" : "request", m_names[client], "host", data.headers, data.body});
    if (m_inbox.Client() == client)
        TakeFromComponent(client, data);
    else
        TakeFromOther(client, data);
}

void CHost::TakeFromComponent(lpcserver::ClientId client, const lpc::CallBackData& data)
{
    if (data.requestId == 0)
        return m_inbox.Add(CComponentInbox::Kind::Notification, MessageValue(data));
    if (data.Header("url") == kRegisterUrl)
        m_forwarder.SetServed(ServedUrls(data.body));
    const CAnswers::Answer answer = m_answers.Find(data);
    if (!answer.silent) {
        m_traffic.Show({"reply", "host", m_componentName, answer.message.headers, answer.message.body});
        (void)m_server.Reply(client, {data.requestId, answer.message.headers, answer.message.body});
    }
    m_inbox.Add(CComponentInbox::Kind::Request, MessageValue(data));
}

void CHost::TakeFromOther(lpcserver::ClientId client, const lpc::CallBackData& data)
{
    if (data.Header("method") != kWatchMethod || !data.Header("url").empty() || data.requestId == 0)
        return m_forwarder.Forward(client, m_names[client], data, m_inbox.Client());
    const lpc::Message answer = MakeAnswer(200, 0, {});
    (void)m_server.Reply(client, {data.requestId, answer.headers, answer.body});
    m_traffic.AddWatcher(client);
}

} // namespace lpctool
