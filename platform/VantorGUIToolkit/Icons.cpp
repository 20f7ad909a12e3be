#include "VantorGUIToolkit/Icons.h"

#include "Base/Log.h"
#include "VantorSkin/SkinIcon.h"

#include <QSet>

namespace VantorGUIToolkit {

namespace {

void WarnOnce(const QString& name)
{
    static QSet<QString> warned;
    if (warned.contains(name))
        return;
    warned.insert(name);
    BASE_WARN("The skin has no icon [%s].", name.toUtf8().constData());
}

QIcon IconOf(const QString& name, const QString& suffix)
{
    const QIcon icon = skinIcon(name, suffix);
    if (icon.isNull())
        WarnOnce(name);
    return icon;
}

} // namespace

QIcon icon(const QString& name)
{
    return IconOf(name, {});
}

QIcon iconOnAccent(const QString& name)
{
    return IconOf(name, QStringLiteral("-on-accent"));
}

QIcon fadedIcon(const QString& name)
{
    return IconOf(name, QStringLiteral("-disabled"));
}

} // namespace VantorGUIToolkit
