#include "support/ComponentHost.h"

#include "Base/FileUtil.h"
#include "ChildProcess/ChildProcess.h"
#include "CommonMethod/DataEncryptionConfig.h"
#include "LPC_Server/LPC_Server.h"
#include "lpc/Names.h"
#include "lpc/script/Answers.h"

#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>

namespace bench {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kStartLimit = std::chrono::seconds(60);
constexpr int kEndLimitMs = 20000;
constexpr std::uint32_t kAnswerLimitMs = 30000;

[[noreturn]] void Fail(const char* what, int number)
{
    std::fprintf(stderr, "%s: %d\n", what, number);
    std::exit(1);
}

} // namespace

struct CComponentHost::State : lpcserver::IServerEvents
{
    lpctool::CAnswers answers;
    std::mutex mutex;
    std::condition_variable changed;
    lpcserver::ClientId component = 0;
    bool ready = false;
    Clock::time_point readyAt;
    std::unique_ptr<CChildProcess> child;
    lpcserver::CLPCServer server{*this}; ///< last: its thread uses the others

    ~State() override { server.Stop(); }

    void OnClientConnected(lpcserver::ClientId client, const std::string&) override
    {
        std::lock_guard<std::mutex> lock(mutex);
        component = client;
    }

    void OnClientDisconnected(lpcserver::ClientId) override
    {
        std::lock_guard<std::mutex> lock(mutex);
        component = 0;
    }

    void OnData(lpcserver::ClientId client, const lpc::CallBackData& data) override
    {
        const auto now = Clock::now();
        if (data.requestId != 0) {
            const lpc::Message answer = answers.Find(data).message;
            if (const int error = server.Reply(client, {data.requestId, answer.headers, answer.body}))
                Fail("answering the component", error);
        } else if (data.Header("method") == "initFinish") {
            std::lock_guard<std::mutex> lock(mutex);
            ready = true;
            readyAt = now;
            changed.notify_all();
        }
    }
};

CComponentHost::CComponentHost() : m_state(std::make_unique<State>())
{
    const comm_method::CDataEncryptionConfig setup(Base::FileUtil::UserDataRoot() +
                                                   comm_method::kFrameworkSetup);
    if (!setup.Exists() && !setup.Write(comm_method::CDataEncryptionConfig::Generate()))
        Fail("writing the data-encryption setup", 0);
    if (const int error = m_state->server.Start(lpctool::kServerName))
        Fail("listening", error);
}

CComponentHost::~CComponentHost()
{
    End();
}

std::chrono::nanoseconds CComponentHost::Start()
{
    std::string error;
    m_state->ready = false;
    m_state->child = std::make_unique<CChildProcess>();
    const auto start = Clock::now();
    if (!m_state->child->Start({Base::FileUtil::GetCurExeDir() + "Vantor.Video.C", "bench",
                                lpctool::kServerName, "BlackRedSkin 1 0 0 0 0"},
                               Base::FileUtil::UserDataRoot() + "component-output", error)) {
        std::fprintf(stderr, "starting the component: %s\n", error.c_str());
        std::exit(1);
    }
    std::unique_lock<std::mutex> lock(m_state->mutex);
    if (!m_state->changed.wait_for(lock, kStartLimit, [this] { return m_state->ready; }))
        Fail("waiting for initFinish, exit code of the component", m_state->child->ExitStatus().value_or(0));
    return m_state->readyAt - start;
}

lpc::Message CComponentHost::Ask(const lpc::Message& request)
{
    lpc::Message answer;
    if (const int error = m_state->server.SendEx(m_state->component, request, kAnswerLimitMs, answer))
        Fail("asking the component", error);
    return answer;
}

void CComponentHost::Notify(const lpc::Message& notification)
{
    if (const int error = m_state->server.Notify(m_state->component, notification))
        Fail("notifying the component", error);
}

int CComponentHost::ProcessId() const
{
    return m_state->child ? static_cast<int>(m_state->child->Id()) : 0;
}

void CComponentHost::End()
{
    if (!m_state->child)
        return;
    Notify({{{"method", lpctool::kEndMethod}}, {}});
    const auto status = m_state->child->WaitForExit(kEndLimitMs);
    m_state->child.reset();
    if (status != 0)
        Fail("ending the component, exit code", status.value_or(-1));
}

} // namespace bench
