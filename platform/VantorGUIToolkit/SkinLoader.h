#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace VantorGUIToolkit {

class CToolkit;

/// The steps by which a program takes on a skin, in this order:
///
///   CSkinLoader look(toolkit());
///   look.LoadFont(language);
///   look.LoadSkin("BlueSkin");
///   look.LoadPackage("Framework.rcc");
///   look.SetStyle();
///   look.ApplySheets({":/Framework/Qss/Framework.qss"});
///
/// The toolkit is told the language and the direction before, since fonts and sheets depend on them. What is
/// missing is logged and leaves the program usable: without a skin the sheets are filled with colours near
/// Qt's own. GUI thread; keeps nothing but the reference to the toolkit.
class CSkinLoader
{
public:
    /// Told of each package: its path, and whether it was loaded.
    using PackageTold = std::function<void(const QString& path, bool loaded)>;

    explicit CSkinLoader(CToolkit& toolkit, PackageTold told = {});

    /// Makes the language's font the application font.
    void LoadFont(int language);

    /// Loads the toolkit's package of a skin, "VantorGUIToolKit<skin>.rcc", tells the toolkit the skin, and
    /// takes its colours as style-sheet parameters. Where there is no such package, that of the dark skin
    /// serves. False when the skin's own package could not be loaded.
    bool LoadSkin(const QString& skin);

    /// Loads a package from the folder of skins, "../plugins/skins/" from the toolkit's target path.
    bool LoadPackage(const QString& fileName);

    /// Makes "CVantorStyle" the application's style, with the skin's palette. False, with the style
    /// unchanged, when there is no such style. The plug-in is found when the library paths hold "../plugins".
    bool SetStyle();

    /// Joins the toolkit's sheets (all of its folder but "MacSpecial.qss") and these files, fills their
    /// markers and gives the result to the application, with the manners of widgets that they count on.
    void ApplySheets(const QStringList& files);

private:
    void AdoptColors();

    CToolkit& m_toolkit;
    const PackageTold m_told;
};

/// The whole look at once, in the place of what the program had: translations, locale, direction, font, skin,
/// these packages, style and these sheets. Windows that were made before keep their texts and icons. False
/// when the skin's own package or the style is missing. GUI thread.
bool takeLook(CToolkit& toolkit, const QString& skin, int language, const QStringList& packages = {},
              const QStringList& sheets = {});

} // namespace VantorGUIToolkit
