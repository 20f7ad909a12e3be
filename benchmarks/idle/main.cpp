// Measures what the component, and the framework with it, costs while nobody does anything.
//
// A row is `idle case resident_KiB median_us p99_us per_s`: the processor time of one second, and wake-ups a
// second.

#include "idle/ProcessUse.h"
#include "support/ComponentHost.h"
#include "support/Placement.h"

#include "Base/FileUtil.h"
#include "ChildProcess/ChildProcess.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

namespace {

using bench::ProcessUse;

/// What is counted is told for this time, for which the component's targets are: 10 ms of processor time and
/// 20 wake-ups.
constexpr int kTargetSeconds = 20;

struct Plan
{
    int seconds = kTargetSeconds;
    int settleSeconds = 5;
};

void Sleep(int seconds)
{
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
}

/// Watches the process for the seconds, after the settling time, and prints its row.
void Measure(const std::string& name, int process, const Plan& plan)
{
    Sleep(plan.settleSeconds);
    const ProcessUse before = bench::UseOf(process);
    ProcessUse last = before;
    std::vector<double> cpu;
    for (int second = 0; second < plan.seconds; ++second) {
        Sleep(1);
        const ProcessUse now = bench::UseOf(process);
        cpu.push_back(static_cast<double>(now.cpuNs - last.cpuNs) / 1e3);
        last = now;
    }
    std::sort(cpu.begin(), cpu.end());
    const double toTarget = static_cast<double>(kTargetSeconds) / plan.seconds;
    const auto wakeUps = static_cast<double>(last.wakeUps - before.wakeUps);
    std::printf("idle %s %lld %.2f %.2f %.1f\n", name.c_str(), static_cast<long long>(last.residentKiB),
                cpu[cpu.size() / 2], cpu[(cpu.size() * 99 - 1) / 100], wakeUps / plan.seconds);
    std::printf("# %s: in %d s %.2f ms of processor time and %.0f wake-ups; %lld threads, %.1f MiB resident, "
                "%.1f MiB with shared pages in parts\n",
                name.c_str(), kTargetSeconds, static_cast<double>(last.cpuNs - before.cpuNs) / 1e6 * toTarget,
                wakeUps * toTarget, static_cast<long long>(last.threads),
                static_cast<double>(last.residentKiB) / 1024, static_cast<double>(last.shareKiB) / 1024);
    std::fflush(stdout);
}

void RunComponent(const Plan& plan)
{
    const bench::CFreshRoot root;
    bench::CComponentHost component;
    component.Start();
    Measure("component", component.ProcessId(), plan);
    const std::string page = R"("data":{"type":"ToolkitGallery"}})";
    component.Ask({{{"method", "getWndHandle"}}, R"({"method":"getWndHandle",)" + page});
    component.Notify({{{"method", "showWnd"}}, R"({"method":"showWnd",)" + page});
    Measure("component-page-shown", component.ProcessId(), plan);
}

/// The reference framework with its window, and the component that it started, with a page embedded.
void RunFramework(const Plan& plan)
{
    const bench::CFreshRoot root;
    CChildProcess framework;
    std::string error;
    if (!framework.Start({Base::FileUtil::GetCurExeDir() + "Vantor.Framework", "--skin", "BlackRedSkin",
                          "--language", "1", "--open", "MainView"},
                         Base::FileUtil::UserDataRoot() + "framework-output", error)) {
        std::fprintf(stderr, "starting the framework: %s\n", error.c_str());
        std::exit(1);
    }
    const int process = static_cast<int>(framework.Id());
    Sleep(10);
    Measure("framework", process, plan);
    for (const int child : bench::ChildrenOf(process))
        Measure("component-of-framework", child, plan);
    framework.Signal(SIGTERM);
    if (!framework.WaitForExit(20000))
        std::fprintf(stderr, "the framework does not end\n");
}

} // namespace

/// --quick watches for a quarter of the time.
int main(int argc, char** argv)
{
    Plan plan;
    std::printf(
        "# idle rows: resident KiB; median and 99 %% of the processor time of one second; wake-ups a second\n"
        "# targets of the component: in 20 s at most 10 ms of processor time and 20 wake-ups\n");
    if (argc > 1 && std::strcmp(argv[1], "--quick") == 0)
        plan.seconds = kTargetSeconds / 4;
    RunComponent(plan);
    RunFramework(plan);
    return 0;
}
