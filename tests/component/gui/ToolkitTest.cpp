#include "VantorGUIToolkit/Toolkit.h"
#include "VantorGUIToolkit/DateTimeFormat.h"
#include "support/CapturedLog.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFontDatabase>
#include <QLabel>
#include <QRawFont>

using namespace VantorGUIToolkit;

namespace {

const QString kSkin = QStringLiteral(GUI_TEST_DATA "TestSkin.rcc");
const QString kSheet = QStringLiteral(":/GuiTest/Test.qss");

QString WriteFile(const TestDataRoot& root, const char* name, const QByteArray& content)
{
    const QString path = QString::fromStdString(root.Path()) + name;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return path;
}

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

} // namespace

TEST(Toolkit, EveryLanguageHasAnInstalledFontWithItsLetters)
{
    const std::pair<int, QString> rows[] = {
        {English, "Aaz09%"},
        {Chinese, QString::fromUtf8("设置录像Az0")},
        {German, QString::fromUtf8("ÄöüßAz0")},
        {Hebrew, QString::fromUtf8("אבגשתAz0")},
        {Arabic, QString::fromUtf8("ابتثيAz0")},
    };
    ASSERT_EQ(std::size(rows), allLanguages().size());
    const QStringList installed = QFontDatabase().families();
    for (const auto& [language, letters] : rows) {
        const FontInfo info = getFontInfoByLanguage(language);
        EXPECT_GE(info.pixelSize, 12) << language;
        const auto family = std::find_if(info.families.begin(), info.families.end(),
                                         [&](const QString& name) { return installed.contains(name); });
        ASSERT_NE(family, info.families.end()) << "no font for " << languageTag(language).toStdString();
        QFont font(*family);
        font.setPixelSize(info.pixelSize);
        const QRawFont raw = QRawFont::fromFont(font);
        for (const QChar letter : letters)
            EXPECT_TRUE(raw.supportsCharacter(letter)) << family->toStdString() << " " << letter.unicode();
    }
}

TEST(Toolkit, LanguagesThatNobodyKnowsAreServedInEnglish)
{
    for (const int language : {-1, 0, 4, 12, 14, 33, 35, 1 << 30}) {
        EXPECT_EQ(languageTag(language), "en") << language;
        EXPECT_FALSE(isRightToLeft(language)) << language;
        EXPECT_EQ(getFontInfoByLanguage(language).families, getFontInfoByLanguage(English).families)
            << language;
    }
}

TEST(Toolkit, OnlyHebrewAndArabicRunFromRightToLeft)
{
    for (const int language : allLanguages()) {
        const bool mirrored = language == 13 || language == 34;
        EXPECT_EQ(isRightToLeft(language), mirrored) << language;
        EXPECT_EQ(QLocale(languageTag(language)).textDirection() == Qt::RightToLeft, mirrored) << language;
    }
}

TEST(Toolkit, FillsMarkersOfStyleSheets)
{
    const StyleParameters parameters = {
        {"text", "#fff"}, {"a-b_2", "x"}, {"nested", "@text@"}, {"empty", ""}};
    const std::pair<const char*, const char*> rows[] = {
        {"", ""},
        {"QLabel { color: red; }", "QLabel { color: red; }"},
        {"color: @text@;", "color: #fff;"},
        {"@text@@text@", "#fff#fff"},
        {"@a-b_2@@empty@.", "x."},
        {"@nested@", "@text@"},
        {"me@home.org and @ alone", "me@home.org and @ alone"},
        {"@2x@ @@ @text", "@2x@ @@ @text"},
        {"@Text@", "@Text@"},
        {"@none@ @text@", "@none@ #fff"},
    };
    CStyleSheetFiller filler;
    for (const auto& [sheet, filled] : rows)
        EXPECT_EQ(filler.Fill(sheet, parameters).toStdString(), filled);
}

TEST(Toolkit, WarnsOfAnUnknownMarkerOnce)
{
    CapturedLog log;
    CToolkit kit;
    kit.handleQssByInputParams("@none@ @none@ @other@");
    kit.handleQssByInputParams("@none@");
    const std::vector<std::string> expected = {"Unknown style sheet parameter [none].",
                                               "Unknown style sheet parameter [other]."};
    EXPECT_EQ(log.Warnings(), expected);
}

TEST(Toolkit, StyleSheetsFollowSkinLanguageAndDirection)
{
    CToolkit kit;
    const QString sheet = "@theme@ @skin@ @language@ @direction@ @start@ @end@ @font-size@";
    EXPECT_EQ(kit.handleQssByInputParams(sheet), "dark BlackRedSkin en ltr left right 13px");
    kit.setSkinType("BlueSkin");
    kit.setLocale(Arabic);
    kit.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(kit.handleQssByInputParams(sheet), "blue BlueSkin ar rtl right left 14px");
    EXPECT_EQ(kit.handleQssByInputParams("@font@"), "\"Segoe UI\", \"Noto Sans Arabic\", \"DejaVu Sans\"");
    kit.setStyleParameters({{"accent", "#123456"}, {"start", "own"}});
    EXPECT_EQ(kit.handleQssByInputParams("@accent@ @start@"), "#123456 own");
    kit.setLocale(English);
}

