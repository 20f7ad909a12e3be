#include "VantorGUIToolkit/SkinLoader.h"
#include "VantorGUIToolkit/Toolkit.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QStyle>
#include <QStyleFactory>
#include <QStyledItemDelegate>

#include <memory>

namespace {

/// The style as it is found in the folder of plug-ins, with or without a skin.
class TheStyle : public testing::Test
{
protected:
    TheStyle()
    {
        QCoreApplication::addLibraryPath(BUILT_PLUGINS);
        kit.setTargetPath(BUILT_PROGRAMS);
    }
    ~TheStyle() override
    {
        QCoreApplication::removeLibraryPath(BUILT_PLUGINS);
        QApplication::setStyle("Fusion");
        QApplication::setPalette({});
    }

    VantorGUIToolkit::CToolkit kit;
    VantorGUIToolkit::CSkinLoader look{kit};
};

TEST_F(TheStyle, TakesItsPaletteAndIconsFromTheSkin)
{
    ASSERT_TRUE(look.LoadSkin("NeutralSkin"));
    ASSERT_TRUE(look.SetStyle());
    const QString window = kit.handleQssByInputParams("@surface@");
    EXPECT_EQ(QApplication::style()->standardPalette().color(QPalette::Window).name(), window);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window).name(), window);

    const QColor warn(kit.handleQssByInputParams("@warn@"));
    const QImage picture =
        QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(64).toImage();
    bool drawn = false;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            drawn |= picture.pixelColor(x, y) == warn;
    EXPECT_TRUE(drawn);
}

TEST_F(TheStyle, IsThereWithoutASkinToo)
{
    const std::unique_ptr<QStyle> style(QStyleFactory::create("cvantorstyle"));
    ASSERT_TRUE(style);
    EXPECT_EQ(style->pixelMetric(QStyle::PM_LayoutLeftMargin), 16);
    EXPECT_FALSE(style->standardIcon(QStyle::SP_DirIcon).isNull());
}

TEST_F(TheStyle, LetsSheetsDressSurfacesAndListsOfComboBoxes)
{
    ASSERT_TRUE(look.SetStyle());
    QWidget page;
    page.setProperty("surface", "page");
    QComboBox box;
    box.addItem("one");
    page.ensurePolished();
    box.ensurePolished();
    EXPECT_TRUE(page.testAttribute(Qt::WA_StyledBackground));
    EXPECT_TRUE(qobject_cast<QStyledItemDelegate*>(box.view()->itemDelegate()));
}

} // namespace
