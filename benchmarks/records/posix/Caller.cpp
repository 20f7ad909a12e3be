#include "records/Caller.h"

#include "Base/FileUtil.h"
#include "Base/GuidUtil.h"
#include "lpc/json/Json.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace bench {
namespace {

constexpr int kEndLimitMs = 60000;
constexpr int kPipeBytes = 4096;

double NumberOf(const lpctool::JsonValue& summary, const char* name)
{
    const cJSON* const number = lpctool::Member(summary.get(), name);
    if (!cJSON_IsNumber(number))
        Fail(std::string("vantor-lpc did not tell ") + name);
    return number->valuedouble;
}

} // namespace

CCaller::CCaller(const std::string& url)
    : m_path(Base::FileUtil::UserDataRoot() + "bodies-" + Base::GuidUtil::CreateGuid())
{
    std::signal(SIGPIPE, SIG_IGN); // a client that has gone is told of by the write
    std::string error;
    if (mkfifo(m_path.c_str(), 0600) != 0 ||
        !m_client.Start({Base::FileUtil::GetCurExeDir() + "vantor-lpc", "call", "--url", url, "--method",
                         "POST", "--bodies", m_path, "--quiet"},
                        m_path + ".out", error))
        Fail("starting vantor-lpc: " + error);
    m_pipe = open(m_path.c_str(), O_WRONLY | O_CLOEXEC);
    if (m_pipe < 0 || fcntl(m_pipe, F_SETPIPE_SZ, kPipeBytes) < 0)
        Fail("opening the pipe to vantor-lpc");
}

CCaller::~CCaller()
{
    if (m_pipe >= 0)
        close(m_pipe);
}

void CCaller::Feed(const std::string& body)
{
    const std::string line = body + '\n';
    for (std::size_t done = 0; done < line.size();) {
        const ssize_t written = write(m_pipe, line.data() + done, line.size() - done);
        if (written < 0)
            Fail("vantor-lpc takes no more");
        done += static_cast<std::size_t>(written);
    }
}

CallSummary CCaller::End()
{
    close(m_pipe);
    m_pipe = -1;
    const std::optional<int> status = m_client.WaitForExit(kEndLimitMs);
    std::string output;
    Base::FileUtil::ReadFile(m_path + ".out", output);
    if (status != 0)
        Fail("vantor-lpc failed: " + output);
    const lpctool::JsonValue summary = lpctool::ParseJson(output);
    if (!summary)
        Fail("vantor-lpc printed something else than its summary: " + output);
    return {static_cast<std::uint64_t>(NumberOf(summary, "count")), NumberOf(summary, "seconds"),
            NumberOf(summary, "median_us"), NumberOf(summary, "p99_us")};
}

void Fail(const std::string& reason)
{
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(1);
}

} // namespace bench
