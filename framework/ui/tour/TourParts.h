#pragma once

#include "framework/ui/tour/TourSteps.h"

class QDialog;
class QWidget;

/// What steps of the tour are made of.
namespace framework {

/// What is still waited for until the tab is in front; empty: nothing.
QString PendingTab(const TourStage& stage, const QString& name);

/// Where the tab in front is on the screen.
QRect ContentArea(const TourStage& stage);

/// Opens a tab.
TourStep TabStep(const TourStage& stage, const QString& name, const QString& tab);

/// A dialog that begin opens; pressed: the button that is pressed in it before the picture, if any.
TourStep DialogStep(const QString& name, const QString& dialogName, const std::function<void()>& begin,
                    const QString& pressed = {});

/// Presses a button of that object name below the widget once the caller has returned.
void PressLater(QWidget* parent, const QString& buttonName);

/// The modal dialog of that object name; null when it is not open.
QDialog* OpenDialog(const QString& name);

} // namespace framework
