#include "DeviceStructures/Commands.h"
#include "DeviceStructures/Json.h"
#include "DeviceStructures/MemberPath.h"
#include "DeviceStructures/Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using devices::Layout;
using devices::Octets;
using testing::HasSubstr;

const Layout& Of(const char* parameter)
{
    return devices::FindParameter(parameter)->layout();
}

struct SetRow
{
    const char* parameter;
    const char* path;
    const char* value;
    const char* shown; ///< line of the text, its blanks as one; or what is wrong, after "!"
};

class SetMember : public testing::TestWithParam<SetRow>
{};

std::string SingleBlanks(const std::string& text)
{
    std::string single;
    for (char c : text)
        if (c != ' ' || single.empty() || single.back() != ' ')
            single += c;
    return single;
}

TEST_P(SetMember, ChangesWhatThePathNamesOrSaysWhatIsWrong)
{
    const SetRow& row = GetParam();
    const Octets fresh = devices::Defaults(Of(row.parameter));
    Octets bytes = fresh;
    const auto fault = devices::SetMember(Of(row.parameter), bytes, row.path, row.value);
    if (*row.shown == '!') {
        EXPECT_EQ(fault, row.shown + 1);
        EXPECT_EQ(bytes, fresh);
        return;
    }
    EXPECT_EQ(fault, std::nullopt);
    EXPECT_THAT("\n" + SingleBlanks(devices::ToText(Of(row.parameter), bytes.data())),
                HasSubstr("\n" + std::string(row.shown) + "\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SetMember,
    testing::Values(
        SetRow{"record-v40", "duration", "30", "duration 30 d"},
        SetRow{"record-v40", "duration", "3651", "!duration: 3651 is not within 0 to 3650"},
        SetRow{"record-v40", "duration", "3x", "!duration: \"3x\" is no value of it"},
        SetRow{"record-v40", "streamType", "main-and-sub", "streamType main-and-sub"},
        SetRow{"record-v40", "preRecordTime", "7", "preRecordTime unlimited"},
        SetRow{"record-v40", "week.days[0-4].allDay", "no", "week.days[5-6].allDay yes"},
        SetRow{"record-v40", "week.days[2].segments[1].endHour", "24",
               "week.days[2].segments[1].endHour 24 h"},
        SetRow{"record-v40", "week.days.type", "motion", "week.days[0-6].type motion"},
        SetRow{"record-v40", "week.days[7].type", "0", "!week.days[7].type: elements count from 0 to 6"},
        SetRow{"record-v40", "week.days[].type", "0", "!week.days[].type: no such member"},
        SetRow{"record-v40", "week", "1", "!week: is a structure; name a member of it"},
        SetRow{"record-v40", "audio.x", "1", "!audio.x: has no members"},
        SetRow{"record-v40", "size", "1", "!size: no such member"},
        SetRow{"storage-server-switch", "diskGroup", "-1", "diskGroup -1"},
        SetRow{"storage-server-switch", "name", "\xFF", "!name: the text is no UTF-8"},
        SetRow{"alarm-input", "handling.actions.outputs", "1-3,512", "handling.actions.outputs 1-3,512"},
        SetRow{"alarm-input", "handling.actions.outputs", "0",
               "!handling.actions.outputs: needs numbers from 1 to 512, such as 1-4,7, or none"},
        SetRow{"user-password", "password", "12345678", "!password: is secret and taken from a file only"}));

struct JsonRow
{
    const char* json;
    const char* fault;
};

class FromJson : public testing::TestWithParam<JsonRow>
{};

TEST_P(FromJson, RefusesWithTheMembersNameAndChangesNothing)
{
    const Octets fresh = devices::Defaults(Of("alarm-input"));
    Octets bytes = fresh;
    EXPECT_EQ(devices::FromJson(Of("alarm-input"), GetParam().json, bytes), GetParam().fault);
    EXPECT_EQ(bytes, fresh);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FromJson,
    testing::Values(JsonRow{"", "the text is no JSON"}, JsonRow{"[]", "the JSON is no object"},
                    JsonRow{R"({"enabled":1} {"enabled":0})", "something follows the JSON"},
                    JsonRow{R"({"enabled":1,"contact":2})", "contact: 2 is not within 0 to 1"},
                    JsonRow{R"({"enabled":0.5})", "enabled: is no whole number"},
                    JsonRow{R"({"enabled":1e300})", "enabled: is no whole number"},
                    JsonRow{R"({"enabeld":1})", "enabeld: no such member"},
                    JsonRow{R"({"reserved1":"0000"})", "reserved1: no such member"},
                    JsonRow{R"({"name":7})", "name: is no text"},
                    JsonRow{R"({"handling":{"armed":{"days":[{},{},{},{},{},{},{},{}]}}})",
                            "handling.armed.days: is no list of at most 7"},
                    JsonRow{R"({"handling":{"actions":{"outputs":[513]}}})",
                            "handling.actions.outputs: is no list of numbers from 1 to 512"}));

TEST(StructureJson, HidesSecretsButTakesThem)
{
    const Layout& layout = Of("user-password");
    Octets bytes = devices::Defaults(layout);
    ASSERT_EQ(devices::FromJson(layout, R"({"name":"eve","password":"correct horse"})", bytes), std::nullopt);
    EXPECT_EQ(devices::ReadText(*layout.Find("password"), &bytes[layout.Find("password")->offset]),
              "correct horse");
    EXPECT_EQ(devices::ToJson(layout, bytes.data()), R"({"name":"eve"})");
    EXPECT_EQ(devices::ToText(layout, bytes.data()), "name  eve\n");
}

} // namespace
