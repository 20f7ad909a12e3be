#include "framework/ui/CommandLine.h"

#include "VantorGUIToolkit/Language.h"
#include "framework/ui/pages/SkinPicker.h"
#include "framework/ui/parts/WindowTable.h"

#include <QCommandLineParser>

#include <algorithm>

namespace framework {

namespace {

void AddOptions(QCommandLineParser& parser)
{
    parser.addOptions({
        {"skin", "BlackRedSkin (dark), GreyRedSkin (bright), BlueSkin or NeutralSkin.", "NAME"},
        {"language", "1 English, 2 Chinese, 3 German, 13 Hebrew, 34 Arabic.", "NUMBER"},
        {"component", "The component's program; Vantor.Video.C beside this one until given.", "PROGRAM"},
        {"open", "Opens this tab at the start, for example MainView or Devices. May be repeated.", "NAME"},
        {"tour",
         "Walks through every tab, writes a picture of each to the folder and ends. The exit code is 0 "
         "only if every step worked.",
         "FOLDER"},
        {"demonstration", "Fills a data root that has no devices with simulated ones, and with pictures and "
                          "clips, once; plays these devices."},
        {"simulator", "The program that plays devices; vantor-device-sim beside this one until given.",
         "PROGRAM"},
        {"report", "Writes a line of JSON for everything that happens; - is standard output.", "FILE"},
        {QStringList{"h", "help"}, "Shows this text."},
    });
    parser.setApplicationDescription(
        "The reference framework: starts the video component and shows its windows.");
}

bool IsSkin(const QString& name)
{
    const auto skins = AllSkins();
    return std::any_of(skins.begin(), skins.end(), [&](const auto& each) { return each.skin == name; });
}

bool TakeLanguage(const QString& text, CommandLine& line)
{
    bool isNumber = false;
    const int language = text.toInt(&isNumber);
    const auto& all = VantorGUIToolkit::allLanguages();
    line.language = language;
    return isNumber && std::find(all.begin(), all.end(), language) != all.end();
}

} // namespace

std::optional<CommandLine> ParseCommandLine(const QStringList& arguments, QString& error)
{
    QCommandLineParser parser;
    AddOptions(parser);
    CommandLine line;
    if (!parser.parse(QStringList("Vantor.Framework") + arguments))
        error = parser.errorText();
    else if (!parser.positionalArguments().isEmpty())
        error = "Unknown argument '" + parser.positionalArguments().front() + "'.";
    line.skin = parser.value("skin");
    line.component = parser.value("component");
    line.open = parser.values("open");
    line.tourFolder = parser.value("tour");
    line.report = parser.value("report");
    line.simulator = parser.value("simulator");
    line.demonstration = parser.isSet("demonstration");
    line.help = parser.isSet("help");
    if (error.isEmpty() && parser.isSet("skin") && !IsSkin(line.skin))
        error = "There is no skin '" + line.skin + "'.";
    if (error.isEmpty() && parser.isSet("language") && !TakeLanguage(parser.value("language"), line))
        error = "There is no language '" + parser.value("language") + "'.";
    for (const QString& name : line.open)
        if (error.isEmpty() && !FindWindow(name))
            error = "There is no tab '" + name + "'.";
    return error.isEmpty() ? std::optional(line) : std::nullopt;
}

QString HelpText()
{
    QCommandLineParser parser;
    AddOptions(parser);
    return parser.helpText();
}

} // namespace framework
