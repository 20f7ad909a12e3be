#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace framework {

/// What the program was asked for.
struct CommandLine
{
    QString skin;                ///< empty: as chosen before
    std::optional<int> language; ///< none: as chosen before
    QString component;           ///< the component's program
    QStringList open;            ///< names of tabs
    QString tourFolder;          ///< empty: no tour
    QString report;              ///< file, "-" for standard output, empty for none
    bool demonstration = false;  ///< fills a fresh data root
    QString simulator;           ///< the program that plays its devices
    bool help = false;
};

/// Reads the arguments behind the program's name. Nothing, and the reason in error, for a wrong command line.
std::optional<CommandLine> ParseCommandLine(const QStringList& arguments, QString& error);

/// What --help prints.
QString HelpText();

} // namespace framework
