#include "VantorGUIToolkit/Gallery/GalleryPage.h"
#include "VantorGUIToolkit/SkinLoader.h"
#include "VantorGUIToolkit/Toolkit.h"
#include "component/widgets/GuiDriving.h"
#include "support/CapturedQtLog.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>

using namespace VantorGUIToolkit;

namespace {

/// What Qt warned of, but for what the platform without a screen cannot do.
std::string Warnings()
{
    std::string warnings;
    for (const std::string& line : CapturedQtLog::Lines())
        if (line.find("This plugin does not support") == std::string::npos &&
            line.find("XDG_RUNTIME") == std::string::npos)
            warnings += line + '\n';
    return warnings;
}

/// The application in a skin and a language, as a program that uses the toolkit takes them on, and back.
class Look
{
public:
    Look(const QString& skin, int language)
    {
        QApplication::addLibraryPath(BUILT_PRODUCT "plugins");
        CToolkit& look = toolkit();
        look.setTargetPath(BUILT_PRODUCT "bin/");
        isWhole = takeLook(look, skin, language);
    }

    ~Look()
    {
        qApp->setStyleSheet({});
        QApplication::setLayoutDirection(Qt::LeftToRight);
        toolkit().setLocale(English);
        toolkit().UnInit();
        toolkit().setTargetPath({});
    }

    bool isWhole; ///< skin and style were found
};

QString NameOf(QWidget* widget)
{
    if (!widget->accessibleName().isEmpty())
        return widget->accessibleName();
    const auto* button = qobject_cast<QAbstractButton*>(widget);
    return button ? button->text() : QString();
}

/// Widgets that others are made of, such as the edit in a spin box, are spoken for by the outer one.
bool IsPartOfAnother(const QWidget* widget)
{
    const QWidget* window = widget->window();
    if (widget->objectName().startsWith("qt_") || window->windowType() == Qt::Popup)
        return true;
    const QWidget* parent = widget->parentWidget();
    return parent && (qobject_cast<const QComboBox*>(parent) || parent->inherits("QAbstractSpinBox") ||
                      parent->inherits("QTabWidget") || parent->inherits("QTabBar") ||
                      (parent->inherits("QAbstractItemView") && !widget->inherits("QAbstractItemView")));
}

QStringList Nameless(const QWidget& page)
{
    QStringList found;
    for (QWidget* widget : page.findChildren<QWidget*>())
        if (widget->focusPolicy() != Qt::NoFocus && widget->isVisibleTo(&page) && !IsPartOfAnother(widget) &&
            NameOf(widget).isEmpty())
            found << QString("%1 %2").arg(widget->metaObject()->className(), widget->objectName());
    return found;
}

struct Gallery : testing::TestWithParam<std::tuple<const char*, int>>
{};

} // namespace

TEST_P(Gallery, IsMadeWithoutWarningsAndEveryWidgetHasAName)
{
    const auto [skin, language] = GetParam();
    const CapturedQtLog log;
    const Look look(skin, language);
    ASSERT_TRUE(look.isWhole);
    {
        CGalleryPage page;
        page.resize(1280, 900);
        page.show();
        page.grab();
        EXPECT_EQ(page.layoutDirection() == Qt::RightToLeft, isRightToLeft(language));
        EXPECT_EQ(Nameless(page).join("\n").toStdString(), "");
        auto* combo = page.findChild<QComboBox*>("galleryCombo");
        combo->showPopup();
        EXPECT_GE(combo->view()->visualRect(combo->model()->index(0, 0)).height(), 24);
        combo->hidePopup();
        const QString title = page.findChild<QLabel*>("pageTitle")->text();
        EXPECT_EQ(title == "Gallery", language == English) << title.toStdString();
    }
    EXPECT_EQ(Warnings(), "");
}

// Every skin in both directions, and every language.
INSTANTIATE_TEST_SUITE_P(SkinsAndLanguages, Gallery,
                         testing::Values(std::tuple("BlackRedSkin", English),
                                         std::tuple("BlackRedSkin", Hebrew),
                                         std::tuple("GreyRedSkin", German), std::tuple("GreyRedSkin", Arabic),
                                         std::tuple("BlueSkin", Chinese), std::tuple("BlueSkin", Hebrew),
                                         std::tuple("NeutralSkin", English),
                                         std::tuple("NeutralSkin", Arabic)));
