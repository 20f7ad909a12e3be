#include "ui/Application/PageCatalogue.h"

#include "Base/FileUtil.h"
#include "Base/StringUtil.h"
#include "VantorGUIToolkit/Language.h"
#include "VantorGUIToolkit/Toolkit.h"
#include "WndIdManager.h"

#include <gmock/gmock.h>

#include <QLabel>

using testing::ElementsAreArray;

namespace {

std::string ReadmeLine(const std::string& window, const std::string& page, bool available)
{
    return "| `" + window + "` | " + page + " | " + (available ? "available |" : "not available yet |");
}

TEST(TheReadme, ListsEveryWindowWithItsState)
{
    std::vector<std::string> wanted;
    for (const video::PageRow& row : video::PageCatalogue())
        wanted.push_back(ReadmeLine(row.window, row.title, row.make != nullptr));
    for (const video::SettingsPageRow& row : video::SettingsPageCatalogue())
        wanted.push_back(ReadmeLine(row.name, "settings page", row.create != nullptr));

    std::string readme;
    ASSERT_TRUE(Base::FileUtil::ReadFile(PROJECT_ROOT "/README.md", readme));
    std::vector<std::string> listed;
    for (const std::string& line : Base::StringUtil::Split(readme, '\n'))
        if (line.rfind("| `", 0) == 0 && line.find(" available") != std::string::npos)
            listed.push_back(line);
    EXPECT_THAT(listed, ElementsAreArray(wanted));
}

TEST(TheCatalogue, HasAPageForEachNameThatIsServed)
{
    std::vector<std::string> names;
    for (const video::PageRow& row : video::PageCatalogue())
        names.push_back(row.window);
    for (const video::SettingsPageRow& row : video::SettingsPageCatalogue())
        names.push_back(row.name);
    video::CSystemconfigUIManager settings;
    video::CWndIdManager windows({}, settings);
    windows.Init();
    EXPECT_THAT(windows.Names(), ElementsAreArray(names));
    EXPECT_FALSE(video::MakePage("Kitchen"));
}

/// Whether the page shows a text, in any of its labels.
bool Shows(const QWidget& page, const QString& text)
{
    for (const QLabel* label : page.findChildren<QLabel*>())
        if (label->text() == text)
            return true;
    return false;
}

TEST(APageThatIsNotAvailable, SaysSoUnderItsTitleInTheUsersLanguage)
{
    const std::tuple<int, const char*, const char*> rows[] = {
        {VantorGUIToolkit::English, "Alarm Outputs", "This page is not available yet."},
        {VantorGUIToolkit::German, "Alarmausgänge", "Diese Seite ist noch nicht verfügbar."},
        {VantorGUIToolkit::Arabic, "مخارج الإنذار", "هذه الصفحة غير متاحة بعد."},
    };
    for (const auto& [language, title, sentence] : rows) {
        VantorGUIToolkit::CToolkit toolkit;
        ASSERT_TRUE(toolkit.loadTranslations(BUILT_TRANSLATIONS, language));
        const auto page = video::MakePage("AlarmOutput");
        ASSERT_TRUE(page);
        EXPECT_EQ(page->windowTitle().toStdString(), title);
        EXPECT_TRUE(Shows(*page, title)) << title;
        EXPECT_TRUE(Shows(*page, sentence)) << sentence;
    }
}

} // namespace
