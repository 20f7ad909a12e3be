#include "records/Framework.h"

#include "Base/FileUtil.h"
#include "LPC_Client/LPC_Client.h"
#include "lpc/CallSeries.h"
#include "lpc/Names.h"
#include "records/Caller.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <thread>

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kStartLimit = std::chrono::seconds(60);
constexpr auto kBetweenTries = std::chrono::milliseconds(100);
constexpr std::uint32_t kAnswerLimitMs = 10000;
constexpr int kEndLimitMs = 20000;

/// Tries until it works or the time is over.
template<typename Try>
void Await(const char* what, Try tryOnce)
{
    const auto end = Clock::now() + kStartLimit;
    while (!tryOnce()) {
        if (Clock::now() > end)
            Fail(std::string("waiting in vain for ") + what);
        std::this_thread::sleep_for(kBetweenTries);
    }
}

} // namespace

CFrameworkRun::CFrameworkRun(const std::string& url, const std::string& body)
{
    std::string error;
    if (!m_framework.Start({Base::FileUtil::GetCurExeDir() + "Vantor.Framework", "--skin", "BlackRedSkin",
                            "--language", "1"},
                           Base::FileUtil::UserDataRoot() + "framework-output", error))
        Fail("starting the framework: " + error);
    if (!lpcclient::Init("bench", false))
        Fail("setting up the channel");
    Await("the framework", [] { return lpcclient::ConnectToServer(lpctool::kServerName); });
    Await("the component", [&] {
        std::string answer;
        return Call(url, body, answer);
    });
}

CFrameworkRun::~CFrameworkRun()
{
    (void)lpcclient::DisconnectToServer();
    (void)lpcclient::Uninit();
    m_framework.Signal(SIGTERM);
    if (!m_framework.WaitForExit(kEndLimitMs))
        std::fprintf(stderr, "the framework does not end\n");
}

std::string CFrameworkRun::Ask(const std::string& url, const std::string& body)
{
    std::string answer;
    if (!Call(url, body, answer))
        Fail("asking " + url + " failed: " + answer);
    return answer;
}

bool CFrameworkRun::Call(const std::string& url, const std::string& body, std::string& answer)
{
    lpc::Message reply;
    lpc::RequestId id = 0;
    const lpc::Message request{{{"protocol", "http"}, {"method", "POST"}, {"url", url}}, body};
    const bool answered = lpcclient::SendEx(reply, request, id, kAnswerLimitMs);
    answer = answered ? reply.body : std::to_string(lpcclient::GetLPCLastError());
    return answered && lpctool::ComplaintAbout(reply).empty();
}

} // namespace bench
