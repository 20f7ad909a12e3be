#include "framework/ui/parts/WindowTable.h"

#include <QCoreApplication>

#include <algorithm>

namespace framework {

namespace {

constexpr char kContext[] = "Windows";

#define TITLE(text) QT_TRANSLATE_NOOP("Windows", text)

struct GroupTitle
{
    WindowGroup group;
    const char* title;
};

constexpr GroupTitle kGroupTitles[] = {
    {WindowGroup::LiveView, TITLE("Live View")},  {WindowGroup::Playback, TITLE("Playback")},
    {WindowGroup::Recording, TITLE("Recording")}, {WindowGroup::Devices, TITLE("Devices")},
    {WindowGroup::Tools, TITLE("Tools")},         {WindowGroup::System, TITLE("System")},
};

} // namespace

const std::vector<WindowRow>& AllWindows()
{
    using G = WindowGroup;
    namespace p = permission;
    static const std::vector<WindowRow> windows = {
        {"Home", TITLE("Home"), "home", G::Start, "", true},
        {"MainView", TITLE("Main View"), "live", G::LiveView, p::kLiveView, false},
        {"AuxiliaryScreen", TITLE("Auxiliary Screen"), "screen", G::LiveView, p::kLiveView, false},
        {"SecondLiveView", TITLE("Second Live View"), "live", G::LiveView, p::kLiveView, false},
        {"ThirdLiveView", TITLE("Third Live View"), "live", G::LiveView, p::kLiveView, false},
        {"FourthLiveView", TITLE("Fourth Live View"), "live", G::LiveView, p::kLiveView, false},
        {"RemotePlayback", TITLE("Remote Playback"), "playback", G::Playback, p::kPlayback, false},
        {"VideoFile", TITLE("Video Files"), "video", G::Playback, p::kLocalFiles, false},
        {"SnapshotFile", TITLE("Pictures"), "picture", G::Playback, p::kLocalFiles, false},
        {"RecordSchedule", TITLE("Recording Schedule"), "schedule", G::Recording, p::kRecordSchedule, false},
        {"StoragePlan", TITLE("Storage Plan"), "storage", G::Recording, p::kStorage, false},
        {"Devices", TITLE("Device List"), "device", G::Devices, p::kDevices, true},
        {"EncodingDevice", TITLE("Encoding Devices"), "camera", G::Devices, p::kDevices, false},
        {"StreamMediaServer", TITLE("Streaming Media Servers"), "stream", G::Devices, p::kDevices, false},
        {"BroadcastWID", TITLE("Voice Broadcast"), "broadcast", G::Tools, p::kBroadcast, false},
        {"AlarmOutput", TITLE("Alarm Outputs"), "output", G::Tools, p::kAlarmOutput, false},
        {"Wiper", TITLE("Wiper Control"), "wiper", G::Tools, p::kWiper, false},
        {"ToolkitGallery", TITLE("Widget Gallery"), "gallery", G::Tools, p::kSystemConfig, false},
        {"Notices", TITLE("Notification Centre"), "bell", G::System, "", true},
        {"Operations", TITLE("Operation Log"), "log", G::System, p::kSystemConfig, true},
        {"Users", TITLE("Users"), "users", G::System, p::kUsers, true},
        {"Settings", TITLE("Settings"), "settings", G::System, p::kSystemConfig, true},
    };
    return windows;
}

const WindowRow* FindWindow(const QString& name)
{
    const auto& all = AllWindows();
    const auto row =
        std::find_if(all.begin(), all.end(), [&](const auto& each) { return name == each.name; });
    return row == all.end() ? nullptr : &*row;
}

QString WindowRow::Title() const
{
    return QCoreApplication::translate(kContext, title);
}

bool WindowRow::MayOpen(const User& user) const
{
    return *permission == '\0' || user.May(permission);
}

QString TitleOf(WindowGroup group)
{
    for (const GroupTitle& each : kGroupTitles)
        if (each.group == group)
            return QCoreApplication::translate(kContext, each.title);
    return {};
}

} // namespace framework
