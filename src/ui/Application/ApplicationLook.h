#pragma once

#include "VantorGUIToolkit/SkinLoader.h"

#include <QString>

namespace video {

/// The stages of start-up that give the application its look. Failures are logged; start-up goes on. GUI
/// thread.
class CApplicationLook
{
public:
    /// skin: its name; language: the user-interface language's number.
    CApplicationLook(VantorGUIToolkit::CToolkit& toolkit, QString skin, int language);

    /// Makes the language's font the application font.
    void LoadFont();

    /// Loads the resource packages of the skin: the toolkit's, the client's common one and the component's
    /// own.
    void LoadSkin();

    /// Sets the style and the joined style sheets.
    void LoadStyle();

    /// Loads the translations and tells the toolkit language, direction and skin. configuredSkin is that of
    /// the configuration manager.
    void InitGuiToolKit(const QString& configuredSkin);

private:
    void TellLanguage();

    VantorGUIToolkit::CToolkit& m_toolkit;
    VantorGUIToolkit::CSkinLoader m_loader;
    const QString m_skin;
    const int m_language;
};

} // namespace video
