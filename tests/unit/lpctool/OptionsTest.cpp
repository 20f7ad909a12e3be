#include "CommandLine/Options.h"
#include "lpc/Commands.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace CommandLine;
using namespace lpctool;

namespace {

using Words = std::vector<std::string>;

const std::vector<OptionSpec> kSpecs = {{"--flag", OptionSpec::Kind::Flag},
                                        {"--name", OptionSpec::Kind::Value},
                                        {"--run", OptionSpec::Kind::Words}};

TEST(Options, TakeTheirWordsAndEverythingBehindTwoDashes)
{
    std::string error;
    const auto options = COptions::Parse({"--run", "p", "-x", "", "--name", "n", "--flag"}, kSpecs, error);
    ASSERT_TRUE(options) << error;
    EXPECT_EQ(options->Words("--run"), (Words{"p", "-x", ""}));
    EXPECT_EQ(options->Value("--name"), "n");
    EXPECT_TRUE(options->Has("--flag"));
    const auto behind = COptions::Parse({"--flag", "--run", "--", "p", "--flag", "--other"}, kSpecs, error);
    ASSERT_TRUE(behind) << error;
    EXPECT_EQ(behind->Words("--run"), (Words{"p", "--flag", "--other"}));
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

/// The tool's exit code, and what it wrote to its output and error output.
std::tuple<int, std::string, std::string> RunWith(const Words& arguments, const char* input = "")
{
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int code = RunTool(arguments, in, out, err);
    return {code, out.str(), err.str()};
}

TEST(TheTool, RefusesAWrongCommandLineOrScriptWithExitCode2BeforeAnythingStarts)
{
    const struct
    {
        Words arguments;
        const char* complaint;
        const char* input = "";
    } rows[] = {
        {{}, "vantor-lpc drives"},
        {{"dance"}, "unknown command dance"},
        {{"host", "--spwan", "p"}, "unknown argument --spwan"},
        {{"host", "--language", "x"}, "--language must be"},
        {{"host", "--skin", "Red Skin"}, "--skin cannot hold a blank"},
        {{"host", "--script", "/nowhere/s.jsonl"}, "/nowhere/s.jsonl: cannot be read"},
        {{"host", "--script", "-"}, "-:2: \"sleep_ms\" must be", "\n{\"sleep_ms\": 0}"},
        {{"host", "--script", "-"}, "-:3: needs a program started", "# a\n\n{\"expect_exit\": 0}"},
        {{"call"}, "--url or --method is needed"},
        {{"call", "--url", "/u", "--body", "{"}, "--body is not valid JSON at column 2"},
        {{"call", "--url", "/u", "--timeout", "0"}, "--timeout must be"},
        {{"notify", "--method", "m", "--protokol", "x"}, "unknown argument --protokol"},
        {{"watch", "--count", "0"}, "--count must be"},
    };
    for (const auto& row : rows) {
        const auto [code, output, complaint] = RunWith(row.arguments, row.input);
        EXPECT_EQ(code, kWrongUse) << row.complaint;
        EXPECT_NE(complaint.find(row.complaint), std::string::npos) << complaint;
        EXPECT_EQ(output, "");
    }
}

TEST(TheTool, HasHelpForEveryCommand)
{
    for (const std::string command : {"", "host", "call", "notify", "watch"}) {
        const auto [code, output, complaint] =
            RunWith(command.empty() ? Words{"--help"} : Words{command, "--help"});
        EXPECT_EQ(code, kGood) << complaint;
        EXPECT_EQ(output.rfind("vantor-lpc " + (command.empty() ? "drives" : command), 0), 0u) << output;
    }
}

} // namespace
