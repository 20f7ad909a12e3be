#include "device/Invocation.h"
#include "device/Output.h"

#include "Base/StringUtil.h"

#include <gtest/gtest.h>

namespace {

using devicetool::Invocation;

/// An invocation in one line, or what is wrong with the arguments.
std::string Parsed(const std::string& line)
{
    std::string error;
    const auto invocation = devicetool::ParseInvocation(Base::StringUtil::Split(line, ' '), error);
    if (!invocation)
        return "!" + error;
    std::string text;
    if (const auto& target = invocation->target)
        text = target->user + " " + target->host + " " + std::to_string(target->port) + " ";
    text += invocation->command;
    for (const std::string& word : invocation->words)
        text += " " + word;
    for (const auto& [name, value] : invocation->options)
        text += " " + name + (value.empty() ? "" : "=" + value);
    return text;
}

struct Row
{
    const char* line;
    const char* parsed;
};

class CommandLine : public testing::TestWithParam<Row>
{};

TEST_P(CommandLine, IsReadOrRefused)
{
    EXPECT_EQ(Parsed(GetParam().line), GetParam().parsed);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CommandLine,
    testing::Values(Row{"admin@cam.example:8600 info", "admin cam.example 8600 info"},
                    Row{"--json a@b@[fe80::1]:80 get motion --channel 2",
                        "a@b fe80::1 80 get motion --channel=2 --json"},
                    Row{"commands", "commands"}, Row{"u@h:1 set x -- --y=1", "u h 1 set x --y=1"},
                    Row{"u@h:0 info", "!u@h:0 is not of the form USER@HOST:PORT"},
                    Row{"u@h:65536 info", "!u@h:65536 is not of the form USER@HOST:PORT"},
                    Row{"u@fe80::1:80 info", "!u@fe80::1:80 is not of the form USER@HOST:PORT"},
                    Row{"u:secret@h:80 info", "!u:secret@h:80 is not of the form USER@HOST:PORT"},
                    Row{"@h:80 info", "!@h:80 is not of the form USER@HOST:PORT"},
                    Row{"u@h:80 get x --channel", "!--channel needs a value"},
                    Row{"u@h:80 info --json --json", "!--json is given twice"},
                    Row{"u@h:80 info --password secret", "!unknown option --password"}));

TEST(Columns, CountCharactersNotBytes)
{
    EXPECT_EQ(devicetool::Columns({{"T\xC3\xBCr", "on"}, {"Tor1", ""}}), "T\xC3\xBCr   on\nTor1\n");
}

} // namespace