TEST(Toolkit, AFilledStyleSheetReachesTheWidget)
{
    CToolkit kit;
    ASSERT_TRUE(kit.loadSkinPackage(kSkin));
    kit.setStyleParameters({{"text", "#12ab34"}});
    QLabel label("x");
    label.setStyleSheet(kit.handleQssByInputParams(ReadAll(kSheet)));
    label.ensurePolished();
    EXPECT_EQ(label.palette().color(QPalette::WindowText).name(), "#12ab34");
}

TEST(Toolkit, ThemeOfEachSkin)
{
    const std::pair<const char*, const char*> rows[] = {
        {"BlackRedSkin", "dark"},
        {"GreyRedSkin", "bright"},
        {"BlueSkin", "blue"},
        {"NeutralSkin", "neutral"},
        {"", "dark"},
        {"blueskin", "dark"},
        {"Unknown", "dark"},
    };
    for (const auto& [skin, theme] : rows)
        EXPECT_EQ(themeOfSkin(skin), theme) << skin;
}

TEST(Toolkit, SkinPackagesComeAndGo)
{
    CToolkit kit;
    EXPECT_FALSE(QFile::exists(kSheet));
    EXPECT_TRUE(kit.loadSkinPackage(kSkin));
    EXPECT_TRUE(kit.loadSkinPackage(kSkin));
    EXPECT_EQ(kit.skinPackages().size(), 1);
    EXPECT_TRUE(ReadAll(kSheet).contains("@text@"));
    kit.UnInit();
    EXPECT_FALSE(QFile::exists(kSheet));
    kit.UnInit();
    EXPECT_TRUE(kit.loadSkinPackage(kSkin)) << "everything can be loaded anew";
    EXPECT_TRUE(QFile::exists(kSheet));
}

TEST(Toolkit, ABrokenSkinPackageIsRefusedWithOneLine)
{
    TestDataRoot root;
    const QByteArray good = ReadAll(kSkin);
    QByteArray later = good;
    later[7] = 99; // the format's version
    const std::pair<const char*, QString> rows[] = {
        {"missing", QString::fromStdString(root.Path()) + "missing.rcc"},
        {"a folder", QString::fromStdString(root.Path())},
        {"no name", QString()},
        {"empty", WriteFile(root, "empty.rcc", {})},
        {"text", WriteFile(root, "text.rcc", "this is no package at all, only a text")},
        {"cut", WriteFile(root, "cut.rcc", good.left(good.size() / 2))},
        {"of a later version", WriteFile(root, "later.rcc", later)},
    };
    for (const auto& [name, path] : rows) {
        CToolkit kit;
        CapturedLog log;
        EXPECT_FALSE(kit.loadSkinPackage(path)) << name;
        EXPECT_EQ(log.Warnings().size(), 1U) << name;
        EXPECT_TRUE(kit.skinPackages().isEmpty()) << name;
    }
}

TEST(Toolkit, TargetPathIsTheProgramsFolderUntilSet)
{
    CToolkit kit;
    EXPECT_EQ(kit.targetPath(), QCoreApplication::applicationDirPath() + "/");
    kit.setTargetPath("/opt/x");
    EXPECT_EQ(kit.targetPath(), "/opt/x/");
    kit.setTargetPath("/opt/y/");
    EXPECT_EQ(kit.targetPath(), "/opt/y/");
    kit.setTargetPath("");
    EXPECT_EQ(kit.targetPath(), QCoreApplication::applicationDirPath() + "/");
}

TEST(Toolkit, TellsDateAndTimeFormats)
{
    for (const char* good : {"yyyy-MM-dd", "dd.MM.yyyy", "M/d/yy", "d MM yyyy"})
        EXPECT_TRUE(isDateFormat(good)) << good;
    for (const char* bad : {"", "yyyy-MM", "yyyy-MM-yy", "dd-MM-d", "yyyy-mm-dd", "YYYY-MM-DD", "yyyy-MM-dd ",
                            "yyyyMMdd", "yyyy-MM-dd\n", "yyyyy-MM-dd", "'x'-MM-dd", "%s-%n-%s"})
        EXPECT_FALSE(isDateFormat(bad)) << bad;
    for (const char* good : {"HH:mm:ss", "H:mm", "hh:mm AP", "h.mm.ss ap"})
        EXPECT_TRUE(isTimeFormat(good)) << good;
    for (const char* bad :
         {"", "HH", "HH:MM", "hh:mm", "HH:mm AP", "mm:HH", "HH:mm:ss\n", "HH:mm:ss.zzz", "hh:mmAP"})
        EXPECT_FALSE(isTimeFormat(bad)) << bad;
}

TEST(Toolkit, ShowsDatesAndTimesAsTold)
{
    CToolkit kit;
    const QDateTime moment(QDate(2024, 3, 9), QTime(17, 5, 8));
    EXPECT_EQ(kit.dateTimeText(moment), "2024-03-09 17:05:08");
    EXPECT_TRUE(kit.initDateFormat("d.M.yy"));
    EXPECT_TRUE(kit.initTimeFormat("h:mm AP"));
    EXPECT_EQ(kit.dateTimeText(moment), "9.3.24 5:05 PM");
    CapturedLog log;
    EXPECT_FALSE(kit.initDateFormat("nonsense"));
    EXPECT_FALSE(kit.initTimeFormat(QString(100'000, 'H')));
    EXPECT_EQ(log.Warnings().size(), 2U);
    EXPECT_LT(log.Lines()[1].message.size(), 200U);
    EXPECT_EQ(kit.dateTimeText(moment), "9.3.24 5:05 PM");
}
