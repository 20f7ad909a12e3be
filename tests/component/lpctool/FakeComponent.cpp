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

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <future>
#include <thread>
#include <utility>

namespace {

using lpctool::JsonValue;

constexpr const char* kRegistration =
    R"({"componentRegisterInfo":{"supportUrlList":["/fake/echo","/fake/silent","ask","tell"]}})";

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

/// Serves on the library's thread; the promise is kept by the first call that ends a component.
bool Join(std::promise<void>& end, bool isStubborn)
{
    static bool isOver = false;
    const auto serve = [&end, isStubborn](const lpc::CallBackData& call, void*) {
        const std::string method = call.Header("method");
        if (isStubborn || (method != lpctool::kEndMethod && method != lpctool::kLostMethod))
            Serve(call);
        else if (!std::exchange(isOver, true))
            end.set_value();
        return true;
    };
    lpc::Message answer;
    lpc::RequestId id = 0;
    const lpc::Message registration{
        {{"protocol", "http"}, {"url", lpctool::kRegisterUrl}, {"method", "POST"}}, kRegistration};
    return lpcclient::Init(lpctool::kComponentName, false) &&
           lpcclient::ConnectToServer(lpctool::kServerName) && lpcclient::SetInvokeCallBack(serve, nullptr) &&
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
    std::promise<void> end;
    if (!Join(end, way == "stubborn"))
        return 4;
    end.get_future().wait();
    (void)lpcclient::SetInvokeCallBack({}, nullptr);
    (void)lpcclient::DisconnectToServer();
    (void)lpcclient::Uninit();
    return 0;
}
