#pragma once

#include "VantorGUIToolkit/Language.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace gallery {

struct Options
{
    QString skin = QStringLiteral("BlackRedSkin");
    int language = VantorGUIToolkit::English;
    QString picture;   ///< a PNG file to write; empty to show the window
    QSize size;        ///< of the picture; empty for the whole page
    bool tree = false; ///< the resource tree instead of the widgets
    QString search;    ///< what the tree is searched for
};

/// Reads the command line. Nothing, with a line on stderr, for one that cannot be taken; ends the program
/// itself for --help.
std::optional<Options> ReadOptions(const QStringList& arguments);

/// The skins that there are.
QStringList SkinNames();

} // namespace gallery
