#pragma once

#include "VantorGUIToolkit/FontInfo.h"
#include "VantorGUIToolkit/Language.h"
#include "VantorGUIToolkit/StyleSheet.h"
#include "VantorGUIToolkit/Translations.h"

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <QStringList>

namespace VantorGUIToolkit {

/// The theme word of a skin: "GreyRedSkin" gives "bright", "BlueSkin" "blue", "NeutralSkin" "neutral",
/// "BlackRedSkin" and any other name "dark".
QString themeOfSkin(const QString& skinName);

/// How the windows of this process look and read: skin packages, style-sheet parameters, translations,
/// locale, layout direction, date and time formats. GUI thread only. The process has one, see toolkit();
/// tests make their own.
class CToolkit
{
public:
    CToolkit() = default;
    ~CToolkit();
    CToolkit(const CToolkit&) = delete;
    CToolkit& operator=(const CToolkit&) = delete;

    /// The folder that resource packages and translations are found from, ending in "/". The folder of the
    /// running program unless another one was set.
    QString targetPath() const;
    void setTargetPath(const QString& path);

    /// Registers a resource package (.rcc). True when its resources are there afterwards, also when it was
    /// loaded already. False, with one log line, when it is missing or no package of this Qt version.
    bool loadSkinPackage(const QString& path);
    /// The packages that are loaded, in the order of loading, as absolute paths.
    const QStringList& skinPackages() const { return m_packages; }
    /// Takes all packages out. May be called again.
    void unloadSkinPackages();

    /// Tells the toolkit which skin is shown, by its name ("BlackRedSkin"); see themeOfSkin.
    void setSkinType(const QString& skinName) { m_skinType = skinName; }
    const QString& skinType() const { return m_skinType; }

    /// Adds to or replaces the parameters that style sheets may name; see handleQssByInputParams.
    void setStyleParameters(const StyleParameters& parameters);

    /// The style sheet with its markers "@name@" filled (see CStyleSheetFiller). Always known are
    ///   theme       the theme word of the skin, for example "dark"
    ///   skin        the name of the skin, for example "BlackRedSkin"
    ///   language    the language's tag, for example "de"
    ///   direction   "ltr" or "rtl"
    ///   start, end  "left" and "right", exchanged when the layout runs from right to left
    ///   font        the font families of the language, quoted and separated by commas
    ///   font-size   the font size of the language in pixels, for example "14px"
    ///   font-size-small, font-size-heading, font-size-title   those of badges, of sections and of pages
    /// besides those given to setStyleParameters, which win.
    QString handleQssByInputParams(const QString& qss);

    /// See CTranslations::Load.
    bool loadTranslations(const QString& dir, int language);
    const QStringList& translationFiles() const { return m_translations.Files(); }

    /// Takes the language for texts, fonts and numbers: sets the default QLocale.
    void setLocale(int language);
    int language() const { return m_language; }
    QLocale locale() const { return QLocale(languageTag(m_language)); }

    /// The direction in which the toolkit lays out what Qt does not mirror by itself. It changes nothing in
    /// Qt.
    void setLayoutDirection(Qt::LayoutDirection direction) { m_direction = direction; }
    Qt::LayoutDirection layoutDirection() const { return m_direction; }

    /// Sets how dates and times are shown; see isDateFormat and isTimeFormat. A format that is not of that
    /// form changes nothing and gives false and one log line.
    bool initDateFormat(const QString& format);
    bool initTimeFormat(const QString& format);
    /// "yyyy-MM-dd" and "HH:mm:ss" until set.
    const QString& dateFormat() const { return m_dateFormat; }
    const QString& timeFormat() const { return m_timeFormat; }
    /// The texts of a moment in these formats and the toolkit's locale, in the time zone that the value
    /// carries.
    QString dateText(const QDate& date) const;
    QString timeText(const QTime& time) const;
    QString dateTimeText(const QDateTime& moment) const;

    /// Takes out packages, translations and parameters again. May be called again; everything can be loaded
    /// anew.
    void UnInit();

private:
    StyleParameters AllParameters() const;

    QString m_targetPath;
    QStringList m_packages;
    QString m_skinType = QStringLiteral("BlackRedSkin");
    StyleParameters m_parameters;
    CStyleSheetFiller m_filler;
    CTranslations m_translations;
    int m_language = English;
    Qt::LayoutDirection m_direction = Qt::LeftToRight;
    QString m_dateFormat = QStringLiteral("yyyy-MM-dd");
    QString m_timeFormat = QStringLiteral("HH:mm:ss");
};

/// The toolkit of this process.
CToolkit& toolkit();

} // namespace VantorGUIToolkit
