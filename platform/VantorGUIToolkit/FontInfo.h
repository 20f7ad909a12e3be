#pragma once

#include <QFont>
#include <QStringList>

namespace VantorGUIToolkit {

/// What the application font of a language is made of.
struct FontInfo
{
    QStringList families; ///< in order of preference; the first one installed is used
    int pixelSize = 0;    ///< device-independent pixels
    bool kerning = true;
    QFont::StyleHint styleHint = QFont::SansSerif;
};

/// The font of a language (see Language.h). The families of each language have its letters, first those of
/// Windows, then those of Linux distributions; the last one has Latin letters as well. English for an unknown
/// number. Any thread.
FontInfo getFontInfoByLanguage(int language);

} // namespace VantorGUIToolkit
