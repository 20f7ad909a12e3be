#include "system/ComponentRun.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

std::vector<std::string> ScriptNames()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(VANTOR_SCRIPTS))
        if (entry.path().extension() == ".jsonl")
            names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

class AScript : public testing::TestWithParam<std::string>
{};

TEST_P(AScript, PlaysWithTheRealComponent)
{
    ComponentRun run;
    EXPECT_EQ(run.PlayFile(GetParam()), 0) << run.Output();
    EXPECT_TRUE(run.WaitUntilEnded(5));
}

INSTANTIATE_TEST_SUITE_P(Scripts, AScript, testing::ValuesIn(ScriptNames()), [](const auto& row) {
    std::string name;
    for (char c : row.param.substr(0, row.param.find('.')))
        name += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
    return name;
});

} // namespace
