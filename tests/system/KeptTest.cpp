#include "lpc/json/Json.h"
#include "system/ComponentRun.h"
#include "system/HostedComponent.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* kSettings = "/vantor/v1/internal/video/systemConfigs";
constexpr const char* kChanged = "videoParamChanged";

struct SetRow
{
    const char* body;
    int announced;
};

TEST(TheComponent, AnnouncesASettingOnceAndKeepsItWhenItIsKilled)
{
    const SetRow rows[] = {
        {R"({"systemConfigs":{"VideoFileFormat":1,"PlayPerformance":15,"EnableToolBar":false}})", 1},
        {R"({"systemConfigs":{"VideoFileFormat":1,"PlayPerformance":15,"EnableToolBar":false}})", 0},
        {R"({"systemConfigs":{"videoSaveFolder":"/srv/It's \"kept\" 🎥"}})", 1},
        {R"({"systemConfigs":{"EnableTransactionInfor":true}})", 0},
        {R"({"systemConfigs":{"StreamOffset":30,"NoSuchSetting":1}})", 0},
        {R"({"systemConfigs":{"StreamOffset":601}})", 0},
        {R"({"systemConfigs":{}})", 0},
        {R"({"systemConfigs":{"PlayPerformance":6}})", 1},
    };
    const ComponentRun run;
    std::string kept;
    {
        HostedComponent component(run.Program(), run.Path() + "output");
        for (const SetRow& row : rows) {
            EXPECT_NE(component.Ask(kSettings, row.body, "PUT"), "") << row.body;
            EXPECT_EQ(component.TakeNotifications(kChanged), row.announced) << row.body;
        }
        kept = component.Ask(kSettings, "", "GET");
        component.Kill();
    }
    const lpctool::JsonValue settings = lpctool::ParseJson(kept);
    const cJSON* const values = lpctool::Member(settings.get(), "systemConfigs");
    EXPECT_EQ(lpctool::TextMember(values, "videoSaveFolder"), "/srv/It's \"kept\" 🎥");
    EXPECT_TRUE(cJSON_IsTrue(lpctool::Member(values, "EnableTransactionInfor")));
    HostedComponent component(run.Program(), run.Path() + "output");
    EXPECT_EQ(component.Ask(kSettings, "", "GET"), kept);
    EXPECT_EQ(component.TakeNotifications(kChanged), 0);
    EXPECT_EQ(component.End(), 0);
}

} // namespace
