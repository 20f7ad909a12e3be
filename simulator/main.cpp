#include "simulator/Simulator.h"

#include "Base/ProcessUtil.h"

#include <future>
#include <iostream>

namespace {

constexpr int kDone = 0;
constexpr int kCannotRun = 1;
constexpr int kWrongArguments = 2;

int Run(const simulator::Settings& settings)
{
    using Base::ProcessUtil::ParentsEnd;
    Base::ProcessUtil::HoldEndRequests(settings.endsWithParent ? ParentsEnd::Counts
                                                               : ParentsEnd::DoesNotCount);
    Base::ProcessUtil::FailWritesInsteadOfEnding();
    simulator::CSimulator devices(settings, [](const std::string& line) {
        std::cerr << "vantor-device-sim: " + line + '\n' << std::flush;
    });
    std::string error;
    if (!devices.Start(error)) {
        std::cerr << "vantor-device-sim: " << error << '\n';
        return kCannotRun;
    }
    std::promise<void> ended;
    Base::ProcessUtil::OnEndRequest([&ended] { ended.set_value(); });
    std::cout << devices.ReadyLine() << std::endl;
    ended.get_future().wait();
    devices.Stop();
    return kDone;
}

} // namespace

int main(int argc, char* argv[])
{
    std::string error;
    const auto settings = simulator::ReadSettings({argv + 1, argv + argc}, error);
    if (!settings) {
        std::cerr << "vantor-device-sim: " << error << "; --help tells how it is called\n";
        return kWrongArguments;
    }
    if (settings->wantsHelp) {
        std::cout << simulator::HelpText();
        return kDone;
    }
    return Run(*settings);
}
