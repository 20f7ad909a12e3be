#include "lpc/host/Traffic.h"

#include "Base/StringUtil.h"
#include "Base/TimeUtil.h"
#include "lpc/Names.h"
#include "lpc/json/Masking.h"

#include <algorithm>
#include <chrono>

namespace lpctool {

namespace {

/// Longer bodies are shown by their beginning.
constexpr std::size_t kShownBodyBytes = 16 * 1024;

/// Universal time to the millisecond.
std::string NowText()
{
    using namespace std::chrono;
    const auto now = duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
    return Base::TimeUtil::TimeT2StrDatetime(now / 1000) +
           Base::StringUtil::Format(".%03d", static_cast<int>(now % 1000));
}

cJSON* ShownBody(const std::string& body)
{
    const JsonValue masked = MaskedBody(body);
    const std::string text = ToText(*masked);
    if (text.size() <= kShownBodyBytes)
        return cJSON_Duplicate(masked.get(), true);
    return cJSON_CreateString((Base::StringUtil::CutUtf8(text, kShownBodyBytes) + "...").c_str());
}

} // namespace

std::string PassageText(const Passage& passage)
{
    cJSON* line = cJSON_CreateObject();
    const JsonValue owner = OwnJson(line);
    cJSON_AddStringToObject(line, "time", NowText().c_str());
    cJSON_AddStringToObject(line, "kind", passage.kind);
    cJSON_AddStringToObject(line, "from", passage.from.c_str());
    cJSON_AddStringToObject(line, "to", passage.to.c_str());
    if (passage.error != 0)
        cJSON_AddNumberToObject(line, "error", passage.error);
    const JsonValue headers = HeadersValue(MaskedHeaders(passage.headers));
    cJSON_AddItemToObject(line, "headers", cJSON_Duplicate(headers.get(), true));
    cJSON_AddNumberToObject(line, "size", static_cast<double>(passage.body.size()));
    if (!passage.body.empty())
        cJSON_AddItemToObject(line, "body", ShownBody(passage.body));
    return ToText(*line);
}

void CTraffic::AddWatcher(lpcserver::ClientId client)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (std::find(m_watchers.begin(), m_watchers.end(), client) == m_watchers.end())
        m_watchers.push_back(client);
}

void CTraffic::RemoveWatcher(lpcserver::ClientId client)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_watchers.erase(std::remove(m_watchers.begin(), m_watchers.end(), client), m_watchers.end());
}

void CTraffic::Show(const Passage& passage)
{
    std::vector<lpcserver::ClientId> watchers;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        watchers = m_watchers;
    }
    if (watchers.empty())
        return;
    const lpc::Message copy{{{"method", kWatchMethod}}, PassageText(passage)};
    for (const lpcserver::ClientId watcher : watchers)
        (void)m_server.Notify(watcher, copy);
}

} // namespace lpctool
