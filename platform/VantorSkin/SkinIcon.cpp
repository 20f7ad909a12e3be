#include "VantorSkin/SkinIcon.h"

#include <QFile>

namespace VantorGUIToolkit {

namespace {

QString FileOf(const QString& name)
{
    return ":/VantorGUIToolKit/Icons/" + name + ".svg";
}

} // namespace

QIcon skinIcon(const QString& name, const QString& suffix)
{
    const QString normal = FileOf(name + suffix);
    if (!QFile::exists(normal))
        return {};
    QIcon icon(normal);
    const std::pair<const char*, QIcon::Mode> variants[] = {{"-disabled", QIcon::Disabled},
                                                            {"-selected", QIcon::Selected}};
    for (const auto& [variant, mode] : variants)
        if (const QString path = FileOf(name + variant); QFile::exists(path))
            icon.addFile(path, {}, mode);
    return icon;
}

} // namespace VantorGUIToolkit
