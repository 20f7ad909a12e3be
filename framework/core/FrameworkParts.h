#pragma once

#include "Base/MessageLoop.h"
#include "Protocol/JSONStruct/LPC/UserJSONStruct.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"
#include "framework/core/ComponentLink.h"
#include "framework/core/ComponentProcess.h"
#include "framework/core/DeviceLinks.h"
#include "framework/core/FrameworkCore.h"
#include "framework/core/NewestOnly.h"
#include "framework/core/Supervisor.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace framework {

/// What the core is made of, and what goes on between the parts.
///
/// Threads: the server's (never waits), the workers of the routes, "component" (supervision, timers),
/// "events" (calls of IFrameworkEvents and of window answers), "answers" (of the component's routes), those
/// of CDeviceLinks, and the callers'.
struct FrameworkParts : Base::CNoncopyable
{
    FrameworkParts(IFrameworkEvents& events, FrameworkOptions options);

    [[nodiscard]] bool Start(std::string& error);
    void Stop();

    /// Runs the work with the supervisor on its thread.
    void Supervise(void (CSupervisor::*work)());
    void GetWndHandle(const std::string& name, CFrameworkCore::WindowAnswer onAnswer);
    /// Asks a route of the component.
    template<typename Body>
    void AskComponent(const char* url, const protocol::IInboundData& question, OnAsked<Body> onAnswer);
    bool SwitchUser(const std::string& name, const std::string& password);
    void RaiseAlarm(const std::string& deviceGuid, const std::string& text);

    bool IsExternal() const { return options.componentProgram.empty(); }
    void Answer(const CFrameworkCore::WindowAnswer& onAnswer, std::optional<ComponentWindow> window);

    IFrameworkEvents& events;
    const FrameworkOptions options;
    const std::string dataRoot; ///< the folder above the framework's own, ending in "/"
    std::atomic<ComponentState> state{ComponentState::Stopped};
    std::atomic<bool> resourceEventWaits{false};
    std::atomic<bool> isStopped{false};
    std::mutex userMutex;
    std::string lastUser;    ///< under userMutex
    std::mutex tellingMutex; ///< so that the component hears of the newest user last

    Base::CMessageLoop eventLoop{"events"};
    Base::CMessageLoop answerLoop{"answers"}; ///< reads long bodies
    std::unique_ptr<CJournal> operations;
    std::unique_ptr<CJournal> notices;
    std::unique_ptr<CFrameworkSettings> settings;
    std::unique_ptr<CUsers> users;
    std::unique_ptr<CResources> resources;
    std::unique_ptr<CDeviceLinks> devices;
    CTimedLoop loop{"component"};
    CComponentLink link;
    CComponentProcess process;
    CSupervisor supervisor;                         ///< on the loop's thread
    TNewestOnly<protocol::FrameworkMoveData> moves; ///< on the loop's thread

private:
    using EntryEvent = void (IFrameworkEvents::*)(const JournalEntry& entry);

    void TakeRouteAnswer(Base::Task take);
    std::unique_ptr<CJournal> OpenJournal(const char* name, EntryEvent onEntry);
    [[nodiscard]] bool Load(std::string& error);
    void AddRoutes(const Base::Encrypt::AESParams& seal);
    std::vector<std::string> Command() const;
    CComponentLink::Events LinkEvents();
    CComponentProcess::Ways ProcessWays();
    void OnJoined();
    void OnLeft();
    void OnReady();
    void OnState(ComponentState newState, const std::string& detail);
    void OnResource(const ResourceChange& change);
    void TellResources();
    void OnUsers();
    void TellUser();
};

template<typename Body>
void FrameworkParts::AskComponent(const char* url, const protocol::IInboundData& question,
                                  OnAsked<Body> onAnswer)
{
    const auto take = [this, onAnswer = std::move(onAnswer)](AskOutcome outcome, const std::string& body) {
        TakeRouteAnswer([outcome, body, onAnswer] {
            Asked<Body> answer;
            answer.outcome = outcome;
            if (outcome == AskOutcome::Answered && !protocol::TParseJSONStr(answer.value, body))
                answer.outcome = AskOutcome::Unreadable;
            onAnswer(answer);
        });
    };
    if (state == ComponentState::Ready)
        link.AskRoute(url, protocol::WriteJSONStr(question),
                      static_cast<std::uint32_t>(options.answerLimit.count()), take);
    else
        take(AskOutcome::NotThere, {});
}

} // namespace framework
