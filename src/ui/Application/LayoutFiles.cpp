#include "ui/Application/LayoutFiles.h"

#include "Base/Log.h"
#include "VantorGUIToolkit/GenericDataSet.h"

#include <QFile>

namespace video {

namespace {

bool Loads(const QString& path)
{
    VantorGUIToolkit::CGenericDataSet layout;
    return layout.load(path);
}

void RepairCustomLayout(const QString& path)
{
    if (!QFile::exists(path) || Loads(path))
        return;
    QFile::remove(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        BASE_ERROR("Failed to open maintain/CustomWidgetLayout.xml for write.");
        return;
    }
    file.write("<Config/>");
}

// The failure's text names the other file; that is how it has always been searched for.
void RepairLayout(const QString& path, const QString& original)
{
    if (QFile::exists(path) && Loads(path))
        return;
    QFile::remove(path);
    if (!QFile::copy(original, path))
        BASE_ERROR("Failed to copy maintain/CustomWidgetLayout.xml.");
}

} // namespace

void CheckAndGenerateCustomWidgetLayoutConfig(const QString& dataDir, const QString& exeDir)
{
    RepairCustomLayout(dataDir + "CustomWidgetLayout.xml");
    RepairLayout(dataDir + "WidgetLayout.xml", exeDir + "WidgetLayout/WidgetLayout.xml");
}

} // namespace video
