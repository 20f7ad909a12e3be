#include "VantorGUIToolkit/StyleSheet.h"

#include "Base/Log.h"

#include <QRegularExpression>

namespace VantorGUIToolkit {

QString CStyleSheetFiller::Fill(const QString& qss, const StyleParameters& parameters)
{
    static const QRegularExpression marker(QStringLiteral("@([A-Za-z][A-Za-z0-9_-]*)@"));
    QString filled;
    filled.reserve(qss.size());
    int done = 0;
    for (auto matches = marker.globalMatch(qss); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const auto value = parameters.constFind(match.captured(1));
        if (value == parameters.constEnd()) {
            WarnOnce(match.captured(1));
            continue;
        }
        filled += qss.midRef(done, match.capturedStart() - done);
        filled += *value;
        done = match.capturedEnd();
    }
    return filled + qss.midRef(done);
}

void CStyleSheetFiller::WarnOnce(const QString& name)
{
    if (m_warned.contains(name))
        return;
    m_warned.insert(name);
    BASE_WARN("Unknown style sheet parameter [%s].", name.toUtf8().constData());
}

} // namespace VantorGUIToolkit
