// The framework's core on its own: framework_helper DATA_FOLDER COMPONENT. Runs until it is killed.

#include "framework/core/FrameworkCore.h"

#include <cstdio>
#include <future>

namespace {

class Silence : public framework::IFrameworkEvents
{
    void OnComponentState(framework::ComponentState, const std::string&) override {}
    void OnResourcesChanged() override {}
    void OnUsersChanged() override {}
    void OnNotice(const framework::JournalEntry&) override {}
    void OnOperation(const framework::JournalEntry&) override {}
    void OnFrameResize(const std::string&, int, int) override {}
};

} // namespace

int main(int, char* argv[])
{
    Silence events;
    framework::CFrameworkCore core(events, {argv[1], argv[2], {}});
    std::string error;
    if (!core.Start(error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    core.StartComponent();
    std::promise<void>().get_future().wait();
}
