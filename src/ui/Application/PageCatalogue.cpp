#include "ui/Application/PageCatalogue.h"

#include "VantorGUIToolkit/Gallery/GalleryPage.h"
#include "ui/Public/UnavailablePage.h"

#include <QCoreApplication>
#include <QVBoxLayout>

#include <algorithm>

namespace video {

namespace {

constexpr const char* kContext = "Pages";

/// A widget that is no page itself, as the whole of a page.
template<typename Content>
std::unique_ptr<CComponentPage> MakePageAround(const QString& title)
{
    auto page = std::make_unique<CComponentPage>(title);
    auto* layout = new QVBoxLayout(page.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new Content(page.get()));
    return page;
}

} // namespace

const std::vector<PageRow>& PageCatalogue()
{
    static const std::vector<PageRow> rows = {
        {"MainView", QT_TRANSLATE_NOOP("Pages", "Main View"), "live", nullptr},
        {"RemotePlayback", QT_TRANSLATE_NOOP("Pages", "Remote Playback"), "playback", nullptr},
        {"EncodingDevice", QT_TRANSLATE_NOOP("Pages", "Encoding Devices"), "device", nullptr},
        {"AuxiliaryScreen", QT_TRANSLATE_NOOP("Pages", "Auxiliary Screen"), "screen", nullptr},
        {"SecondLiveView", QT_TRANSLATE_NOOP("Pages", "Second Live View"), "live", nullptr},
        {"ThirdLiveView", QT_TRANSLATE_NOOP("Pages", "Third Live View"), "live", nullptr},
        {"FourthLiveView", QT_TRANSLATE_NOOP("Pages", "Fourth Live View"), "live", nullptr},
        {"StoragePlan", QT_TRANSLATE_NOOP("Pages", "Storage Plan"), "storage", nullptr},
        {"RecordSchedule", QT_TRANSLATE_NOOP("Pages", "Recording Schedule"), "schedule", nullptr},
        {"BroadcastWID", QT_TRANSLATE_NOOP("Pages", "Voice Broadcast"), "broadcast", nullptr},
        {"AlarmOutput", QT_TRANSLATE_NOOP("Pages", "Alarm Outputs"), "output", nullptr},
        {"Wiper", QT_TRANSLATE_NOOP("Pages", "Wiper Control"), "wiper", nullptr},
        {"StreamMediaServer", QT_TRANSLATE_NOOP("Pages", "Streaming Media Servers"), "stream", nullptr},
        {"VideoFile", QT_TRANSLATE_NOOP("Pages", "Video Files"), "video", nullptr},
        {"SnapshotFile", QT_TRANSLATE_NOOP("Pages", "Pictures"), "picture", nullptr},
        {"ToolkitGallery", QT_TRANSLATE_NOOP("Pages", "Widget Gallery"), "gallery",
         &MakePageAround<VantorGUIToolkit::CGalleryPage>},
    };
    return rows;
}

std::unique_ptr<CComponentPage> MakePage(const std::string& window)
{
    const auto& rows = PageCatalogue();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const PageRow& candidate) { return window == candidate.window; });
    if (row == rows.end())
        return nullptr;
    const QString title = QCoreApplication::translate(kContext, row->title);
    return row->make ? row->make(title) : std::make_unique<CUnavailablePage>(title, row->icon);
}

const std::vector<SettingsPageRow>& SettingsPageCatalogue()
{
    static const std::vector<SettingsPageRow> rows = {
        {"VideoConfigPage", nullptr},
        {"ImageConfigPage", nullptr},
        {"ToolBarPage", nullptr},
    };
    return rows;
}

} // namespace video
