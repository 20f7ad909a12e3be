// Measures how many local files a second four clients of the framework can have catalogued, and what a client
// that queries meanwhile sees of it.
//
// The rows' size is the length of a body for adds, and the records of an answer for queries.

#include "records/Caller.h"
#include "records/Framework.h"
#include "support/Placement.h"

#include "Base/StringUtil.h"
#include "lpc/json/Json.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace {

using Base::StringUtil::Format;
using bench::CallSummary;
using bench::CCaller;
using Clock = std::chrono::steady_clock;

constexpr const char* kStoreUrl = "/vantor/v1/internal/video/videoFileNotify";
constexpr const char* kQueryUrl = "/vantor/v1/internal/video/localFileQuery";
constexpr int kCameras = 50;
constexpr int kOfCamera = 100; ///< pictures before the measurement, which the queries ask for
constexpr int kAdders = 4;     ///< two of pictures, two of clips
constexpr int kTarget = 2000;  ///< adds a second
constexpr long long kFirstTime = 1700000000;
constexpr long long kNewTime = 1800000000;

constexpr std::chrono::milliseconds kNonstop{0};
constexpr std::chrono::milliseconds kPaced{10}; ///< of queries

enum Type { kPicture = 0, kVideo = 1 };

Type TypeOf(int adder)
{
    return adder % 2 == 0 ? kPicture : kVideo;
}

std::string CameraOf(int number)
{
    return Format("00000000-0000-4000-8000-%012d", number % kCameras);
}

/// The body of a new file; no two numbers of one adder give the same path.
std::string FileBody(Type type, int adder, int number, long long time)
{
    const std::string name = Format("Camera %02d_%d_%08d", number % kCameras, adder, number);
    const std::string paths =
        type == kPicture
            ? Format(R"("picFilePath":"/home/user/Vantor/picture/%s.jpg")", name.c_str())
            : Format(
                  R"("videoFilePath":"/home/user/Vantor/video/%s.mp4","picFilePath":"/home/user/Vantor/video/)"
                  R"(%s.jpg","timeBegin":%lld,"timeEnd":%lld)",
                  name.c_str(), name.c_str(), time - 30, time + 30);
    return Format(R"({"localFileNotify":{"type":%d,"cameraGuid":"%s","groupGuid":"00000000-0000-4000-9000-)"
                  R"(000000000001","fileName":"%s",%s,"timeOccur":%lld}})",
                  type, CameraOf(number).c_str(), name.c_str(), paths.c_str(), time);
}

std::string QueryBody(Type type, int camera, long long begin, long long end)
{
    return Format(
        R"({"localFileQuery":{"type":%d,"contition":0,"guid":"%s","timeBegin":%lld,"timeEnd":%lld}})", type,
        CameraOf(camera).c_str(), begin, end);
}

/// Feeds a client until the time is over; pace: from one body to the next, or 0 for as fast as they are
/// taken.
template<typename Body>
CallSummary RunUntil(Clock::time_point end, const char* url, std::chrono::milliseconds pace, Body body)
{
    CCaller caller(url);
    auto next = Clock::now();
    for (int number = 0; Clock::now() < end; ++number) {
        caller.Feed(body(number));
        std::this_thread::sleep_until(next += pace);
    }
    return caller.End();
}

CallSummary QueryUntil(Clock::time_point end, std::chrono::milliseconds pace)
{
    return RunUntil(end, kQueryUrl, pace,
                    [](int number) { return QueryBody(kPicture, number, kFirstTime, kNewTime - 1); });
}

CallSummary AddUntil(Clock::time_point end, int adder)
{
    const Type type = TypeOf(adder);
    return RunUntil(end, kStoreUrl, kNonstop,
                    [&](int number) { return FileBody(type, adder, number, kNewTime + number); });
}

void AddFirstPictures()
{
    CCaller caller(kStoreUrl);
    for (int number = 0; number < kCameras * kOfCamera; ++number)
        caller.Feed(FileBody(kPicture, 2 * kAdders, number, kFirstTime + number));
    caller.End();
}

