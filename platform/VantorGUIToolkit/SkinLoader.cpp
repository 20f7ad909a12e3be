#include "VantorGUIToolkit/SkinLoader.h"

#include "Base/Log.h"
#include "VantorGUIToolkit/Toolkit.h"
#include "VantorGUIToolkit/WidgetManners.h"
#include "VantorSkin/SkinPalette.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleFactory>

namespace VantorGUIToolkit {

namespace {

const QString kToolkitSheets = QStringLiteral(":/VantorGUIToolKit/Qss/Qss/VantorGUIToolkit/");
const QString kMacSheet = QStringLiteral("MacSpecial.qss");
const QString kDefaultSkin = QStringLiteral("BlackRedSkin");

QString PackageOf(const QString& skin)
{
    return "VantorGUIToolKit" + skin + ".rcc";
}

QStringList ToolkitSheets()
{
    QStringList files;
    for (const QString& name : QDir(kToolkitSheets).entryList({"*.qss"}, QDir::Files, QDir::Name))
        if (name != kMacSheet)
            files << kToolkitSheets + name;
    return files;
}

QString Joined(const QStringList& files)
{
    QString joined;
    for (const QString& path : files) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            joined += QString::fromUtf8(file.readAll()) + '\n';
    }
    return joined;
}

std::optional<SkinPalette> PaletteOfSkin()
{
    if (!QFile::exists(SkinPalette::kResource))
        return std::nullopt;
    QString why;
    std::optional<SkinPalette> palette = SkinPalette::Load(SkinPalette::kResource, why);
    if (!palette)
        BASE_ERROR("The palette of the skin cannot be used: %s.", why.toUtf8().constData());
    return palette;
}

} // namespace

CSkinLoader::CSkinLoader(CToolkit& toolkit, PackageTold told) : m_toolkit(toolkit), m_told(std::move(told)) {}

void CSkinLoader::LoadFont(int language)
{
    const FontInfo info = getFontInfoByLanguage(language);
    QFont font;
    font.setFamilies(info.families);
    font.setPixelSize(info.pixelSize);
    font.setKerning(info.kerning);
    font.setStyleHint(info.styleHint);
    QApplication::setFont(font);
}

bool CSkinLoader::LoadSkin(const QString& skin)
{
    m_toolkit.setSkinType(skin);
    const bool loaded = LoadPackage(PackageOf(skin));
    const QString dark = m_toolkit.targetPath() + "../plugins/skins/" + PackageOf(kDefaultSkin);
    if (!loaded && QFile::exists(dark))
        LoadPackage(PackageOf(kDefaultSkin));
    AdoptColors();
    return loaded;
}

bool CSkinLoader::LoadPackage(const QString& fileName)
{
    const QString path = m_toolkit.targetPath() + "../plugins/skins/" + fileName;
    const bool loaded = m_toolkit.loadSkinPackage(path);
    if (m_told)
        m_told(path, loaded);
    return loaded;
}

void CSkinLoader::AdoptColors()
{
    const SkinPalette palette = PaletteOfSkin().value_or(SkinPalette::Like(QApplication::palette()));
    m_toolkit.setStyleParameters(palette.StyleParameters());
}

bool CSkinLoader::SetStyle()
{
    QStyle* style = QStyleFactory::create("CVantorStyle");
    if (style)
        QApplication::setStyle(style);
    if (const std::optional<SkinPalette> palette = PaletteOfSkin())
        QApplication::setPalette(palette->ToQPalette());
    return style != nullptr;
}

void CSkinLoader::ApplySheets(const QStringList& files)
{
    CWidgetManners::Install();
    qApp->setStyleSheet(m_toolkit.handleQssByInputParams(Joined(ToolkitSheets() + files)));
}

bool takeLook(CToolkit& toolkit, const QString& skin, int language, const QStringList& packages,
              const QStringList& sheets)
{
    const Qt::LayoutDirection direction = isRightToLeft(language) ? Qt::RightToLeft : Qt::LeftToRight;
    qApp->setStyleSheet({});
    toolkit.unloadSkinPackages();
    QPixmapCache::clear(); // icons of two skins have the same names
    toolkit.setLocale(language);
    toolkit.setLayoutDirection(direction);
    toolkit.loadTranslations(toolkit.targetPath() + "../translations/", language);
    QApplication::setLayoutDirection(direction);
    CSkinLoader loader(toolkit);
    loader.LoadFont(language);
    const bool hasSkin = loader.LoadSkin(skin);
    for (const QString& package : packages)
        loader.LoadPackage(package);
    const bool hasStyle = loader.SetStyle();
    loader.ApplySheets(sheets);
    return hasSkin && hasStyle;
}

} // namespace VantorGUIToolkit
