#include "framework/ui/tour/TourDevices.h"

#include "framework/core/FrameworkCore.h"
#include "framework/ui/demonstration/SimulatedDevices.h"
#include "framework/ui/pages/DevicesPage.h"
#include "framework/ui/parts/Report.h"
#include "framework/ui/shell/MainWindow.h"
#include "framework/ui/tour/TourParts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QSpinBox>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace framework {

namespace {

constexpr int kSoonMs = 10000; ///< within which a device that went is offline
constexpr int kNobodysPort = 1;

const QString kDialog = QStringLiteral("deviceDialog");
const QString kName = QStringLiteral("Entrance north");

CDevicesPage* DevicesPage(const TourStage& stage)
{
    QWidget* page = stage.window().Tabs().Page("Devices");
    return page ? page->findChild<CDevicesPage*>() : nullptr;
}

std::vector<protocol::DeviceResponseData> DevicesOf(const TourStage& stage)
{
    return stage.core.Resources().Devices();
}

std::string AddedDevice(const TourStage& stage)
{
    for (const auto& device : DevicesOf(stage))
        if (device.name == kName.toStdString())
            return device.guid;
    return {};
}

/// What is still waited for until all devices are online, or none is.
QString PendingDevices(const TourStage& stage, bool online)
{
    const auto all = DevicesOf(stage);
    const auto there =
        std::count_if(all.begin(), all.end(), [](const auto& device) { return device.online; });
    if (there == (online ? static_cast<long>(all.size()) : 0))
        return PendingTab(stage, "Devices");
    return QStringLiteral("%1 of %2 devices are online").arg(there).arg(all.size());
}

/// All devices, the first one chosen.
TourStep AllStep(const TourStage& stage, const QString& name)
{
    TourStep step = TabStep(stage, name, "Devices");
    const auto isChosen = std::make_shared<bool>(false);
    step.pending = [=] {
        const auto all = DevicesOf(stage);
        if (all.empty())
            return QStringLiteral("there is no device");
        if (!*isChosen && PendingDevices(stage, true).isEmpty() && DevicesPage(stage)) {
            DevicesPage(stage)->Select(QString::fromStdString(all.front().guid));
            *isChosen = true;
        }
        return PendingDevices(stage, true);
    };
    return step;
}

/// The port of the first device, which is reached under another name of this computer once more.
int FirstPort(const TourStage& stage)
{
    const auto all = DevicesOf(stage);
    return all.empty() ? kNobodysPort : all.front().port;
}

void Fill(QDialog* dialog, int port, const QString& password)
{
    dialog->findChild<QLineEdit*>("deviceName")->setText(kName);
    dialog->findChild<QLineEdit*>("deviceAddress")->setText("localhost");
    dialog->findChild<QSpinBox*>("devicePort")->setValue(port);
    dialog->findChild<QLineEdit*>("deviceUser")->setText("admin");
    dialog->findChild<QLineEdit*>("devicePassword")->setText(password);
}

/// Enters a device that is refused; the dialog stays open or is closed.
TourStep RefusedStep(const TourStage& stage, const QString& name, bool isUnreachable)
{
    const auto isFilled = std::make_shared<bool>(false);
    TourStep step =
        DialogStep(name, kDialog, [=] { PressLater(stage.window().Tabs().Page("Devices"), "addDevice"); });
    step.pending = [=] {
        QDialog* dialog = OpenDialog(kDialog);
        if (!dialog)
            return QStringLiteral("the dialog did not open");
        if (!*isFilled) {
            Fill(dialog, isUnreachable ? kNobodysPort : FirstPort(stage), "mistyped");
            PressLater(dialog, "apply");
            *isFilled = true;
        }
        return dialog->findChild<QWidget*>("deviceRefusal")->isVisible()
                   ? QString()
                   : QStringLiteral("the device was not refused");
    };
    if (!isUnreachable)
        step.end = {};
    return step;
}

/// Corrects the password of the dialog that the step before has left.
TourStep AddedStep(const TourStage& stage)
{
    TourStep step = TabStep(stage, "device-added", "Devices");
    step.begin = [] {
        if (QDialog* dialog = OpenDialog(kDialog)) {
            dialog->findChild<QLineEdit*>("devicePassword")->setText(CSimulatedDevices::kPassword);
            PressLater(dialog, "apply");
        }
    };
    step.pending = [=] {
        if (AddedDevice(stage).empty() || OpenDialog(kDialog))
            return QStringLiteral("the device was not added");
        return PendingDevices(stage, true);
    };
    return step;
}

TourStep CutStep(const TourStage& stage)
{
    TourStep step = TabStep(stage, "devices-offline", "Devices");
    const auto since = std::make_shared<QElapsedTimer>();
    const auto took = std::make_shared<qint64>(-1);
    step.begin = [=] {
        since->start();
        stage.simulated->Cut();
    };
    step.pending = [=] {
        const QString pending = PendingDevices(stage, false);
        if (pending.isEmpty() && *took < 0)
            *took = since->elapsed();
        return *took > kSoonMs ? QStringLiteral("it took %1 ms").arg(*took) : pending;
    };
    return step;
}

TourStep BackStep(const TourStage& stage)
{
    TourStep step = TabStep(stage, "devices-back", "Devices");
    step.begin = [=] { stage.simulated->StartAgain(); };
    step.pending = [=] { return PendingDevices(stage, true); };
    return step;
}

/// The question, and behind the picture the answer.
TourStep RemoveStep(const TourStage& stage)
{
    TourStep step = TabStep(stage, "device-remove", "Devices");
    step.begin = [=] {
        DevicesPage(stage)->Select(QString::fromStdString(AddedDevice(stage)));
        PressLater(DevicesPage(stage), "removeDevice");
    };
    step.pending = [] {
        return QApplication::activeModalWidget() ? QString() : QStringLiteral("nobody asks");
    };
    step.end = [] {
        if (QWidget* question = QApplication::activeModalWidget())
            PressLater(question, "yesButton");
    };
    return step;
}

TourStep RemovedStep(const TourStage& stage)
{
    TourStep step = TabStep(stage, "device-removed", "Devices");
    step.pending = [=] {
        return AddedDevice(stage).empty() ? PendingDevices(stage, true)
                                          : QStringLiteral("the device is still there");
    };
    return step;
}

} // namespace

void AddDeviceSteps(const TourStage& stage, std::vector<TourStep>& steps)
{
    steps.push_back(TabStep(stage, "devices", "Devices"));
    steps.push_back(DialogStep(
        "device-dialog", kDialog, [stage] { PressLater(stage.window().Tabs().Page("Devices"), "addDevice"); },
        "apply"));
    if (!stage.simulated)
        return;
    steps.push_back(AllStep(stage, "devices-online"));
    steps.push_back(RefusedStep(stage, "device-unreachable", true));
    steps.push_back(RefusedStep(stage, "device-wrong-password", false));
    steps.push_back(AddedStep(stage));
    steps.push_back(CutStep(stage));
    steps.push_back(BackStep(stage));
    steps.push_back(RemoveStep(stage));
    steps.push_back(RemovedStep(stage));
}

} // namespace framework
