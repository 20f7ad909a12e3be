#include "VantorGUIToolkit/Toolkit.h"

#include "Base/Log.h"
#include "VantorGUIToolkit/DateTimeFormat.h"
#include "VantorGUIToolkit/UiSingleton.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QResource>

namespace VantorGUIToolkit {

namespace {

QString QuotedFamilies(int language)
{
    QStringList quoted;
    for (const QString& family : getFontInfoByLanguage(language).families)
        quoted.append('"' + family + '"');
    return quoted.join(", ");
}

QString Pixels(int size)
{
    return QString::number(size) + "px";
}

bool Refuse(const char* what, const QString& format)
{
    BASE_WARN("The %s format [%s] is not known and not used.", what, format.left(64).toUtf8().constData());
    return false;
}

} // namespace

QString themeOfSkin(const QString& skinName)
{
    if (skinName == QLatin1String("GreyRedSkin"))
        return QStringLiteral("bright");
    if (skinName == QLatin1String("BlueSkin"))
        return QStringLiteral("blue");
    if (skinName == QLatin1String("NeutralSkin"))
        return QStringLiteral("neutral");
    return QStringLiteral("dark");
}

CToolkit::~CToolkit()
{
    UnInit();
}

QString CToolkit::targetPath() const
{
    return m_targetPath.isEmpty() ? QCoreApplication::applicationDirPath() + '/' : m_targetPath;
}

void CToolkit::setTargetPath(const QString& path)
{
    m_targetPath = path.isEmpty() || path.endsWith('/') ? path : path + '/';
}

bool CToolkit::loadSkinPackage(const QString& path)
{
    const QFileInfo file(path);
    const QString package = file.absoluteFilePath();
    if (m_packages.contains(package))
        return true;
    const bool exists = file.isFile() && file.size() > 0;
    if (exists && QResource::registerResource(package)) {
        m_packages.append(package);
        return true;
    }
    BASE_WARN("Failed to load the resource package [%s]: %s.", package.toUtf8().constData(),
              exists ? "not a package of this version" : "missing or empty");
    return false;
}

void CToolkit::unloadSkinPackages()
{
    for (const QString& package : m_packages)
        QResource::unregisterResource(package);
    m_packages.clear();
}

void CToolkit::setStyleParameters(const StyleParameters& parameters)
{
    for (auto parameter = parameters.constBegin(); parameter != parameters.constEnd(); ++parameter)
        m_parameters.insert(parameter.key(), parameter.value());
}

StyleParameters CToolkit::AllParameters() const
{
    const bool mirrored = m_direction == Qt::RightToLeft;
    const int fontSize = getFontInfoByLanguage(m_language).pixelSize;
    StyleParameters parameters = {
        {"theme", themeOfSkin(m_skinType)},        {"skin", m_skinType},
        {"language", languageTag(m_language)},     {"direction", mirrored ? "rtl" : "ltr"},
        {"start", mirrored ? "right" : "left"},    {"end", mirrored ? "left" : "right"},
        {"font", QuotedFamilies(m_language)},      {"font-size", Pixels(fontSize)},
        {"font-size-small", Pixels(fontSize - 2)}, {"font-size-heading", Pixels(fontSize + 2)},
        {"font-size-title", Pixels(fontSize + 7)},
    };
    for (auto own = m_parameters.constBegin(); own != m_parameters.constEnd(); ++own)
        parameters.insert(own.key(), own.value());
    return parameters;
}

QString CToolkit::handleQssByInputParams(const QString& qss)
{
    return m_filler.Fill(qss, AllParameters());
}

bool CToolkit::loadTranslations(const QString& dir, int language)
{
    return m_translations.Load(dir, language);
}

void CToolkit::setLocale(int language)
{
    m_language = language;
    QLocale::setDefault(locale());
}

bool CToolkit::initDateFormat(const QString& format)
{
    if (!isDateFormat(format))
        return Refuse("date", format);
    m_dateFormat = format;
    return true;
}

bool CToolkit::initTimeFormat(const QString& format)
{
    if (!isTimeFormat(format))
        return Refuse("time", format);
    m_timeFormat = format;
    return true;
}

QString CToolkit::dateText(const QDate& date) const
{
    return locale().toString(date, m_dateFormat);
}

QString CToolkit::timeText(const QTime& time) const
{
    return locale().toString(time, m_timeFormat);
}

QString CToolkit::dateTimeText(const QDateTime& moment) const
{
    return dateText(moment.date()) + ' ' + timeText(moment.time());
}

void CToolkit::UnInit()
{
    m_translations.Unload();
    unloadSkinPackages();
    m_parameters.clear();
}

CToolkit& toolkit()
{
    return CUiSingleton<CToolkit>::Instance();
}

} // namespace VantorGUIToolkit
