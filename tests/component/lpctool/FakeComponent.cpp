// A client that plays the component for tests of vantor-lpc. What it does is asked of it:
//
//   url "/fake/echo"    replies with the request's headers and body
//   url "/fake/silent"  does not reply
//   method "ask"        sends the request that the body describes and replies with what came of it
//   method "tell"       sends the notification that the body describes
//   method "die"        exits with the body's "exit", or by the body's "signal"
//
// The variable FAKE_COMPONENT_WAY changes how it lives: "unconnected" never connects, "stubborn" does not end
// when it is asked to, "broken" exits with 3 at once.

#include "LPC_Client/LPC_Client.h"
#include "lpc/Names.h"
#include "lpc/json/Json.h"

#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <thread>

namespace {

using lpctool::JsonValue;

constexpr const char* kRegistration =
    R"({"componentRegisterInfo":{"supportUrlList":["/fake/echo","/fake/silent","ask","tell"]}})";

/// Brings what the library's thread receives to the main thread.
class CMail
{
public:
    void Put(const lpc::CallBackData& data)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_waiting.push_back(data);
        m_changed.notify_all();
    }

    lpc::CallBackData Take()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return !m_waiting.empty(); });
        lpc::CallBackData data = m_waiting.front();
        m_waiting.pop_front();
        return data;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<lpc::CallBackData> m_waiting;
};

/// The message that a body {"headers": {...}, "body": ...} describes.
lpc::Message Described(const cJSON* body)
{
    lpc::Message message;
    const cJSON* header = nullptr;
    cJSON_ArrayForEach(header, lpctool::Member(body, "headers")) message.headers[header->string] =
        header->valuestring;
    if (const cJSON* inner = lpctool::Member(body, "body"))
        message.body = lpctool::ToText(*inner);
    return message;
}

void Reply(const lpc::CallBackData& call, const std::string& body)
{
    if (!lpcclient::Reply({call.requestId, call.headers, body}))
        std::fprintf(stderr, "no reply: %d\n", lpcclient::GetLPCLastError());
}

void Ask(const lpc::CallBackData& call, const cJSON* body)
{
    lpc::Message answer;
    lpc::RequestId id = 0;
    cJSON* outcome = cJSON_CreateObject();
    const JsonValue owner = lpctool::OwnJson(outcome);
    if (!lpcclient::SendEx(answer, Described(body), id, 1000))
        cJSON_AddNumberToObject(outcome, "error", lpcclient::GetLPCLastError());
    cJSON_AddItemToObject(outcome, "headers",
                          cJSON_Duplicate(lpctool::HeadersValue(answer.headers).get(), true));
    cJSON_AddItemToObject(outcome, "body", cJSON_Duplicate(lpctool::BodyValue(answer.body).get(), true));
    Reply(call, lpctool::ToText(*outcome));
}

void Die(const cJSON* body)
{
    if (const cJSON* number = lpctool::Member(body, "signal"))
        std::raise(number->valueint);
    std::_Exit(lpctool::Member(body, "exit")->valueint);
}

void Serve(const lpc::CallBackData& call)
{
    const JsonValue body = lpctool::BodyValue(call.body);
    const std::string method = call.Header("method");
    if (call.Header("url") == "/fake/echo")
        Reply(call, call.body);
    else if (method == "ask")
        Ask(call, body.get());
    else if (method == "tell")
        (void)lpcclient::Notify(Described(body.get()));
    else if (method == "die")
        Die(body.get());
}

bool Join(CMail& mail)
{
    const auto put = [&mail](const lpc::CallBackData& data, void*) {
        mail.Put(data);
        return true;
    };
    lpc::Message answer;
    lpc::RequestId id = 0;
    const lpc::Message registration{
        {{"protocol", "http"}, {"url", lpctool::kRegisterUrl}, {"method", "POST"}}, kRegistration};
    return lpcclient::Init(lpctool::kComponentName, false) &&
           lpcclient::ConnectToServer(lpctool::kServerName) && lpcclient::SetInvokeCallBack(put, nullptr) &&
           lpcclient::SendEx(answer, registration, id, 5000) &&
           lpcclient::Notify({{{"method", "initFinish"}}, R"({"method":"initFinish"})"});
}

} // namespace

int main(int argc, char* argv[])
{
    const char* set = std::getenv("FAKE_COMPONENT_WAY");
    const std::string way = set ? set : "";
    for (int index = 1; index < argc; ++index)
        std::printf("argument %d [%s]\n", index, argv[index]);
    std::fflush(stdout);
    if (way == "broken")
        return 3;
    while (way == "unconnected")
        std::this_thread::sleep_for(std::chrono::hours(1));
    CMail mail;
    if (!Join(mail))
        return 4;
    for (;;) {
        const lpc::CallBackData call = mail.Take();
        const std::string method = call.Header("method");
        if ((method == lpctool::kEndMethod || method == lpctool::kLostMethod) && way != "stubborn")
            break;
        Serve(call);
    }
    (void)lpcclient::SetInvokeCallBack({}, nullptr);
    (void)lpcclient::DisconnectToServer();
    (void)lpcclient::Uninit();
    return 0;
}
