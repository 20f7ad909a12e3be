#include "VantorStyle/StylePlugin.h"

#include "VantorStyle/VantorStyle.h"

QStyle* StylePlugin::create(const QString& key)
{
    return key.compare(QLatin1String("CVantorStyle"), Qt::CaseInsensitive) == 0 ? new CVantorStyle : nullptr;
}
