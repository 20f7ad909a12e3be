#include "framework/ui/pages/UsersPage.h"

#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

using namespace framework;

namespace {

struct UsersPageTest : testing::Test
{
    TestDataRoot root;
    CUsers users{root.Path() + "users.json", [] {}};
    CUsersPage page{users};

    void Press(const char* button) { page.findChild<QPushButton*>(button)->click(); }
    void Type(const char* edit, const char* text) { page.findChild<QLineEdit*>(edit)->setText(text); }
    void Check(const char* permission, bool checked)
    {
        page.findChild<QCheckBox*>(QString("may_") + permission)->setChecked(checked);
    }
    void Choose(const char* user)
    {
        auto* list = page.findChild<QListWidget*>("userList");
        list->setCurrentItem(list->findItems(user, Qt::MatchExactly).value(0));
    }
    /// The user; one without rights when there is none.
    User Find(const std::string& name)
    {
        for (const User& user : users.All())
            if (user.name == name)
                return user;
        return {};
    }
};

TEST_F(UsersPageTest, AddsAUserWithRightsAndPassword)
{
    Press("addUser");
    Type("userName", "night shift");
    Type("userPassword", "moon");
    Check(permission::kPlayback, true);
    Press("saveUser");
    EXPECT_EQ(Find("night shift").permissions, std::vector<std::string>{permission::kPlayback});
    EXPECT_TRUE(users.Login("night shift", "moon"));
}

TEST_F(UsersPageTest, DoesNotReplaceAUserWhoseNameIsTaken)
{
    Press("addUser");
    Type("userName", "guest");
    Press("saveUser");
    EXPECT_TRUE(page.findChild<QLineEdit*>("userName")->property("invalid").toBool());
    EXPECT_TRUE(Find("guest").May(permission::kLiveView));
}

TEST_F(UsersPageTest, KeepsThePasswordThatIsNotTypedAnew)
{
    ASSERT_TRUE(
        users.Put({"guest", {permission::kLiveView}}, std::string("door"), *std::make_unique<std::string>()));
    page.Reload();
    Choose("guest");
    Check(permission::kPlayback, true);
    Press("saveUser");
    EXPECT_TRUE(Find("guest").May(permission::kPlayback));
    EXPECT_TRUE(users.Login("guest", "door"));
}

TEST_F(UsersPageTest, TheLastManagerOfUsersStays)
{
    Choose("admin");
    Check(permission::kUsers, false);
    Press("saveUser");
    EXPECT_TRUE(Find("admin").May(permission::kUsers));
}

} // namespace
