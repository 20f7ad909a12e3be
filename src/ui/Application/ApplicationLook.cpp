#include "ui/Application/ApplicationLook.h"

#include "Base/Log.h"
#include "VantorGUIToolkit/Toolkit.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QStyle>
#include <QStyleFactory>

namespace video {

namespace {

const QString kToolkitSheets = QStringLiteral(":/VantorGUIToolKit/Qss/Qss/VantorGUIToolkit/");
const QString kSystemConfigSheet = QStringLiteral(":/Vantor/Qss/Qss/SystemConfig/SystemConfig.qss");
const QString kComponentSheet = QStringLiteral(":/Vantor/Qss/Qss/Video.C/VideoClient.qss");
const QString kMacSheet = QStringLiteral("MacSpecial.qss");

QStringList SheetFiles()
{
    QStringList files;
    for (const QString& name : QDir(kToolkitSheets).entryList({"*.qss"}, QDir::Files, QDir::Name))
        if (name != kMacSheet)
            files << kToolkitSheets + name;
    files << kSystemConfigSheet << kComponentSheet;
    return files;
}

QString JoinedSheets()
{
    QString joined;
    for (const QString& path : SheetFiles()) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            joined += QString::fromUtf8(file.readAll()) + '\n';
    }
    return joined;
}

} // namespace

CApplicationLook::CApplicationLook(VantorGUIToolkit::CToolkit& toolkit, QString skin, int language)
    : m_toolkit(toolkit), m_skin(std::move(skin)), m_language(language)
{
    TellLanguage();
}

// The style sheets are filled with the language's font and direction, so the toolkit knows it from the start.
void CApplicationLook::TellLanguage()
{
    m_toolkit.setLocale(m_language);
    m_toolkit.setLayoutDirection(VantorGUIToolkit::isRightToLeft(m_language) ? Qt::RightToLeft
                                                                             : Qt::LeftToRight);
}

void CApplicationLook::LoadFont()
{
    const VantorGUIToolkit::FontInfo info = VantorGUIToolkit::getFontInfoByLanguage(m_language);
    QFont font;
    font.setFamilies(info.families);
    font.setPixelSize(info.pixelSize);
    font.setKerning(info.kerning);
    font.setStyleHint(info.styleHint);
    QApplication::setFont(font);
}

void CApplicationLook::LoadSkin()
{
    m_toolkit.setSkinType(m_skin);
    if (LoadPackage("VantorGUIToolKit" + m_skin + ".rcc"))
        BASE_INFO("success to load VantorGUIToolKitBlackRedSkin.");
    else
        BASE_ERROR("fail to load VantorGUIToolKitBlackRedSkin.");
    if (LoadPackage("ClientCommon.rcc"))
        BASE_INFO("success to load ClientCommSkin.");
    else
        BASE_ERROR("Failed to load ClientCommSkin.");
    LoadPackage("Video.C.rcc");
}

bool CApplicationLook::LoadPackage(const QString& name)
{
    const QString path = m_toolkit.targetPath() + "../plugins/skins/" + name;
    const bool loaded = m_toolkit.loadSkinPackage(path);
    qWarning(loaded ? "---scc--- LoadSkin = %s Success" : "---scc--- LoadSkin = %s failed", qPrintable(path));
    return loaded;
}

void CApplicationLook::LoadStyle()
{
    if (QStyle* style = QStyleFactory::create("CVantorStyle"))
        QApplication::setStyle(style);
    else
        qWarning("[scc][CVantorApplication::LoadStyle]The CVantorStyle does not exist.");
    qApp->setStyleSheet(m_toolkit.handleQssByInputParams(JoinedSheets()));
}

void CApplicationLook::InitGuiToolKit(const QString& configuredSkin)
{
    m_toolkit.loadTranslations(m_toolkit.targetPath() + "../translations/", m_language);
    TellLanguage();
    m_toolkit.setSkinType(configuredSkin);
}

} // namespace video
