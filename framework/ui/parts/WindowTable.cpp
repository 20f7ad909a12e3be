#include "framework/ui/parts/WindowTable.h"

#include <QCoreApplication>

#include <algorithm>

namespace framework {

namespace {

constexpr char kContext[] = "Windows";

struct GroupTitle
{
    WindowGroup group;
    const char* title;
};

constexpr GroupTitle kGroupTitles[] = {
    {WindowGroup::LiveView, QT_TRANSLATE_NOOP("Windows", "Live View")},
    {WindowGroup::Playback, QT_TRANSLATE_NOOP("Windows", "Playback")},
    {WindowGroup::Recording, QT_TRANSLATE_NOOP("Windows", "Recording")},
    {WindowGroup::Devices, QT_TRANSLATE_NOOP("Windows", "Devices")},
    {WindowGroup::Tools, QT_TRANSLATE_NOOP("Windows", "Tools")},
    {WindowGroup::System, QT_TRANSLATE_NOOP("Windows", "System")},
};

} // namespace

const std::vector<WindowRow>& AllWindows()
{
    using G = WindowGroup;
    namespace p = permission;
    static const std::vector<WindowRow> windows = {
        {"Home", QT_TRANSLATE_NOOP("Windows", "Home"), "home", G::Start, "", true},
        {"MainView", QT_TRANSLATE_NOOP("Windows", "Main View"), "live", G::LiveView, p::kLiveView, false},
        {"AuxiliaryScreen", QT_TRANSLATE_NOOP("Windows", "Auxiliary Screen"), "screen", G::LiveView,
         p::kLiveView, false},
        {"SecondLiveView", QT_TRANSLATE_NOOP("Windows", "Second Live View"), "live", G::LiveView,
         p::kLiveView, false},
        {"ThirdLiveView", QT_TRANSLATE_NOOP("Windows", "Third Live View"), "live", G::LiveView, p::kLiveView,
         false},
        {"FourthLiveView", QT_TRANSLATE_NOOP("Windows", "Fourth Live View"), "live", G::LiveView,
         p::kLiveView, false},
        {"RemotePlayback", QT_TRANSLATE_NOOP("Windows", "Remote Playback"), "playback", G::Playback,
         p::kPlayback, false},
        {"VideoFile", QT_TRANSLATE_NOOP("Windows", "Video Files"), "video", G::Playback, p::kLocalFiles,
         false},
        {"SnapshotFile", QT_TRANSLATE_NOOP("Windows", "Pictures"), "picture", G::Playback, p::kLocalFiles,
         false},
        {"LocalFiles", QT_TRANSLATE_NOOP("Windows", "Local Files"), "folder", G::Playback, p::kLocalFiles,
         true},
        {"RecordSchedule", QT_TRANSLATE_NOOP("Windows", "Recording Schedule"), "schedule", G::Recording,
         p::kRecordSchedule, false},
        {"StoragePlan", QT_TRANSLATE_NOOP("Windows", "Storage Plan"), "storage", G::Recording, p::kStorage,
         false},
        {"Devices", QT_TRANSLATE_NOOP("Windows", "Device List"), "device", G::Devices, p::kDevices, true},
        {"EncodingDevice", QT_TRANSLATE_NOOP("Windows", "Encoding Devices"), "camera", G::Devices,
         p::kDevices, false},
        {"StreamMediaServer", QT_TRANSLATE_NOOP("Windows", "Streaming Media Servers"), "stream", G::Devices,
         p::kDevices, false},
        {"BroadcastWID", QT_TRANSLATE_NOOP("Windows", "Voice Broadcast"), "broadcast", G::Tools,
         p::kBroadcast, false},
        {"AlarmOutput", QT_TRANSLATE_NOOP("Windows", "Alarm Outputs"), "output", G::Tools, p::kAlarmOutput,
         false},
        {"Wiper", QT_TRANSLATE_NOOP("Windows", "Wiper Control"), "wiper", G::Tools, p::kWiper, false},
        {"ToolkitGallery", QT_TRANSLATE_NOOP("Windows", "Widget Gallery"), "gallery", G::Tools,
         p::kSystemConfig, false},
        {"Notices", QT_TRANSLATE_NOOP("Windows", "Notification Centre"), "bell", G::System, "", true},
        {"Operations", QT_TRANSLATE_NOOP("Windows", "Operation Log"), "log", G::System, p::kSystemConfig,
         true},
        {"Users", QT_TRANSLATE_NOOP("Windows", "Users"), "users", G::System, p::kUsers, true},
        {"Settings", QT_TRANSLATE_NOOP("Windows", "Settings"), "settings", G::System, p::kSystemConfig, true},
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

QString TitleOf(const QString& window)
{
    const WindowRow* row = FindWindow(window);
    return row ? row->Title() : QString();
}

QString TitleOf(WindowGroup group)
{
    for (const GroupTitle& each : kGroupTitles)
        if (each.group == group)
            return QCoreApplication::translate(kContext, each.title);
    return {};
}

} // namespace framework
