#include "UiDataController/HighDPIMgr.h"

#include "Base/Log.h"

#include <QGuiApplication>

namespace UiDataController {

bool CHighDPIMgr::doHighDPI(int /*argc*/, char** /*argv*/)
{
    if (QCoreApplication::instance()) {
        BASE_ERROR("The high-DPI policy comes after the application object and has no effect.");
        return false;
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    return true;
}

} // namespace UiDataController
