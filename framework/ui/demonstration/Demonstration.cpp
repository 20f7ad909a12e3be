#include "framework/ui/demonstration/Demonstration.h"

#include "Base/AsyncTask.h"
#include "Base/Log.h"
#include "framework/core/Stored.h"
#include "framework/ui/demonstration/DemonstrationFiles.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace framework {

namespace {

/// How far it has come.
struct Progress
{
    protocol::Seconds begin; ///< the files lie in the days before
    std::int32_t reported = 0;
    bool isOver = false;
    std::vector<std::string> devices; ///< as they were added; some may have been removed since
    std::vector<std::int32_t> ports;  ///< of theirs, in the same order

    static constexpr auto Fields()
    {
        using T = Progress;
        using protocol::May;
        using protocol::Must;
        return std::make_tuple(Must("begin", &T::begin), Must("reported", &T::reported),
                               Must("isOver", &T::isOver), May("devices", &T::devices),
                               May("ports", &T::ports));
    }
};

constexpr const char* kThisComputer = "127.0.0.1";
constexpr std::chrono::milliseconds kPoll{50};
constexpr std::chrono::seconds kLongestWait{20}; ///< for the devices to be reached

/// Asks, and waits for the one answer.
template<typename Answer, typename Ask>
Asked<Answer> Await(Ask ask)
{
    std::promise<Asked<Answer>> promise;
    ask([&](const Asked<Answer>& answer) { promise.set_value(answer); });
    return promise.get_future().get();
}

} // namespace

struct CDemonstration::State
{
    CFrameworkCore& core;
    std::function<void()> onReported;
    TStored<Progress> progress;
    int count;

    void Run();
    [[nodiscard]] bool Begin();
    void AddDevices(const SimulatorReady& ready);
    void MoveDevices(const SimulatorReady& ready);
    void AwaitDevices() const;
    /// Why the file could not be made or reported; empty when its record is there.
    std::string Make(const DemonstrationFile& file, bool mayBeThere);
    bool IsThere(const protocol::LocalFileNotify& record);
    [[nodiscard]] bool Note(int reported);
};

CDemonstration::CDemonstration(CFrameworkCore& core, const std::string& folder,
                               std::function<void()> onReported, int files)
    : m_state(new State{
          core, std::move(onReported), {folder + "demonstration.json", [] { return Progress(); }, {}}, files})
{
    if (m_state->progress.Get().begin.count == 0 && !core.Resources().Devices().empty())
        (void)m_state->Begin();
}

CDemonstration::~CDemonstration() = default;

bool CDemonstration::WantsDevices() const
{
    const Progress now = m_state->progress.Get();
    return !now.devices.empty() || (now.begin.count == 0 && m_state->core.Resources().Devices().empty());
}

std::vector<std::int32_t> CDemonstration::Ports() const
{
    return m_state->progress.Get().ports;
}

void CDemonstration::TakeDevices(const SimulatorReady& ready)
{
    const Progress now = m_state->progress.Get();
    if (now.begin.count == 0 && m_state->Begin())
        m_state->AddDevices(ready);
    else
        m_state->MoveDevices(ready);
}

void CDemonstration::Run()
{
    const bool isRunning =
        m_run.valid() && m_run.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
    const Progress now = m_state->progress.Get();
    const bool isReady = m_state->core.State() == ComponentState::Ready && now.begin.count != 0;
    if (isRunning || now.isOver || !isReady)
        return;
    m_run = Base::RunAsync("demonstration", [state = m_state] { state->Run(); });
}

void CDemonstration::State::Run()
{
    AwaitDevices();
    const Progress before = progress.Get();
    const std::vector<DemonstrationFile> files =
        PlanDemonstration(core.Resources(), before.begin.count, count);
    std::string problem = files.empty() ? "no camera is known" : "";
    int reported = before.reported;
    while (reported < static_cast<int>(files.size()) && problem.empty()) {
        problem = Make(files[static_cast<std::size_t>(reported)], reported == before.reported);
        if (problem.empty() && !Note(++reported))
            problem = "the state cannot be saved";
    }
    if (!problem.empty())
        BASE_WARN("The demonstration stopped after %d files: %s.", reported, problem.c_str());
    else if (progress.Change([](Progress& now) { return now.isOver = true; }))
        BASE_INFO("The demonstration has %d files.", reported);
    if (reported > before.reported)
        onReported();
}

