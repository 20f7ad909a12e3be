#include "ui/Application/ApplicationLook.h"

#include "Base/Log.h"
#include "VantorGUIToolkit/Toolkit.h"

namespace video {

namespace {

const QString kSystemConfigSheet = QStringLiteral(":/Vantor/Qss/Qss/SystemConfig/SystemConfig.qss");
const QString kComponentSheet = QStringLiteral(":/Vantor/Qss/Qss/Video.C/VideoClient.qss");

void TellOfPackage(const QString& path, bool loaded)
{
    qWarning(loaded ? "---scc--- LoadSkin = %s Success" : "---scc--- LoadSkin = %s failed", qPrintable(path));
}

} // namespace

CApplicationLook::CApplicationLook(VantorGUIToolkit::CToolkit& toolkit, QString skin, int language)
    : m_toolkit(toolkit), m_loader(toolkit, TellOfPackage), m_skin(std::move(skin)), m_language(language)
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
    m_loader.LoadFont(m_language);
}

void CApplicationLook::LoadSkin()
{
    if (m_loader.LoadSkin(m_skin))
        BASE_INFO("success to load VantorGUIToolKitBlackRedSkin.");
    else
        BASE_ERROR("fail to load VantorGUIToolKitBlackRedSkin.");
    if (m_loader.LoadPackage("ClientCommon.rcc"))
        BASE_INFO("success to load ClientCommSkin.");
    else
        BASE_ERROR("Failed to load ClientCommSkin.");
    m_loader.LoadPackage("Video.C.rcc");
}

void CApplicationLook::LoadStyle()
{
    if (!m_loader.SetStyle())
        qWarning("[scc][CVantorApplication::LoadStyle]The CVantorStyle does not exist.");
    m_loader.ApplySheets({kSystemConfigSheet, kComponentSheet});
}

void CApplicationLook::InitGuiToolKit(const QString& configuredSkin)
{
    m_toolkit.loadTranslations(m_toolkit.targetPath() + "../translations/", m_language);
    TellLanguage();
    m_toolkit.setSkinType(configuredSkin);
}

} // namespace video
