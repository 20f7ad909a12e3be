#include "framework/ui/Look.h"

#include "VantorGUIToolkit/SkinLoader.h"
#include "VantorGUIToolkit/Toolkit.h"

#include <QApplication>
#include <QPixmapCache>

namespace framework {

using namespace VantorGUIToolkit;

void ApplyLook(const FrameworkChoices& choices)
{
    const Qt::LayoutDirection direction = isRightToLeft(choices.language) ? Qt::RightToLeft : Qt::LeftToRight;
    CToolkit& kit = toolkit();
    qApp->setStyleSheet({});
    kit.unloadSkinPackages();
    QPixmapCache::clear();
    kit.setLocale(choices.language);
    kit.setLayoutDirection(direction);
    kit.loadTranslations(kit.targetPath() + "../translations/", choices.language);
    QApplication::setLayoutDirection(direction);
    CSkinLoader look(kit);
    look.LoadFont(choices.language);
    look.LoadSkin(QString::fromStdString(choices.skin));
    look.LoadPackage("Framework.rcc");
    look.SetStyle();
    look.ApplySheets({":/Framework/Qss/Framework.qss"});
    ApplyFormats(choices);
}

void ApplyFormats(const FrameworkChoices& choices)
{
    toolkit().initDateFormat(QString::fromStdString(choices.dateFormat));
    toolkit().initTimeFormat(QString::fromStdString(choices.timeFormat));
}

int SystemLanguage()
{
    for (const int language : allLanguages())
        if (QLocale(languageTag(language)).language() == QLocale::system().language())
            return language;
    return English;
}

} // namespace framework
