#pragma once

#include "framework/core/FrameworkSettings.h"

#include <QRect>
#include <QString>

#include <functional>
#include <vector>

namespace framework {

class CFrameworkCore;
class CMainWindow;
class CSimulatedDevices;

/// What the tour walks through. The window may be another one after each change of the choices.
struct TourStage
{
    std::function<CMainWindow&()> window;
    CFrameworkCore& core;
    std::function<void(const FrameworkChoices&)> apply;
    bool hasDemonstration = false;          ///< its files are waited for
    CSimulatedDevices* simulated = nullptr; ///< with the demonstration; goes and comes back
};

/// One picture of the tour.
struct TourStep
{
    QString name;
    std::function<void()> begin;
    /// What is still waited for, in English; empty when the picture can be taken.
    std::function<QString()> pending;
    /// The part of the screen, in pixels, that must not be of one colour.
    std::function<QRect()> area;
    std::function<void()> end; ///< after the picture; may be empty
};

/// Every tab, and what else a person should have seen.
std::vector<TourStep> AllTourSteps(const TourStage& stage);

} // namespace framework
