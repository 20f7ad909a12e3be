// A framework that starts the component and has it catalogue files until the one or the other is killed:
//     record_adder COMPONENT OUTPUT ACKNOWLEDGED ROUND
// Every identifier that an answer brings is written at once, with its path, as a line of ACKNOWLEDGED.
// With the round "check" it asks for the path of each of these lines, prints how many are not found, and ends
// the component.

#include "lpc/json/Json.h"
#include "system/HostedComponent.h"

#include <fstream>
#include <iostream>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int kThreads = 4;
constexpr const char* kLocalFile = "/vantor/v1/internal/video/locaFile";

/// The text of answer.MESSAGE.MEMBER; empty when there is no such answer.
std::string Ask(HostedComponent& component, const std::string& body, const char* message, const char* member)
{
    const lpctool::JsonValue answer = lpctool::ParseJson(component.Ask(kLocalFile, body));
    return lpctool::TextMember(lpctool::Member(answer.get(), message), member);
}

/// Adds pictures and clips in turn, as long as they are answered.
void AddFiles(HostedComponent& component, const std::string& prefix, std::ofstream& acknowledged,
              std::mutex& mutex)
{
    for (int i = 0;; ++i) {
        const bool isVideo = i % 2 == 1;
        const std::string path = prefix + std::to_string(i);
        const std::string guid =
            Ask(component,
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

void AddUntilKilled(HostedComponent& component, const std::string& list, const std::string& round)
{
    std::ofstream acknowledged(list, std::ios::app);
    std::mutex mutex;
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back([&, i] {
            AddFiles(component, "/" + round + "/" + std::to_string(i) + "/", acknowledged, mutex);
        });
    for (std::thread& thread : threads)
        thread.join();
}

/// How many of the list's identifiers do not resolve to their path.
int CountMissing(HostedComponent& component, const std::string& list)
{
    std::ifstream acknowledged(list);
    int missing = 0;
    std::string type;
    std::string guid;
    std::string path;
    while (acknowledged >> type >> guid >> path)
        missing += Ask(component, R"({"localFile":{"type":)" + type + R"(,"guid":")" + guid + R"("}})",
                       "localFileResult", "path") != path;
    return missing;
}

} // namespace

int main(int, char* argv[])
{
    HostedComponent component(argv[1], argv[2]);
    const std::string round = argv[4];
    if (round != "check") {
        AddUntilKilled(component, argv[3], round);
        return 0;
    }
    std::cout << CountMissing(component, argv[3]) << std::endl;
    return component.End();
}
