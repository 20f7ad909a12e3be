#include "framework/ui/CommandLine.h"

#include <gtest/gtest.h>

using namespace framework;

namespace {

TEST(FrameworkCommandLine, TakesWhatIsKnown)
{
    QString error;
    const auto line =
        ParseCommandLine({"--skin", "BlueSkin", "--language", "34", "--open", "Devices", "--open", "Wiper",
                          "--tour", "pictures", "--report", "-", "--demonstration"},
                         error);
    ASSERT_TRUE(line) << error.toStdString();
    EXPECT_EQ(line->skin, "BlueSkin");
    EXPECT_EQ(line->language, 34);
    EXPECT_EQ(line->open, QStringList({"Devices", "Wiper"}));
    EXPECT_EQ(line->tourFolder, "pictures");
    EXPECT_EQ(line->report, "-");
    EXPECT_TRUE(line->demonstration);
}

TEST(FrameworkCommandLine, RefusesTheRestWithAReason)
{
    const QStringList rows[] = {{"--skin", "PinkSkin"},
                                {"--language", "5"},
                                {"--language", "de"},
                                {"--open", "Kitchen"},
                                {"--skin"},
                                {"--no-such-option"},
                                {"word"}};
    for (const QStringList& row : rows) {
        QString error;
        EXPECT_FALSE(ParseCommandLine(row, error)) << row.join(' ').toStdString();
        EXPECT_FALSE(error.isEmpty());
    }
}

} // namespace
