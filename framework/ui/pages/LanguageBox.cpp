#include "framework/ui/pages/LanguageBox.h"

#include "VantorGUIToolkit/Language.h"

#include <QLocale>

namespace framework {

namespace {

// Names of one's own language start with a capital letter where the script has any.
QString NativeName(int language)
{
    QString name = QLocale(VantorGUIToolkit::languageTag(language)).nativeLanguageName();
    if (language == VantorGUIToolkit::English)
        name = QStringLiteral("English");
    return name.isEmpty() ? name : name.at(0).toUpper() + name.mid(1);
}

} // namespace

CLanguageBox::CLanguageBox(QWidget* parent) : QComboBox(parent)
{
    setObjectName("language");
    for (const int language : VantorGUIToolkit::allLanguages())
        addItem(NativeName(language), language);
}

} // namespace framework
