#include "framework/ui/tour/TourSteps.h"

#include "VantorGUIToolkit/Language.h"
#include "VantorGUIToolkit/Widgets/NoticeStack.h"
#include "framework/core/FrameworkCore.h"
#include "framework/ui/pages/LocalFilesPage.h"
#include "framework/ui/pages/SkinPicker.h"
#include "framework/ui/parts/WindowTable.h"
#include "framework/ui/shell/MainWindow.h"
#include "framework/ui/tour/TourDevices.h"
#include "framework/ui/tour/TourParts.h"

#include <QAbstractButton>
#include <QTimer>

namespace framework {

namespace {

CLocalFilesPage* FilesPage(const TourStage& stage)
{
    QWidget* page = stage.window().Tabs().Page("LocalFiles");
    return page ? page->findChild<CLocalFilesPage*>() : nullptr;
}

/// The page of local files, with the files of the demonstration. kind: the button that is pressed first.
TourStep FilesStep(const TourStage& stage, const QString& name, const QString& kind)
{
    TourStep step = TabStep(stage, name, "LocalFiles");
    step.begin = [=] {
        stage.window().Open("LocalFiles");
        if (const CLocalFilesPage* page = FilesPage(stage))
            page->findChild<QAbstractButton*>(kind)->click();
    };
    step.pending = [=] {
        const CLocalFilesPage* page = FilesPage(stage);
        const bool isEmpty = stage.hasDemonstration && (!page || page->FileCount() <= 0);
        return isEmpty ? QStringLiteral("no file is listed") : PendingTab(stage, "LocalFiles");
    };
    return step;
}

TourStep NoticeStep(const TourStage& stage)
{
    TourStep step = TabStep(stage, "notice", "Home");
    step.begin = [=] {
        stage.window().Open("Home");
        const auto devices = stage.core.Resources().Devices();
        if (!devices.empty())
            stage.core.RaiseAlarm(devices.front().guid, "Test alarm of " + devices.front().name);
    };
    step.pending = [] {
        return VantorGUIToolkit::CNoticeStack::Instance().Notices().empty()
                   ? QStringLiteral("no notice was shown")
                   : QString();
    };
    return step;
}

TourStep GuestStep(const TourStage& stage)
{
    TourStep step = TabStep(stage, "user-guest", "Home");
    const auto refused = std::make_shared<bool>(false);
    step.begin = [=] {
        stage.window().Open("Home");
        *refused = !stage.core.SwitchUser("guest", "");
    };
    step.pending = [=] {
        if (*refused)
            return QStringLiteral("the user could not be switched");
        return stage.window().Tabs().Names().contains("Devices")
                   ? QStringLiteral("the device list is still open")
                   : QString();
    };
    step.end = [=] { static_cast<void>(stage.core.SwitchUser("admin", "")); };
    return step;
}

/// The gallery, or the live view, in other choices than at first.
TourStep LookStep(const TourStage& stage, const QString& name, const QString& tab, const std::string& skin,
                  int language)
{
    TourStep step = TabStep(stage, name, tab);
    step.begin = [=] {
        FrameworkChoices choices = stage.core.Settings().Get();
        choices.skin = skin;
        choices.language = language;
        stage.apply(choices);
        stage.window().Open(tab);
    };
    return step;
}

void AddLooks(const TourStage& stage, std::vector<TourStep>& steps)
{
    const FrameworkChoices first = stage.core.Settings().Get();
    for (const SkinChoice& choice : AllSkins())
        if (choice.skin.toStdString() != first.skin) {
            steps.push_back(LookStep(stage, "skin-" + choice.skin, "ToolkitGallery",
                                     choice.skin.toStdString(), first.language));
            steps.push_back(TabStep(stage, "skin-" + choice.skin + "-home", "Home"));
            steps.push_back(TabStep(stage, "skin-" + choice.skin + "-devices", "Devices"));
            steps.push_back(TabStep(stage, "skin-" + choice.skin + "-settings", "Settings"));
            steps.push_back(FilesStep(stage, "skin-" + choice.skin + "-files", "pictures"));
        }
    for (const int language : {VantorGUIToolkit::German, VantorGUIToolkit::Arabic}) {
        const QString tag = VantorGUIToolkit::languageTag(language);
        steps.push_back(LookStep(stage, "language-" + tag, "ToolkitGallery", first.skin, language));
        steps.push_back(TabStep(stage, "language-" + tag + "-home", "Home"));
        steps.push_back(TabStep(stage, "language-" + tag + "-devices", "Devices"));
        steps.push_back(FilesStep(stage, "language-" + tag + "-files", "clips"));
        steps.push_back(TabStep(stage, "language-" + tag + "-settings", "Settings"));
        steps.push_back(TabStep(stage, "language-" + tag + "-users", "Users"));
    }
    steps.push_back(LookStep(stage, "as-at-first", "MainView", first.skin, first.language));
}

} // namespace

std::vector<TourStep> AllTourSteps(const TourStage& stage)
{
    std::vector<TourStep> steps;
    for (const WindowRow& row : AllWindows())
        steps.push_back(QString(row.name) == "LocalFiles" ? FilesStep(stage, row.name, "pictures")
                                                          : TabStep(stage, row.name, row.name));
    steps.push_back(FilesStep(stage, "local-clips", "clips"));
    AddDeviceSteps(stage, steps);
    steps.push_back(NoticeStep(stage));
    steps.push_back(TabStep(stage, "notification-centre", "Notices"));
    steps.push_back(DialogStep("switch-user", "switchUserDialog", [stage] {
        QTimer::singleShot(0, &stage.window(), &CMainWindow::SwitchUserRequested);
    }));
    steps.push_back(GuestStep(stage));
    AddLooks(stage, steps);
    return steps;
}

} // namespace framework
