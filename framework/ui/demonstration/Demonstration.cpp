#include "framework/ui/demonstration/Demonstration.h"

#include "Base/AsyncTask.h"
#include "Base/Log.h"
#include "framework/core/Stored.h"
#include "framework/ui/demonstration/DemonstrationFiles.h"

#include <chrono>

namespace framework {

namespace {

constexpr int kFiles = 60;

/// How far it has come.
struct Progress
{
    protocol::Seconds begin; ///< the files lie in the days before
    std::int32_t reported = 0;
    bool isOver = false;

    static constexpr auto Fields()
    {
        using T = Progress;
        using protocol::Must;
        return std::make_tuple(Must("begin", &T::begin), Must("reported", &T::reported),
                               Must("isOver", &T::isOver));
    }
};

struct SampleDevice
{
    const char* name;
    DeviceType type;
    const char* address; ///< of those that are kept for examples, RFC 5737
    int channels;
};

constexpr SampleDevice kDevices[] = {
    {"Main gate", Recorder, "192.0.2.21", 4},
    {"Warehouse", Recorder, "192.0.2.22", 4},
    {"Car park", Encoder, "192.0.2.23", 2},
};

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

    void Run();
    [[nodiscard]] bool Begin();
    void AddDevices();
    /// Why the file could not be made or reported; empty when its record is there.
    std::string Make(const DemonstrationFile& file, bool mayBeThere);
    bool IsThere(const protocol::LocalFileNotify& record);
    [[nodiscard]] bool Note(int reported);
};

CDemonstration::CDemonstration(CFrameworkCore& core, const std::string& folder,
                               std::function<void()> onReported)
    : m_state(new State{
          core, std::move(onReported), {folder + "demonstration.json", [] { return Progress(); }, {}}})
{}

CDemonstration::~CDemonstration() = default;

void CDemonstration::Run()
{
    const bool isRunning =
        m_run.valid() && m_run.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
    if (isRunning || m_state->progress.Get().isOver)
        return;
    m_run = Base::RunAsync("demonstration", [state = m_state] { state->Run(); });
}

void CDemonstration::State::Run()
{
    if (progress.Get().begin.count == 0 && !Begin())
        return;
    if (core.Resources().Devices().empty())
        AddDevices();
    const Progress before = progress.Get();
    const std::vector<DemonstrationFile> files =
        PlanDemonstration(core.Resources(), before.begin.count, kFiles);
    std::string problem;
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

void CDemonstration::State::AddDevices()
{
    for (const SampleDevice& sample : kDevices) {
        DeviceEntry entry;
        entry.name = sample.name;
        entry.typeCode = sample.type;
        entry.address = sample.address;
        entry.userName = "admin";
        entry.channels = sample.channels;
        std::string error;
        if (core.Resources().Add(entry, error).empty())
            BASE_WARN("A device of the demonstration was not added: %s", error.c_str());
    }
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