/// Puts the identifiers of the camera's records into the set; their number.
std::size_t Collect(bench::CFrameworkRun& framework, Type type, int camera,
                    std::set<std::string>& identifiers)
{
    const lpctool::JsonValue answer =
        lpctool::ParseJson(framework.Ask(kQueryUrl, QueryBody(type, camera, 0, 2 * kNewTime)));
    const cJSON* const items = answer ? lpctool::Member(answer.get(), "localFileQueryResult") : nullptr;
    const cJSON* item = nullptr;
    cJSON_ArrayForEach(item, items) identifiers.insert(lpctool::TextMember(item, "fileGuid"));
    return static_cast<std::size_t>(cJSON_GetArraySize(items));
}

/// Every file that was acknowledged must be in the catalogue, once and under an identifier of its own.
void RequireAll(bench::CFrameworkRun& framework, std::size_t acknowledged)
{
    std::set<std::string> identifiers;
    std::size_t records = 0;
    for (int camera = 0; camera < kCameras; ++camera)
        records += Collect(framework, kPicture, camera, identifiers) +
                   Collect(framework, kVideo, camera, identifiers);
    if (records != acknowledged || identifiers.size() != acknowledged)
        bench::Fail(
            Format("%zu files were acknowledged, but %zu records with %zu identifiers are in the catalogue",
                   acknowledged, records, identifiers.size()));
    std::printf("# all %zu acknowledged files are in the catalogue\n", acknowledged);
}

void Print(const std::string& name, std::size_t size, const CallSummary& summary)
{
    std::printf("records %s %zu %.0f %.0f %.0f\n", name.c_str(), size, summary.medianUs, summary.p99Us,
                summary.PerSecond());
    std::fflush(stdout);
}

/// The rows of all adders; gives what they added.
std::uint64_t PrintAdds(const char* ending, const std::vector<CallSummary>& adds)
{
    CallSummary all;
    for (std::size_t adder = 0; adder < adds.size(); ++adder) {
        const CallSummary& one = adds[adder];
        const Type type = TypeOf(static_cast<int>(adder));
        const std::string name = std::string(type == kPicture ? "add-picture" : "add-video") + ending;
        Print(name, FileBody(type, 0, 0, kNewTime).size(), one);
        all.count += one.count;
        all.seconds = std::max(all.seconds, one.seconds);
        all.p99Us = std::max(all.p99Us, one.p99Us);
    }
    std::printf("# add%s: %.0f a second of %d clients for %.1f s (target %d); p99 of the slowest %.0f us\n",
                ending, all.PerSecond(), kAdders, all.seconds, kTarget, all.p99Us);
    return all.count;
}

/// Adds and queries together, for that long; prints the rows and gives what was added. first: the number of
/// the first adder, each of which has its own paths.
std::uint64_t MeasureTogether(const char* ending, std::chrono::seconds length, int first,
                              std::chrono::milliseconds pace, const CallSummary& queriesAlone)
{
    const auto end = Clock::now() + length;
    std::vector<CallSummary> adds(kAdders);
    std::vector<std::thread> threads;
    for (int adder = 0; adder < kAdders; ++adder)
        threads.emplace_back(
            [&, adder] { adds[static_cast<std::size_t>(adder)] = AddUntil(end, first + adder); });
    const CallSummary queries = QueryUntil(end, pace);
    for (std::thread& thread : threads)
        thread.join();
    const std::uint64_t added = PrintAdds(ending, adds);
    Print(std::string("query-beside-adds") + ending, kOfCamera, queries);
    std::printf("# query-beside-adds%s: median %.2f x, p99 %.2f x that of queries alone\n", ending,
                queries.medianUs / queriesAlone.medianUs, queries.p99Us / queriesAlone.p99Us);
    return added;
}

} // namespace

/// --quick measures for three seconds, else ten.
int main(int argc, char** argv)
{
    const auto length = std::chrono::seconds(argc > 1 && std::strcmp(argv[1], "--quick") == 0 ? 3 : 10);
    const bench::CFreshRoot root;
    bench::CFrameworkRun framework(kQueryUrl, QueryBody(kPicture, 0, kFirstTime, kNewTime));
    AddFirstPictures();
    const CallSummary paced = QueryUntil(Clock::now() + length, kPaced);
    Print("query", kOfCamera, paced);
    const CallSummary nonstop = QueryUntil(Clock::now() + length, kNonstop);
    Print("query-nonstop", kOfCamera, nonstop);
    const std::uint64_t added = MeasureTogether("", length, 0, kPaced, paced) +
                                MeasureTogether("-nonstop", length, kAdders, kNonstop, nonstop);
    RequireAll(framework, added + kCameras * kOfCamera);
    return 0;
}
