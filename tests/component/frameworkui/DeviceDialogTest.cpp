#include "framework/ui/pages/DeviceDialog.h"

#include "support/TestDataRoot.h"

#include <gmock/gmock.h>

#include <QLineEdit>
#include <QPushButton>

using namespace framework;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

DeviceEntry GoodEntry()
{
    DeviceEntry entry;
    entry.name = "Gate";
    entry.address = "192.0.2.10";
    entry.userName = "admin";
    return entry;
}

TEST(DeviceForm, SaysWhichFieldsCannotBeTaken)
{
    const std::tuple<std::string, const char*, const char*, std::vector<DeviceField>> rows[] = {
        {"Gate", "192.0.2.10", "admin", {}},
        {"Gate", "camera-3.site.example", "admin", {}},
        {"Gate", "2001:db8::7", "admin", {}},
        {"", "", "", {DeviceField::Address, DeviceField::UserName}},
        {"Taken", "192.0.2.10", "admin", {DeviceField::Name}},
        {std::string(65, 'x'), "192.0.2.10", "admin", {DeviceField::Name}},
        {"Gate", "192.0.2.300", "admin", {DeviceField::Address}},
        {"Gate", "192.0.2", "admin", {DeviceField::Address}},
        {"Gate", "a b", "admin", {DeviceField::Address}},
        {"Gate", "-gate", "admin", {DeviceField::Address}},
    };
    for (const auto& [name, address, user, fields] : rows) {
        SCOPED_TRACE(name + " at " + address);
        DeviceEntry entry = GoodEntry();
        entry.name = name;
        entry.address = address;
        entry.userName = user;
        std::vector<DeviceField> wrong;
        for (const auto& error : CheckDevice(entry, {"Taken"}))
            wrong.push_back(error.first);
        EXPECT_EQ(wrong, fields);
    }
}

struct DeviceDialogTest : testing::Test
{
    DeviceDialogTest() { answer.info.name[0] = 'X'; }

    std::unique_ptr<CDeviceDialog> Open(const std::string& guid = {})
    {
        const auto test = [this](const DeviceEntry& entry, CDeviceLinks::OnTried onTried) {
            tested.push_back(entry);
            if (isAnswering)
                onTried(answer);
            else
                waiting = std::move(onTried);
        };
        return std::make_unique<CDeviceDialog>(resources, test, QString::fromStdString(guid), nullptr);
    }

    static void Enter(CDeviceDialog& dialog, const char* address)
    {
        dialog.findChild<QLineEdit*>("deviceAddress")->setText(address);
        dialog.findChild<QLineEdit*>("deviceUser")->setText("admin");
        dialog.findChild<QLineEdit*>("devicePassword")->setText("secret");
    }

    static void Press(CDeviceDialog& dialog, const char* button)
    {
        dialog.findChild<QPushButton*>(button)->click();
    }

    bool isAnswering = true;
    devices::TriedDevice answer;
    CDeviceLinks::OnTried waiting;
    std::vector<DeviceEntry> tested;
    TestDataRoot root;
    CResources resources{root.Path() + "resources.json",
                         Base::Encrypt::ParamsOf(Base::Encrypt::RandomKeyText(), "test").value(),
                         [](const ResourceChange&) {}};
};

TEST_F(DeviceDialogTest, AddsADeviceThatIsReachedUnderANameOfItsOwn)
{
    for (const char* address : {"192.0.2.10", "192.0.2.11"}) {
        const auto dialog = Open();
        Press(*dialog, "apply");
        EXPECT_NE(dialog->result(), QDialog::Accepted);
        EXPECT_TRUE(dialog->findChild<QLineEdit*>("deviceAddress")->property("invalid").toBool());
        Enter(*dialog, address);
        EXPECT_FALSE(dialog->findChild<QLineEdit*>("deviceAddress")->property("invalid").toBool());
        Press(*dialog, "apply");
        EXPECT_EQ(dialog->result(), QDialog::Accepted);
        EXPECT_EQ(resources.Devices().back().guid, dialog->Guid().toStdString());
    }
    ASSERT_EQ(resources.Devices().size(), 2u);
    EXPECT_EQ(resources.Devices()[0].password, "secret");
    EXPECT_EQ(resources.Devices()[0].name, "X");
    EXPECT_EQ(resources.Devices()[1].name, "X 2");
}

TEST_F(DeviceDialogTest, TakesADeviceOutOfReachWhenToldToAndNoneThatRefuses)
{
    const std::pair<std::uint32_t, bool> rows[] = {{QXNET_ERROR_PASSWORD, false},
                                                   {QXNET_ERROR_VERSION, false},
                                                   {QXNET_ERROR_CERTIFICATE_CHANGED, false},
                                                   {QXNET_ERROR_UNREACHABLE, true}};
    const auto dialog = Open();
    Enter(*dialog, "192.0.2.10");
    for (const auto& [error, mayAnyway] : rows) {
        answer.error = error;
        Press(*dialog, "apply");
        EXPECT_TRUE(dialog->findChild<QWidget*>("deviceRefusal")->isVisibleTo(dialog.get())) << error;
        EXPECT_EQ(dialog->findChild<QWidget*>("anyway")->isVisibleTo(dialog.get()), mayAnyway) << error;
        EXPECT_THAT(resources.Devices(), IsEmpty());
    }
    Press(*dialog, "anyway");
    ASSERT_EQ(resources.Devices().size(), 1u);
    EXPECT_EQ(resources.Devices()[0].name, "192.0.2.10");
}

TEST_F(DeviceDialogTest, StopsWaitingWhenItIsCancelledAndHearsNoLateAnswer)
{
    isAnswering = false;
    auto dialog = Open();
    Enter(*dialog, "192.0.2.10");
    Press(*dialog, "apply");
    const auto* wait = dialog->findChild<QWidget*>("deviceWaiting");
    EXPECT_TRUE(wait->isVisibleTo(dialog.get()));
    Press(*dialog, "cancel");
    EXPECT_FALSE(wait->isVisibleTo(dialog.get()));
    waiting(answer);
    Press(*dialog, "apply");
    dialog.reset();
    waiting(answer);
    EXPECT_THAT(resources.Devices(), IsEmpty());
}

TEST_F(DeviceDialogTest, ARefusalOfTheListIsShownAndNothingChanges)
{
    std::string error;
    const std::string first = resources.Add(GoodEntry(), error);
    DeviceEntry other = GoodEntry();
    other.name = "Yard";
    other.address = "192.0.2.11";
    const std::string second = resources.Add(other, error);
    const auto renamed = Open(second);
    renamed->findChild<QLineEdit*>("deviceName")->setText("Garden");
    Press(*renamed, "apply");
    EXPECT_THAT(tested, IsEmpty());
    const auto dialog = Open(second);
    dialog->findChild<QLineEdit*>("deviceAddress")->setText("192.0.2.10");
    Press(*dialog, "apply");
    EXPECT_NE(dialog->result(), QDialog::Accepted);
    DeviceEntry kept;
    ASSERT_TRUE(resources.EntryOf(second, kept));
    EXPECT_EQ(kept.address, "192.0.2.11");
    EXPECT_EQ(kept.name, "Garden");
}

} // namespace
