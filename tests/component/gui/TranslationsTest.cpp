#include "VantorGUIToolkit/Toolkit.h"
#include "support/CapturedLog.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>

#include <fstream>

using namespace VantorGUIToolkit;

namespace {

const QString kDir = QStringLiteral(GUI_TEST_DATA "translations/");

QString Shown(const char* key)
{
    return QCoreApplication::translate("uiSystemFileWidget", key);
}

} // namespace

TEST(Translations, TheLanguageThatWasLoadedLastIsShown)
{
    CToolkit kit;
    EXPECT_EQ(Shown("Information"), "Information");
    EXPECT_TRUE(kit.loadTranslations(kDir, German));
    EXPECT_EQ(Shown("Information"), "Hinweis");
    EXPECT_EQ(Shown("SavingPathOfVideoFiles"), "Videoordner");
    EXPECT_EQ(Shown("Clips"), "Aufnahmen") << "every file of the language is installed";
    EXPECT_TRUE(kit.loadTranslations(kDir, English));
    EXPECT_EQ(Shown("SavingPathOfVideoFiles"), "Video folder");
    EXPECT_EQ(Shown("Clips"), "Clips");
    EXPECT_EQ(kit.translationFiles().size(), 1) << "those of the former language are gone";
    kit.UnInit();
    EXPECT_EQ(Shown("SavingPathOfVideoFiles"), "SavingPathOfVideoFiles");
    kit.UnInit();
}

TEST(Translations, AKeyThatTheLanguageDoesNotHaveIsShownInEnglish)
{
    CToolkit kit;
    EXPECT_TRUE(kit.loadTranslations(kDir, Arabic));
    EXPECT_EQ(Shown("SavingPathOfVideoFiles"), QString::fromUtf8("مجلد الفيديو"));
    EXPECT_EQ(Shown("Clips"), "Clips");
    EXPECT_EQ(Shown("Information"), "Information");
    EXPECT_EQ(Shown("NobodyHasThis"), "NobodyHasThis");
}

TEST(Translations, AMissingLanguageIsToldAndShownInEnglish)
{
    CToolkit kit;
    ASSERT_TRUE(kit.loadTranslations(kDir, German));
    CapturedLog log;
    EXPECT_FALSE(kit.loadTranslations(kDir, Hebrew));
    EXPECT_EQ(log.Warnings().size(), 1U);
    EXPECT_EQ(Shown("SavingPathOfVideoFiles"), "Video folder");
}

TEST(Translations, AFolderWithoutTranslationsShowsKeys)
{
    TestDataRoot empty;
    CToolkit kit;
    ASSERT_TRUE(kit.loadTranslations(kDir, German));
    EXPECT_FALSE(kit.loadTranslations(QString::fromStdString(empty.Path()), German));
    EXPECT_TRUE(kit.translationFiles().isEmpty());
    EXPECT_EQ(Shown("Information"), "Information");
    EXPECT_FALSE(kit.loadTranslations("/no/such/folder", German));
}

TEST(Translations, ABrokenFileIsToldAndTheOthersAreUsed)
{
    TestDataRoot root;
    const QString dir = QString::fromStdString(root.Path());
    ASSERT_TRUE(QFile::copy(kDir + "Pages_de.qm", dir + "Pages_de.qm"));
    for (const std::string& content :
         {std::string(), std::string("no translations"), std::string(16, '\x3c')}) {
        std::ofstream(root.Path() + "Broken_de.qm") << content;
        CToolkit kit;
        EXPECT_FALSE(kit.loadTranslations(dir, German));
        EXPECT_EQ(Shown("Information"), "Hinweis");
        EXPECT_EQ(kit.translationFiles().size(), 1);
    }
}

TEST(Translations, TheLocaleFollowsTheLanguage)
{
    CToolkit kit;
    kit.setLocale(German);
    EXPECT_EQ(QLocale().language(), QLocale::German);
    EXPECT_EQ(kit.language(), German);
    kit.setLocale(Chinese);
    EXPECT_EQ(QLocale().script(), QLocale::SimplifiedChineseScript);
    kit.setLocale(77);
    EXPECT_EQ(QLocale().language(), QLocale::English);
}
