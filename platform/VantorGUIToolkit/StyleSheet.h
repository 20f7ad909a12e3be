#pragma once

#include <QHash>
#include <QSet>
#include <QString>

namespace VantorGUIToolkit {

/// Values by the name between the "@" of a marker.
using StyleParameters = QHash<QString, QString>;

/// Puts values in the place of markers "@name@" in style sheets. A name is a letter followed by letters,
/// digits, "-" or "_"; anything else with an "@" is left as it is, and what was put in is not looked at
/// again. An unknown marker is left in place and logged as a warning, once for each name. GUI thread.
class CStyleSheetFiller
{
public:
    QString Fill(const QString& qss, const StyleParameters& parameters);

private:
    void WarnOnce(const QString& name);

    QSet<QString> m_warned;
};

} // namespace VantorGUIToolkit