bool CDemonstration::State::Begin()
{
    const bool isFresh = core.Resources().Devices().empty();
    if (!isFresh)
        BASE_INFO("There is no demonstration, as there are devices already.");
    const auto begin = [&](Progress& now) {
        now.begin.count = CJournal::Now();
        now.isOver = !isFresh;
        return true;
    };
    return progress.Change(begin) && isFresh;
}

void CDemonstration::State::AddDevices(const SimulatorReady& ready)
{
    std::vector<std::string> guids;
    std::vector<std::int32_t> ports;
    for (const SimulatedDevice& device : ready.devices) {
        const DeviceEntry entry{
            device.name, kThisComputer, device.port, ready.user, CSimulatedDevices::kPassword, false};
        std::string error;
        guids.push_back(core.Resources().Add(entry, error));
        ports.push_back(device.port);
        if (!error.empty())
            BASE_WARN("A device of the demonstration was not added: %s", error.c_str());
    }
    const auto note = [&](Progress& now) {
        now.devices = guids;
        now.ports = ports;
        return true;
    };
    if (!progress.Change(note))
        BASE_WARN("The devices of the demonstration cannot be noted.");
}

void CDemonstration::State::MoveDevices(const SimulatorReady& ready)
{
    const Progress before = progress.Get();
    std::vector<std::int32_t> ports;
    for (std::size_t at = 0; at < std::min(before.devices.size(), ready.devices.size()); ++at) {
        DeviceEntry entry;
        std::string error;
        ports.push_back(ready.devices[at].port);
        if (!core.Resources().EntryOf(before.devices[at], entry) || entry.port == ports.back())
            continue;
        entry.port = ports.back();
        if (!core.Resources().Edit(before.devices[at], entry, error))
            BASE_WARN("A device of the demonstration was not moved: %s", error.c_str());
    }
    const auto note = [&](Progress& now) {
        now.ports = ports;
        return ports != before.ports;
    };
    (void)progress.Change(note);
}

// Their cameras are known once they were reached.
void CDemonstration::State::AwaitDevices() const
{
    const auto isAwaited = [this](const std::string& guid) {
        bool isOnline = false;
        return core.Resources().Find(guid, isOnline) && !isOnline;
    };
    const std::vector<std::string> guids = progress.Get().devices;
    const auto end = std::chrono::steady_clock::now() + kLongestWait;
    while (std::any_of(guids.begin(), guids.end(), isAwaited) && std::chrono::steady_clock::now() < end &&
           core.State() == ComponentState::Ready)
        std::this_thread::sleep_for(kPoll);
}

std::string CDemonstration::State::Make(const DemonstrationFile& file, bool mayBeThere)
{
    const protocol::LocalFileNotify record = RecordOf(file, core.Settings().Get());
    if (!WriteDemonstrationFile(file, record))
        return "its file cannot be written";
    if (mayBeThere && IsThere(record))
        return {};
    const auto answer =
        Await<protocol::FileNotifyResult>([&](auto take) { core.ReportLocalFile(record, std::move(take)); });
    if (answer.outcome != AskOutcome::Answered)
        return NameOf(answer.outcome);
    return answer.value.guid.empty() ? "the component did not store its record" : "";
}

// A run that ended between report and note has left one record that this run knows nothing of; a clip that is
// reported twice would overwrite the other clips of its camera.
bool CDemonstration::State::IsThere(const protocol::LocalFileNotify& record)
{
    protocol::LocalFileQuery query;
    query.type = record.type;
    query.guid = record.cameraGuid;
    query.timeBegin = record.timeOccur;
    query.timeEnd = record.timeOccur;
    const auto answer = Await<protocol::LocalFileQueryResult>(
        [&](auto take) { core.QueryLocalFiles(query, std::move(take)); });
    for (const protocol::LocalFileQueryItem& known : answer.value.files)
        if (known.fileName == record.fileName)
            return true;
    return false;
}

bool CDemonstration::State::Note(int reported)
{
    return progress.Change([&](Progress& now) {
        now.reported = reported;
        return true;
    });
}

} // namespace framework
