#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/SkinLoader.h"
#include "VantorGUIToolkit/Toolkit.h"
#include "VantorSkin/SkinPalette.h"
#include "support/CapturedLog.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QMovie>
#include <QRegularExpression>

using namespace VantorGUIToolkit;

namespace {

const QStringList kIcons =
    QString(
        "add edit remove close refresh search settings user users lock bell log device recorder storage "
        "camera "
        "live playback schedule picture video broadcast output wiper stream screen folder eye eye-off info "
        "warning error ok question chevron-down chevron-up chevron-left chevron-right check minus calendar "
        "home "
        "gallery alarm power menu")
        .split(' ');
const QStringList kSheets = {":/Vantor/Qss/Qss/SystemConfig/SystemConfig.qss",
                             ":/Vantor/Qss/Qss/Video.C/VideoClient.qss", ":/Framework/Qss/Framework.qss"};

/// The packages as they are built.
class ThePackages : public testing::TestWithParam<const char*>
{
protected:
    ThePackages() { kit.setTargetPath(BUILT_PROGRAMS); }
    ~ThePackages() override
    {
        qApp->setStyleSheet({});
        QApplication::setPalette({});
    }

    QString Window() const { return kit.handleQssByInputParams("@window@"); }

    CapturedLog log;
    mutable CToolkit kit;
    CSkinLoader look{kit};
};

TEST_P(ThePackages, HaveEverythingThatTheLookNeeds)
{
    ASSERT_TRUE(look.LoadSkin(GetParam()));
    for (const char* package : {"ClientCommon.rcc", "Video.C.rcc", "Framework.rcc"})
        EXPECT_TRUE(look.LoadPackage(package)) << package;
    QString why;
    const auto palette = SkinPalette::Load(SkinPalette::kResource, why);
    ASSERT_TRUE(palette) << why.toStdString();
    EXPECT_EQ(palette->Name(), GetParam());
    EXPECT_EQ(Window(), palette->Color("window").name());

    for (const QString& name : kIcons) {
        EXPECT_FALSE(icon(name).pixmap(20).isNull()) << name.toStdString();
        for (const char* variant : {"-disabled", "-selected", "-on-accent"})
            EXPECT_TRUE(QFile::exists(":/VantorGUIToolKit/Icons/" + name + variant + ".svg"))
                << name.toStdString();
    }
    QMovie loading(":/VantorGUIToolkit/Dialog/Images/Dialog/Loading.gif");
    EXPECT_GT(loading.frameCount(), 8);
}

TEST_P(ThePackages, HaveSheetsWhoseRolesAndPicturesAllExist)
{
    ASSERT_TRUE(look.LoadSkin(GetParam()));
    for (const char* package : {"ClientCommon.rcc", "Video.C.rcc", "Framework.rcc"})
        ASSERT_TRUE(look.LoadPackage(package)) << package;
    for (const int language : {English, Arabic}) {
        kit.setLocale(language);
        kit.setLayoutDirection(isRightToLeft(language) ? Qt::RightToLeft : Qt::LeftToRight);
        look.ApplySheets(kSheets);
        const QString sheet = qApp->styleSheet();
        for (const char* part : {"QPushButton", "#settingsPageList", "#videoArea", "#topBar"})
            EXPECT_TRUE(sheet.contains(part)) << part;
        EXPECT_FALSE(sheet.contains("Left out by the loader"));
        EXPECT_EQ(sheet.count('{'), sheet.count('}'));
        EXPECT_FALSE(sheet.contains(QRegularExpression("@[A-Za-z-]+@")));
        static const QRegularExpression url("url\\(([^)]*)\\)");
        for (auto pictures = url.globalMatch(sheet); pictures.hasNext();) {
            const QString picture = pictures.next().captured(1);
            EXPECT_TRUE(QFile::exists(picture)) << picture.toStdString();
        }
    }
    kit.setLocale(English);
    EXPECT_TRUE(log.Warnings().empty());
}

INSTANTIATE_TEST_SUITE_P(Skins, ThePackages,
                         testing::Values("BlackRedSkin", "GreyRedSkin", "BlueSkin", "NeutralSkin"));

TEST_F(ThePackages, ServeAnUnknownSkinInDark)
{
    ASSERT_FALSE(look.LoadSkin("PinkSkin"));
    EXPECT_EQ(kit.handleQssByInputParams("@theme@"), "dark");
    QString why;
    const auto palette = SkinPalette::Load(SkinPalette::kResource, why);
    ASSERT_TRUE(palette) << why.toStdString();
    EXPECT_EQ(palette->Name(), "BlackRedSkin");
    EXPECT_EQ(Window(), palette->Color("window").name());
}

TEST_F(ThePackages, AreMissedWithoutHarm)
{
    TestDataRoot root;
    kit.setTargetPath(QString::fromStdString(root.Path()) + "bin");
    EXPECT_FALSE(look.LoadSkin("BlueSkin"));
    EXPECT_EQ(Window(), QApplication::palette().color(QPalette::Window).name());
    look.SetStyle();
    look.ApplySheets(kSheets);
    EXPECT_TRUE(qApp->styleSheet().trimmed().isEmpty());
}

} // namespace
