#include "DatabaseUpdate/ScriptFolder.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <fstream>
#include <vector>

using DatabaseUpdate::ReadScripts;

TEST(ScriptFolder, GivesTheStepsInOrder)
{
    const TestDataRoot root;
    std::ofstream(root.Path() + "0002_more.sql") << "two";
    std::ofstream(root.Path() + "0001_first.sql") << "one";
    std::ofstream(root.Path() + "README.md") << "no script";
    std::string message;
    const auto scripts = ReadScripts(root.Path(), message);
    ASSERT_TRUE(scripts) << message;
    ASSERT_EQ(scripts->size(), 2u);
    EXPECT_EQ((*scripts)[0].text, "one");
    EXPECT_EQ((*scripts)[1].file, "0002_more.sql");
    EXPECT_EQ((*scripts)[1].version, 2);
}

TEST(ScriptFolder, RefusesAFolderWhoseNumbersDoNotRunFromOneOrWithTooLongAScript)
{
    const std::tuple<const char*, std::vector<std::string>, const char*> rows[] = {
        {"no script", {}, "no script"},
        {"a gap", {"0001_a.sql", "0003_c.sql"}, "0003_c.sql"},
        {"a number twice", {"0001_a.sql", "0002_b.sql", "0002_c.sql"}, "0002_c.sql"},
        {"no first", {"0002_b.sql"}, "0002_b.sql"},
        {"number nought", {"0000_a.sql", "0001_b.sql"}, "0000_a.sql"},
        {"no number", {"0001_a.sql", "fix.sql"}, "fix.sql"},
        {"three digits", {"001_a.sql"}, "001_a.sql"},
        {"five digits", {"00001_a.sql"}, "00001_a.sql"},
        {"a script over the limit", {"0001_big.sql"}, "0001_big.sql"},
    };
    for (const auto& [what, files, named] : rows) {
        const TestDataRoot root;
        for (const std::string& file : files)
            std::ofstream(root.Path() + file)
                << std::string(file == "0001_big.sql" ? 1024 * 1024 + 1 : 9, ' ');
        std::string message;
        EXPECT_FALSE(ReadScripts(root.Path(), message)) << what;
        EXPECT_NE(message.find(named), std::string::npos) << what << ": " << message;
    }
}
