// Measures how long the component takes to start, beside an empty program of the same toolkit on the same
// screen.

#include "Caches.h"
#include "Screen.h"
#include "StageTimes.h"
#include "support/ComponentHost.h"
#include "support/Placement.h"
#include "support/Samples.h"

#include "Base/FileUtil.h"
#include "ChildProcess/ChildProcess.h"
#include "Protocol/JSONStruct/LPC/LPCCommonJSONStruct.h"
#include "Protocol/JSONStruct/LPC/WndJSONStruct.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using bench::CSamples;
using Clock = std::chrono::steady_clock;

constexpr const char* kGroup = "startup";
constexpr const char* kPage = "MainView";

[[noreturn]] void Fail(const std::string& what)
{
    std::fprintf(stderr, "%s\n", what.c_str());
    std::exit(1);
}

/// The times of one kind of start, each of its own round.
struct Times
{
    explicit Times(std::size_t rounds)
        : empty(rounds), emptyWithoutGl(rounds), initFinish(rounds), firstPage(rounds)
    {}

    CSamples empty;
    CSamples emptyWithoutGl;
    CSamples initFinish;
    CSamples firstPage;
};

template<typename Data>
lpc::Message MethodCall(Data data)
{
    data.type = kPage;
    return {{{"method", Data::kKey}}, protocol::WriteLPCStr(data)};
}

class CRounds
{
public:
    /// Both kinds of the empty program: as it is, and told to leave OpenGL aside.
    void MeasureEmpty(Times& times);
    void MeasureComponent(Times& times, bench::CStageTimes* stages);

    /// The next start makes log, layout files and databases anew, as on the first day.
    void ForgetData() { std::filesystem::remove_all(m_data); }
    const char* DropFileCache() const { return m_cache.Drop(); }
    std::string LogPath() const { return m_data + "/log/Video.C.log"; }

private:
    void MeasureProgram(const std::vector<std::string>& command, CSamples& times);
    void Embed();

    bench::CFreshRoot m_root;
    const std::string m_data = Base::FileUtil::UserDataRoot() + "Video.C";
    bench::CComponentHost m_component;
    bench::CScreen m_screen;
    bench::CFileCache m_cache;
};

void CRounds::MeasureEmpty(Times& times)
{
    const std::string program = Base::FileUtil::GetCurExeDir() + "bench_startup_empty";
    MeasureProgram({program}, times.empty);
    MeasureProgram({program, "--without-gl"}, times.emptyWithoutGl);
}

void CRounds::MeasureProgram(const std::vector<std::string>& command, CSamples& times)
{
    CChildProcess program;
    std::string error;
    const auto start = Clock::now();
    if (!program.Start(command, {}, error))
        Fail(error);
    times.Add(m_screen.WaitForPaint() - start);
    m_cache.Note(static_cast<int>(program.Id()));
    program.Signal(CChildProcess::SignalNumber("SIGKILL").value_or(9));
    m_screen.WaitUntilBare();
}

void CRounds::Embed()
{
    protocol::GetWndHandleResponseData window;
    protocol::LPCRequestData envelope(window);
    const std::string answer = m_component.Ask(MethodCall(protocol::GetWndHandleRequestData())).body;
    if (!envelope.Parse(answer))
        Fail("no window: " + answer);
    m_screen.Embed(static_cast<std::uint64_t>(window.wndId));
    m_component.Notify(MethodCall(protocol::ShowWndRequestData()));
}

void CRounds::MeasureComponent(Times& times, bench::CStageTimes* stages)
{
    if (stages)
        stages->Skip();
    const auto clock = std::chrono::system_clock::now();
    const auto start = Clock::now();
    times.initFinish.Add(m_component.Start());
    Embed();
    times.firstPage.Add(m_screen.WaitForPaint() - start);
    if (m_screen.Colors() < 3)
        Fail("the page shows nothing");
    m_cache.Note(m_component.ProcessId());
    m_component.End();
    m_screen.WaitUntilBare();
    if (stages)
        stages->Take(clock);
}

void PrintOne(CSamples& times, const char* name, const std::string& kind, CSamples& empty)
{
    times.Print(kGroup, name + kind, 0);
    std::printf("# %s%s: %.2f x empty\n", name, kind.c_str(), times.Median() / empty.Median());
}

void Print(Times& times, const std::string& kind, CSamples& empty)
{
    PrintOne(times.initFinish, "init-finish", kind, empty);
    PrintOne(times.firstPage, "first-page", kind, empty);
    std::fflush(stdout);
}

void RunWarm(CRounds& rounds, std::size_t count)
{
    Times warm(count);
    Times first(count);
    Times unmeasured(1);
    rounds.MeasureEmpty(unmeasured);
    rounds.MeasureComponent(unmeasured, nullptr);
    bench::CStageTimes stages(rounds.LogPath());
    for (std::size_t i = 0; i < count; ++i) {
        rounds.MeasureEmpty(warm);
        rounds.MeasureComponent(warm, &stages);
    }
    for (std::size_t i = 0; i < (count + 2) / 3; ++i) {
        rounds.ForgetData();
        rounds.MeasureComponent(first, nullptr);
    }
    warm.empty.Print(kGroup, "empty", 0);
    warm.emptyWithoutGl.Print(kGroup, "empty-without-gl", 0);
    Print(warm, "", warm.empty);
    Print(first, "-first", warm.empty);
    stages.Print();
}

void RunCold(CRounds& rounds, std::size_t count)
{
    Times cold(count);
    const char* way = "";
    for (std::size_t i = 0; i < count; ++i) {
        way = rounds.DropFileCache();
        rounds.MeasureEmpty(cold);
        rounds.DropFileCache();
        rounds.MeasureComponent(cold, nullptr);
    }
    cold.empty.Print(kGroup, "empty-cold", 0);
    Print(cold, "-cold", cold.empty);
    std::printf("# cold: %s\n", way);
}

} // namespace

/// --quick makes a third of the rounds; --warm leaves out the cold ones.
int main(int argc, char** argv)
{
    const auto has = [&](const char* option) {
        return std::any_of(argv + 1, argv + argc,
                           [&](const char* given) { return std::strcmp(given, option) == 0; });
    };
    CRounds rounds;
    RunWarm(rounds, has("--quick") ? 5 : 15);
    if (!has("--warm"))
        RunCold(rounds, has("--quick") ? 1 : 3);
    return 0;
}
