#include "ui/Public/UnavailablePage.h"

#include "VantorGUIToolkit/Widgets/EmptyState.h"

#include <QVBoxLayout>

namespace video {

CUnavailablePage::CUnavailablePage(const QString& title, const QString& icon) : CComponentPage(title)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(
        new VantorGUIToolkit::CEmptyState(icon, title, tr("This page is not available yet."), this));
}

} // namespace video
