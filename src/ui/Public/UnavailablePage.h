#pragma once

#include "ui/Public/ComponentPage.h"

namespace video {

/// Stands where a page will be: its title, and that it is not available yet. GUI thread.
class CUnavailablePage : public CComponentPage
{
    Q_OBJECT

public:
    /// title: translated; icon: a name that VantorGUIToolkit::icon knows.
    CUnavailablePage(const QString& title, const QString& icon);

    bool IsAvailable() const override { return false; }
};

} // namespace video
