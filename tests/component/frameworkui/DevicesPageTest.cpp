#include "framework/ui/pages/DevicesPage.h"

#include "UiDataController/Tree/ResourceTree.h"
#include "framework/ui/parts/EventRelay.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTimer>

using namespace framework;

namespace {

struct DevicesPageTest : testing::Test
{
    /// Enters a device in the dialog that is open, and presses "Add".
    static void Enter()
    {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->focusWidget(), dialog->findChild<QWidget*>("deviceAddress"));
        dialog->findChild<QLineEdit*>("deviceAddress")->setText("192.0.2.10");
        dialog->findChild<QLineEdit*>("deviceUser")->setText("admin");
        QMetaObject::invokeMethod(dialog->findChild<QWidget*>("apply"), "click");
    }

    devices::TriedDevice answer;
    TestDataRoot root;
    CResources resources{root.Path() + "resources.json",
                         Base::Encrypt::ParamsOf(Base::Encrypt::RandomKeyText(), "test").value(),
                         [](const ResourceChange&) {}};
    CDeviceLinks links{resources, root.Path() + "certificates", [] {}};
    CDevicesPage page{resources, links,
                      [this](const DeviceEntry&, const CDeviceLinks::OnTried& onTried) { onTried(answer); },
                      [](const std::string&, const std::string&) {}};
};

TEST_F(DevicesPageTest, ChoosesADeviceThatWasAdded)
{
    QTimer::singleShot(0, [] { Enter(); });
    page.AddDevice();
    QApplication::processEvents();
    ASSERT_EQ(resources.Devices().size(), 1u);
    EXPECT_EQ(page.findChild<UiDataController::CResourceTree*>()->CurElement().toStdString(),
              resources.Devices()[0].guid);
}

TEST(EventRelay, TellsAFloodOfChangesOnceAndTheNextOneAgain)
{
    CEventRelay relay;
    int told = 0;
    QObject::connect(&relay, &CEventRelay::ResourcesChanged, [&] { ++told; });
    for (int flood = 1; flood <= 2; ++flood) {
        for (int change = 0; change < 1000; ++change)
            relay.OnResourcesChanged();
        QElapsedTimer waited;
        waited.start();
        while (told < flood && waited.elapsed() < 5000)
            QApplication::processEvents(QEventLoop::AllEvents, 100);
        EXPECT_EQ(told, flood);
    }
}

} // namespace
