#include "VantorGUIToolkit/Gallery/Sections.h"
#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QGridLayout>
#include <QLabel>

namespace VantorGUIToolkit {

namespace {

const char* const kNames[] = {
    "add",        "edit",         "remove",        "close",    "refresh",  "search",   "settings",
    "user",       "users",        "lock",          "bell",     "log",      "device",   "recorder",
    "storage",    "camera",       "live",          "playback", "schedule", "picture",  "video",
    "broadcast",  "output",       "wiper",         "stream",   "screen",   "folder",   "eye",
    "eye-off",    "info",         "warning",       "error",    "ok",       "question", "chevron-down",
    "chevron-up", "chevron-left", "chevron-right", "check",    "minus",    "calendar", "home",
    "gallery",    "alarm",        "power",         "menu",
};

QWidget* MakeCell(const QString& name, QWidget* parent)
{
    auto* cell = new QWidget(parent);
    auto* grid = new QGridLayout(cell);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(Grid::Tight);
    int column = 0;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected, QIcon::Disabled}) {
        auto* picture = new QLabel(cell);
        picture->setPixmap(icon(name).pixmap(QSize(Grid::Wide, Grid::Wide), mode));
        grid->addWidget(picture, 0, column++, Qt::AlignCenter);
    }
    grid->addWidget(makeLabel(name, TextRole::Hint, cell), 1, 0, 1, 3);
    return cell;
}

} // namespace

CIconSection::CIconSection(QWidget* parent) : CGallerySection(tr("Icons: normal, selected, disabled"), parent)
{
    auto* sheet = new QWidget(this);
    auto* grid = new QGridLayout(sheet);
    grid->setContentsMargins(0, Grid::Small, 0, 0);
    grid->setSpacing(Grid::Large);
    constexpr int columns = 8;
    int place = 0;
    for (const char* name : kNames) {
        grid->addWidget(MakeCell(name, sheet), place / columns, place % columns);
        ++place;
    }
    AddWide(sheet);
}

} // namespace VantorGUIToolkit
