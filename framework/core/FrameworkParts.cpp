#include "framework/core/FrameworkParts.h"

#include "Base/AsyncTask.h"
#include "Base/FileUtil.h"
#include "Base/StringUtil.h"
#include "LPC_Wire/WellKnownNames.h"
#include "Protocol/JSONStruct/LPC/LPCCommonJSONStruct.h"
#include "Protocol/JSONStruct/LPC/WndJSONStruct.h"
#include "framework/core/EncryptionSetup.h"
#include "framework/core/Routes.h"

#include <chrono>
#include <filesystem>
#include <future>

namespace framework {

namespace {

constexpr std::uint32_t kWindowTimeoutMs = 10000;
constexpr std::chrono::milliseconds kMovePeriod{50};
constexpr const char* kReadyMethod = "initFinish";
constexpr const char* kEndMethod = "componentUninit";
constexpr int kAlarmRaisedHere = 0;

/// The data of an alarm message.
struct AlarmMessage
{
    std::int32_t alarmType = 0;
    std::string deviceGuid;
    std::string text;
    protocol::Seconds time;

    static constexpr auto Fields()
    {
        using T = AlarmMessage;
        using protocol::Must;
        return std::make_tuple(Must("alarmType", &T::alarmType), Must("deviceGuid", &T::deviceGuid),
                               Must("text", &T::text), Must("time", &T::time));
    }
};

std::string WithSlash(std::string folder)
{
    if (folder.empty() || folder.back() != '/')
        folder += '/';
    return folder;
}

FrameworkOptions Completed(FrameworkOptions options)
{
    options.dataFolder = WithSlash(options.dataFolder);
    return options;
}

std::string FolderAbove(const std::string& folder)
{
    return WithSlash(std::filesystem::path(folder).parent_path().parent_path().string());
}

/// The window in the body of an answer.
std::optional<ComponentWindow> WindowIn(const std::string& body)
{
    protocol::GetWndHandleResponseData answer;
    protocol::LPCRequestData envelope(answer);
    if (!envelope.Parse(body) || answer.wndId <= 0)
        return std::nullopt;
    return ComponentWindow{static_cast<std::uint64_t>(answer.wndId), answer.available.value_or(true)};
}

} // namespace

FrameworkParts::FrameworkParts(IFrameworkEvents& listener, FrameworkOptions given)
    : events(listener), options(Completed(std::move(given))), dataRoot(FolderAbove(options.dataFolder)),
      link(LinkEvents()), process(ProcessWays()),
      supervisor(
          process, loop, [this](ComponentState now, const std::string& why) { OnState(now, why); },
          options.endLimit),
      moves(loop, kMovePeriod, [this](const protocol::FrameworkMoveData& move) { link.Notify(move); })
{}

CComponentLink::Events FrameworkParts::LinkEvents()
{
    return {[this] { loop.Post([this] { OnJoined(); }); }, [this] { loop.Post([this] { OnLeft(); }); },
            [this](const std::string& method) {
                if (method == kReadyMethod)
                    loop.Post([this] { OnReady(); });
            }};
}

CComponentProcess::Ways FrameworkParts::ProcessWays()
{
    CComponentProcess::Ways ways;
    ways.command = [this] {
        link.ForgetComponent();
        return Command();
    };
    ways.output = options.componentOutput;
    ways.askToEnd = [this] {
        const bool isJoined = link.IsJoined();
        link.NotifyMethod(kEndMethod);
        return isJoined;
    };
    ways.onExit = [this](const std::string& how) { loop.Post([this, how] { supervisor.OnExit(how); }); };
    return ways;
}

/// The first two arguments are for people who look at the list of processes.
std::vector<std::string> FrameworkParts::Command() const
{
    const FrameworkChoices choices = settings->Get();
    return {options.componentProgram, "Vantor.Framework", lpc::kFrameworkServerName,
            choices.skin + " " + std::to_string(choices.language) + " " +
                std::to_string(choices.versionType) + " 0 0 0"};
}

bool FrameworkParts::Start(std::string& error)
{
    if (!Base::FileUtil::MakeDirs(options.dataFolder)) {
        error = "The folder \"" + options.dataFolder + "\" cannot be made.";
        return false;
    }
    // The channel comes first: who has it is the only one to touch the files. What clients do meanwhile is
    // looked at when everything has been read; a broken promise ends the wait too.
    std::promise<void> loaded;
    loop.Post([over = loaded.get_future().share()] { over.wait(); });
    const int listening = link.Listen();
    if (listening != lpc::kNoError) {
        error = Base::StringUtil::Format("The channel cannot be opened (error %d). Another framework of this "
                                         "user may be running.",
                                         listening);
        return false;
    }
    if (!Load(error)) {
        link.Stop();
        return false;
    }
    link.Open();
    if (options.connectDevices)
        devices->Start();
    return true;
}

std::unique_ptr<CJournal> FrameworkParts::OpenJournal(const char* name, EntryEvent onEntry)
{
    return std::make_unique<CJournal>(options.dataFolder + name, [this, onEntry](const JournalEntry& entry) {
        eventLoop.PostTask([this, onEntry, entry] { (events.*onEntry)(entry); });
    });
}

bool FrameworkParts::Load(std::string& error)
{
    operations = OpenJournal("operations.jsonl", &IFrameworkEvents::OnOperation);
    notices = OpenJournal("notices.jsonl", &IFrameworkEvents::OnNotice);
    const auto encryption = PrepareEncryption(dataRoot, error);
    if (!encryption)
        return false;
    const std::string& folder = options.dataFolder;
    settings = std::make_unique<CFrameworkSettings>(
        folder + "settings.json", Base::LocalToUTF8(dataRoot), [this](const std::string& names) {
            operations->Add(users->Current().name, "system", "Changed settings: " + names + ".");
        });
    users = std::make_unique<CUsers>(folder + "users.json", [this] { OnUsers(); });
    lastUser = users->Current().name;
    resources = std::make_unique<CResources>(folder + "resources.json", encryption->Params(),
                                             [this](const ResourceChange& change) { OnResource(change); });
    devices = std::make_unique<CDeviceLinks>(
        *resources, folder + "certificates", [this] { TellResources(); }, options.deviceLimits);
    for (const std::string& problem :
         {settings->LoadProblem(), users->LoadProblem(), resources->LoadProblem()})
        if (!problem.empty())
            notices->Add({}, "system", problem);
    AddRoutes(encryption->Params());
    return true;
}

void FrameworkParts::AddRoutes(const Base::Encrypt::AESParams& seal)
{
    RouteServices services;
    services.seal = seal;
    services.isComponentReady = [this] { return state == ComponentState::Ready; };
    services.onFrameResize = [this](const std::string& window, int width, int height) {
        eventLoop.PostTask([=] { events.OnFrameResize(window, width, height); });
    };
    services.logOperation = [this](const std::string& text) {
        operations->Add(users->Current().name, "device", text);
    };
    services.session = [this](const std::string& guid) { return devices->Session(guid); };
    AddFrameworkRoutes(link.Routes(), *settings, services);
    AddDeviceRoutes(link.Routes(), *resources, services);
}

void FrameworkParts::Stop()
{
    if (isStopped.exchange(true))
        return;
    const auto devicesEnd = Base::RunAsync("stop-devices", [this] {
        if (devices)
            devices->Stop();
    });
    std::promise<void> ended;
    loop.Post([&] { supervisor.Finish([&] { ended.set_value(); }); });
    ended.get_future().wait();
    link.Stop();
    devicesEnd.wait();
    loop.Stop();
    eventLoop.Stop();
    answerLoop.Stop();
}

void FrameworkParts::TakeRouteAnswer(Base::Task take)
{
    if (!answerLoop.PostTask(take))
        take();
}

void FrameworkParts::Supervise(void (CSupervisor::*work)())
{
    if (IsExternal() && work != &CSupervisor::Start)
        link.NotifyMethod(kEndMethod);
    else if (!IsExternal())
        loop.Post([this, work] { (supervisor.*work)(); });
}

void FrameworkParts::OnJoined()
{
    if (IsExternal())
        OnState(ComponentState::Starting, "The component has joined.");
    else
        supervisor.OnJoined();
}

void FrameworkParts::OnLeft()
{
    if (IsExternal())
        OnState(ComponentState::Stopped, "The component has left.");
    else
        supervisor.OnLeft();
}

void FrameworkParts::OnReady()
{
    if (IsExternal())
        OnState(ComponentState::Ready, "The component is ready.");
    else
        supervisor.OnReady();
}

void FrameworkParts::OnState(ComponentState newState, const std::string& detail)
{
    state = newState;
    operations->Add({}, "component", detail);
    if (newState == ComponentState::Waiting || newState == ComponentState::GivenUp)
        notices->Add({}, "component", detail);
    if (newState == ComponentState::Ready)
        TellUser();
    eventLoop.PostTask([this, newState, detail] { events.OnComponentState(newState, detail); });
}

void FrameworkParts::OnResource(const ResourceChange& change)
{
    link.Publish(change.type, change.guid, change.data);
    if (!change.text.empty())
        operations->Add(change.isOfUser ? users->Current().name : std::string(), "device", change.text);
    const bool isDevice = change.type.rfind("device", 0) == 0;
    if (isDevice && change.isOfUser)
        devices->Follow(change.guid);
    TellResources();
}

void FrameworkParts::TellResources()
{
    if (resourceEventWaits.exchange(true))
        return;
    eventLoop.PostTask([this] {
        resourceEventWaits = false;
        events.OnResourcesChanged();
    });
}

void FrameworkParts::OnUsers()
{
    const std::string now = users->Current().name;
    std::string text = "The users were changed.";
    {
        std::lock_guard<std::mutex> lock(userMutex);
        if (now != lastUser)
            text = "User \"" + now + "\" took over from \"" + lastUser + "\".";
        lastUser = now;
    }
    operations->Add(now, "user", text);
    TellUser();
    eventLoop.PostTask([this] { events.OnUsersChanged(); });
}

void FrameworkParts::TellUser()
{
    if (!users)
        return;
    std::lock_guard<std::mutex> telling(tellingMutex);
    const User user = users->Current();
    protocol::SwitchUserUpdateFrameData update;
    update.userName = user.name;
    update.permissions = user.permissions;
    link.Notify(update);
}

bool FrameworkParts::SwitchUser(const std::string& name, const std::string& password)
{
    bool isTold = false;
    const auto stopWorking = [&](const User& leaving) {
        protocol::SwitchUserStopWorkingData stop;
        stop.userName = leaving.name;
        link.Notify(stop);
        isTold = true;
    };
    const bool isSwitched = users->Login(name, password, stopWorking);
    if (!isSwitched && isTold)
        TellUser();
    return isSwitched;
}

void FrameworkParts::RaiseAlarm(const std::string& deviceGuid, const std::string& text)
{
    const AlarmMessage alarm{kAlarmRaisedHere, deviceGuid, text, {CJournal::Now()}};
    link.PublishAlarm(kAlarmRaisedHere, deviceGuid,
                      protocol::json::PrintText(protocol::json::Kind<AlarmMessage>::Write(alarm).get()));
    notices->Add({}, "alarm", text);
}

void FrameworkParts::Answer(const CFrameworkCore::WindowAnswer& onAnswer,
                            std::optional<ComponentWindow> window)
{
    if (!eventLoop.PostTask([onAnswer, window] { onAnswer(window); }))
        onAnswer(window);
}

void FrameworkParts::GetWndHandle(const std::string& name, CFrameworkCore::WindowAnswer onAnswer)
{
    if (state != ComponentState::Ready)
        return Answer(onAnswer, std::nullopt);
    protocol::GetWndHandleRequestData request;
    request.type = name;
    link.Ask(request, kWindowTimeoutMs, [this, onAnswer = std::move(onAnswer)](const std::string* body) {
        Answer(onAnswer, body ? WindowIn(*body) : std::nullopt);
    });
}

} // namespace framework
