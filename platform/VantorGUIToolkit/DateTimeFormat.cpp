#include "VantorGUIToolkit/DateTimeFormat.h"

#include <QRegularExpression>

#include <set>

namespace VantorGUIToolkit {

bool isDateFormat(const QString& format)
{
    static const QRegularExpression form(
        QStringLiteral("\\A(yyyy|yy|MM|M|dd|d)[-/. ](yyyy|yy|MM|M|dd|d)[-/. ](yyyy|yy|MM|M|dd|d)\\z"));
    const QRegularExpressionMatch match = form.match(format);
    if (!match.hasMatch())
        return false;
    std::set<QChar> shown;
    for (int part = 1; part <= 3; ++part)
        shown.insert(match.capturedRef(part).at(0));
    return shown.size() == 3;
}

bool isTimeFormat(const QString& format)
{
    static const QRegularExpression form(
        QStringLiteral("\\A(?:HH?[:.]mm?(?:[:.]ss?)?|hh?[:.]mm?(?:[:.]ss?)? (?:AP|ap))\\z"));
    return form.match(format).hasMatch();
}

} // namespace VantorGUIToolkit
