#include "VantorGUIToolkit/FontInfo.h"

#include "VantorGUIToolkit/Language.h"

namespace VantorGUIToolkit {

// Scripts with dense or small letters are set a pixel larger, so that they read as easily as Latin ones.
// Ideographs have no kerning pairs; leaving it off spares the look-up.
FontInfo getFontInfoByLanguage(int language)
{
    switch (language) {
    case Chinese:
        return {{"Microsoft YaHei", "Noto Sans CJK SC", "WenQuanYi Micro Hei"}, 14, false, QFont::SansSerif};
    case Hebrew:
        return {{"Segoe UI", "Noto Sans Hebrew", "DejaVu Sans"}, 14, true, QFont::SansSerif};
    case Arabic:
        return {{"Segoe UI", "Noto Sans Arabic", "DejaVu Sans"}, 14, true, QFont::SansSerif};
    default:
        return {{"Segoe UI", "Inter", "Noto Sans", "DejaVu Sans"}, 13, true, QFont::SansSerif};
    }
}

} // namespace VantorGUIToolkit
