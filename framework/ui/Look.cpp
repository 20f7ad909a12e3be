#include "framework/ui/Look.h"

#include "VantorGUIToolkit/SkinLoader.h"
#include "VantorGUIToolkit/Toolkit.h"

#include <QLocale>

namespace framework {

using namespace VantorGUIToolkit;

void ApplyLook(const FrameworkChoices& choices)
{
    takeLook(toolkit(), QString::fromStdString(choices.skin), choices.language, {"Framework.rcc"},
             {":/Framework/Qss/Framework.qss"});
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
