#include "framework/ui/tour/TourParts.h"

#include "framework/ui/parts/Report.h"
#include "framework/ui/shell/ComponentTab.h"
#include "framework/ui/shell/MainWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTimer>

namespace framework {

QString PendingTab(const TourStage& stage, const QString& name)
{
    CTabArea& tabs = stage.window().Tabs();
    if (tabs.Current() != name)
        return QStringLiteral("the tab did not come to the front");
    const auto* tab = qobject_cast<CComponentTab*>(tabs.Page(name));
    if (!tab)
        return {};
    const TabState state = const_cast<CComponentTab*>(tab)->Session().State();
    return state == TabState::Embedded ? QString()
                                       : QStringLiteral("the tab is in the state \"%1\"").arg(NameOf(state));
}

QRect ContentArea(const TourStage& stage)
{
    return ScreenRect(stage.window().Tabs().Content());
}

TourStep TabStep(const TourStage& stage, const QString& name, const QString& tab)
{
    return {name,
            [=] { stage.window().Open(tab); },
            [=] { return PendingTab(stage, tab); },
            [=] { return ContentArea(stage); },
            {}};
}

void PressLater(QWidget* parent, const QString& buttonName)
{
    QTimer::singleShot(0, parent, [=] {
        if (auto* button = parent->findChild<QAbstractButton*>(buttonName))
            button->click();
    });
}

QDialog* OpenDialog(const QString& name)
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    return dialog && dialog->objectName() == name ? dialog : nullptr;
}

TourStep DialogStep(const QString& name, const QString& dialogName, const std::function<void()>& begin,
                    const QString& pressed)
{
    const auto pressedOnce = std::make_shared<bool>(pressed.isEmpty());
    return {name, begin,
            [=] {
                QDialog* dialog = OpenDialog(dialogName);
                if (!dialog)
                    return QStringLiteral("the dialog did not open");
                if (!*pressedOnce)
                    PressLater(dialog, pressed);
                *pressedOnce = true;
                return QString();
            },
            [=] {
                const QDialog* dialog = OpenDialog(dialogName);
                return dialog ? ScreenRect(*dialog) : QRect();
            },
            [=] {
                if (QDialog* dialog = OpenDialog(dialogName))
                    dialog->reject();
            }};
}

} // namespace framework
