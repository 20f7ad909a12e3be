#include "VantorGUIToolkit/Icons.h"

#include "Base/Log.h"

#include <QFile>
#include <QSet>

namespace VantorGUIToolkit {

namespace {

QString PathOf(const QString& name)
{
    return ":/VantorGUIToolKit/Icons/" + name + ".svg";
}

void WarnOnce(const QString& name)
{
    static QSet<QString> warned;
    if (warned.contains(name))
        return;
    warned.insert(name);
    BASE_WARN("The skin has no icon [%s].", name.toUtf8().constData());
}

/// The picture of a suffix for the normal state; the others are the same for all.
QIcon IconOf(const QString& name, const QString& suffix)
{
    if (!QFile::exists(PathOf(name + suffix))) {
        WarnOnce(name);
        return {};
    }
    QIcon icon(PathOf(name + suffix));
    const std::pair<const char*, QIcon::Mode> variants[] = {{"-disabled", QIcon::Disabled},
                                                            {"-selected", QIcon::Selected}};
    for (const auto& [suffix, mode] : variants)
        if (const QString path = PathOf(name + suffix); QFile::exists(path))
            icon.addFile(path, {}, mode);
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

} // namespace VantorGUIToolkit
