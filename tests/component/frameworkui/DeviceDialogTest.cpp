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
        {"", "", "", {DeviceField::Name, DeviceField::Address, DeviceField::UserName}},
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
    TestDataRoot root;
    CResources resources{root.Path() + "resources.json",
                         Base::Encrypt::ParamsOf(Base::Encrypt::RandomKeyText(), "test").value(),
                         [](const ResourceChange&) {}};
};

TEST_F(DeviceDialogTest, AddsTheDeviceOnlyWhenTheFieldsAreRight)
{
    CDeviceDialog dialog(resources, {}, nullptr);
    auto* apply = dialog.findChild<QPushButton*>("apply");
    auto* name = dialog.findChild<QLineEdit*>("deviceName");
    apply->click();
    EXPECT_NE(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(name->property("invalid").toBool());
    EXPECT_THAT(resources.Devices(), IsEmpty());

    name->setText("Gate");
    EXPECT_FALSE(name->property("invalid").toBool());
    dialog.findChild<QLineEdit*>("deviceAddress")->setText("192.0.2.10");
    dialog.findChild<QLineEdit*>("deviceUser")->setText("admin");
    dialog.findChild<QLineEdit*>("devicePassword")->setText("secret");
    apply->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    ASSERT_EQ(resources.Devices().size(), 1u);
    EXPECT_EQ(resources.Devices()[0].password, "secret");
    EXPECT_EQ(resources.Devices()[0].guid, dialog.Guid().toStdString());
}

TEST_F(DeviceDialogTest, ARefusalOfTheListIsShownAndNothingChanges)
{
    std::string error;
    const std::string first = resources.Add(GoodEntry(), error);
    DeviceEntry other = GoodEntry();
    other.name = "Yard";
    other.address = "192.0.2.11";
    const std::string second = resources.Add(other, error);
    CDeviceDialog dialog(resources, QString::fromStdString(second), nullptr);
    dialog.findChild<QLineEdit*>("deviceAddress")->setText("192.0.2.10");
    dialog.findChild<QPushButton*>("apply")->click();
    EXPECT_NE(dialog.result(), QDialog::Accepted);
    DeviceEntry kept;
    ASSERT_TRUE(resources.EntryOf(second, kept));
    EXPECT_EQ(kept.address, "192.0.2.11");
}

} // namespace
