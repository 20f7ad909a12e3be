#include "lpc/Options.h"
#include "lpc/Commands.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace lpctool;

namespace {

using Words = std::vector<std::string>;

const std::vector<OptionSpec> kSpecs = {{"--flag", OptionSpec::Kind::Flag},
                                        {"--name", OptionSpec::Kind::Value},
                                        {"--run", OptionSpec::Kind::Words}};

TEST(Options, TakeTheirWords)
{
    std::string error;
    const auto options = COptions::Parse({"--run", "p", "-x", "", "--name", "n", "--flag"}, kSpecs, error);
    ASSERT_TRUE(options) << error;
    EXPECT_EQ(options->Words("--run"), (Words{"p", "-x", ""}));
    EXPECT_EQ(options->Value("--name"), "n");
    EXPECT_TRUE(options->Has("--flag"));
}

TEST(Options, TakeEverythingBehindTwoDashes)
{
    std::string error;
    const auto options = COptions::Parse({"--flag", "--run", "--", "p", "--flag", "--other"}, kSpecs, error);
    ASSERT_TRUE(options) << error;
    EXPECT_EQ(options->Words("--run"), (Words{"p", "--flag", "--other"}));
}

TEST(Options, ComplainAboutWhatTheyDoNotKnow)
{
    const std::pair<Words, const char*> rows[] = {
        {{"--other"}, "unknown argument --other"},
        {{"word"}, "unknown argument word"},
        {{"--flag", "word"}, "unknown argument word"},
        {{"--name"}, "--name needs a value"},
        {{"--name", "--flag"}, "--name needs a value"},
        {{"--run", "--"}, "--run needs a value"},
        {{"--name", "a", "b"}, "unknown argument b"},
        {{"--name", "a", "--name", "b"}, "--name is given twice"},
    };
    for (const auto& [arguments, complaint] : rows) {
        std::string error;
        EXPECT_FALSE(COptions::Parse(arguments, kSpecs, error));
        EXPECT_EQ(error, complaint);
    }
}

TEST(Options, CheckNumbers)
{
    for (const char* text : {"0", "101", "5x", "", "99999999999999999999"}) {
        std::string error;
        long number = 0;
        const auto options = COptions::Parse({"--name", text}, kSpecs, error);
        EXPECT_FALSE(options->Number("--name", 1, 100, 7, number, error)) << text;
        EXPECT_EQ(error, "--name must be a whole number from 1 to 100");
    }
}

TEST(TheTool, RefusesAWrongCommandLineWithExitCode2)
{
    const std::pair<Words, const char*> rows[] = {
        {{}, "vantor-lpc drives"},
        {{"dance"}, "unknown command dance"},
        {{"host", "--spwan", "p"}, "unknown argument --spwan"},
        {{"host", "--language", "x"}, "--language must be"},
        {{"host", "--skin", "Red Skin"}, "--skin cannot hold a blank"},
        {{"host", "--script", "/nowhere/s.jsonl"}, "/nowhere/s.jsonl: cannot be read"},
        {{"call"}, "--url or --method is needed"},
        {{"call", "--url", "/u", "--body", "{"}, "--body is not valid JSON at column 2"},
        {{"call", "--url", "/u", "--timeout", "0"}, "--timeout must be"},
        {{"notify", "--method", "m", "--protokol", "x"}, "unknown argument --protokol"},
        {{"watch", "--count", "0"}, "--count must be"},
    };
    for (const auto& [arguments, complaint] : rows) {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(RunTool(arguments, in, out, err), kWrongUse) << complaint;
        EXPECT_NE(err.str().find(complaint), std::string::npos) << err.str();
        EXPECT_EQ(out.str(), "");
    }
}

TEST(TheTool, ReportsAFaultOfTheScriptBeforeAnythingStarts)
{
    const std::pair<const char*, const char*> rows[] = {
        {"\n{\"sleep_ms\": 0}", "-:2: \"sleep_ms\" must be"},
        {"# a\n\n{\"expect_exit\": 0}", "-:3: needs a program started with --spawn"}};
    for (const auto& [script, complaint] : rows) {
        std::istringstream in(script);
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(RunTool({"host", "--script", "-"}, in, out, err), kWrongUse);
        EXPECT_NE(err.str().find(complaint), std::string::npos) << err.str();
        EXPECT_EQ(out.str(), "");
    }
}

TEST(TheTool, HasHelpForEveryCommand)
{
    for (const Words& arguments : {Words{"--help"}, Words{"host", "--help"}, Words{"call", "--help"},
                                   Words{"notify", "--help"}, Words{"watch", "--help"}}) {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(RunTool(arguments, in, out, err), kGood);
        const std::string wanted = arguments.size() == 1 ? "vantor-lpc drives" : "vantor-lpc " + arguments[0];
        EXPECT_EQ(out.str().rfind(wanted, 0), 0u) << out.str();
    }
}

} // namespace
