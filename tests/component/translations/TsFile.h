#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// One text of a translation source file (.ts).
struct TsText
{
    QString source;
    QStringList forms; ///< the translation; one for each number form of a text that counts
    bool finished = false;
};

/// The texts by context, source and disambiguation.
using TsTexts = QMap<QString, TsText>;

/// Reads a .ts file; a file that is no sound XML fails the test that reads it.
TsTexts ReadTsFile(const QString& path);
