// A framework that starts the component and has it catalogue files until the one or the other is killed:
//     record_adder COMPONENT OUTPUT ACKNOWLEDGED ROUND
// Every identifier that an answer brings is written at once, with its path, as a line of ACKNOWLEDGED.
// With the round "check" it asks for the path of each of these lines, prints how many are not found, and ends
// the component.

#include "ChildProcess/ChildProcess.h"
#include "LPC_Wire/WellKnownNames.h"
#include "lpc/host/Host.h"

#include <atomic>
#include <fstream>
#include <iostream>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int kThreads = 4;
constexpr std::uint32_t kAnswerMs = 20000;
constexpr const char* kLocalFile = "/vantor/v1/internal/video/locaFile";

/// The text of answer.MESSAGE.MEMBER; empty when there is no such answer.
std::string Ask(lpctool::CHost& host, const std::string& body, const char* message, const char* member)
{
    lpc::Message answer;
    const lpc::Message request{{{"protocol", "http"}, {"url", kLocalFile}}, body};
    if (host.Invoke(host.Inbox().Client(), request, kAnswerMs, answer) != lpc::kNoError)
        return {};
    const lpctool::JsonValue value = lpctool::ParseJson(answer.body);
    return lpctool::TextMember(lpctool::Member(value.get(), message), member);
}

/// Adds pictures and clips in turn, as long as they are answered.
void AddFiles(lpctool::CHost& host, const std::string& prefix, std::ofstream& acknowledged, std::mutex& mutex)
{
    for (int i = 0;; ++i) {
        const bool isVideo = i % 2 == 1;
        const std::string path = prefix + std::to_string(i);
        const std::string guid =
            Ask(host,
                R"({"localFileNotify":{"type":)" + std::to_string(isVideo) + R"(,"cameraGuid":"camera )" +
                    prefix + R"(","groupGuid":"group","fileName":"O'Hara","timeOccur":)" +
                    std::to_string(1700000000 + i) +
                    (isVideo ? R"(,"videoFilePath":")" : R"(,"picFilePath":")") + path + R"("}})",
                "fileNotifyResult", "guid");
        if (guid.empty())
            return;
        std::lock_guard<std::mutex> lock(mutex);
        acknowledged << isVideo << ' ' << guid << ' ' << path << std::endl;
    }
}

void AddUntilKilled(lpctool::CHost& host, const std::string& list, const std::string& round)
{
    std::ofstream acknowledged(list, std::ios::app);
    std::mutex mutex;
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back(
            [&, i] { AddFiles(host, "/" + round + "/" + std::to_string(i) + "/", acknowledged, mutex); });
    for (std::thread& thread : threads)
        thread.join();
}

/// How many of the list's identifiers do not resolve to their path.
int CountMissing(lpctool::CHost& host, const std::string& list)
{
    std::ifstream acknowledged(list);
    int missing = 0;
    std::string type;
    std::string guid;
    std::string path;
    while (acknowledged >> type >> guid >> path)
        missing += Ask(host, R"({"localFile":{"type":)" + type + R"(,"guid":")" + guid + R"("}})",
                       "localFileResult", "path") != path;
    return missing;
}

} // namespace

int main(int, char* argv[])
{
    lpctool::CHost host(lpc::kVideoComponentName);
    CChildProcess component([&](int status) { host.Inbox().Exited(status); });
    std::string error;
    if (host.Start(lpc::kFrameworkServerName) != lpc::kNoError ||
        !component.Start({argv[1], "1", "2", "BlackRedSkin 1 0 0 0 0"}, argv[2], error)) {
        std::cerr << "cannot start: " << error << '\n';
        return 1;
    }
    const auto isReady = [](const cJSON& message) {
        return lpctool::TextMember(&message, "method") == "initFinish";
    };
    if (host.Inbox().WaitForMessage(lpctool::CComponentInbox::Kind::Notification,
                                    lpctool::Clock::now() + std::chrono::seconds(30),
                                    isReady) != lpctool::CComponentInbox::Outcome::Found)
        return 2;
    const std::string round = argv[4];
    if (round != "check") {
        AddUntilKilled(host, argv[3], round);
        return 0;
    }
    std::cout << CountMissing(host, argv[3]) << std::endl;
    const bool isTold =
        host.Notify(host.Inbox().Client(), {{{"method", "componentUninit"}}, ""}) == lpc::kNoError;
    return isTold && component.WaitForExit(20000) == 0 ? 0 : 3;
}
