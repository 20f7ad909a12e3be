#include "UiDataController/HighDPIMgr.h"
#include "support/QtLeaks.h"

#include <gtest/gtest.h>

#include <QApplication>

/// Widgets without a screen, as the product sets its application up.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    UiDataController::CHighDPIMgr::doHighDPI(argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
