#include "PlainClient.h"
#include "support/DeviceSim.h"

#include <gtest/gtest.h>

namespace {

TEST(DeviceSimAbility, AnswersWithADocumentOrTellsWhatIsMissing)
{
    DeviceSim sim({"--devices", "1", "--channels", "2", "--first-kind", "recorder"});
    PlainClient client(sim.Port());
    ASSERT_EQ(client.Login().status, 200);
    const struct
    {
        const char* path;
        int status;
        const char* error;
        const char* holds;
    } rows[] = {
        {"ability/2?channel=0", 200, "", "<alarmInputs>16</alarmInputs>"},
        {"ability/3?channel=2", 200, "", "<option>7-0xffffffff</option>"},
        {"ability/3?channel=0", 404, "500", ""},
        {"ability/6?channel=1", 404, "500", ""},
        {"ability/3?channel=3", 404, "501", ""},
        {"ability/3", 400, "502", ""},
    };
    for (const auto& row : rows) {
        const auto answer = client.Ask("GET", row.path);
        EXPECT_EQ(answer.status, row.status) << row.path;
        EXPECT_EQ(answer.Header("Vantor-Error"), row.error) << row.path;
        EXPECT_NE(answer.body.find(row.holds), std::string::npos) << answer.body;
    }
}

} // namespace
