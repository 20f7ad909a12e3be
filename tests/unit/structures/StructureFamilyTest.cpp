#include "DeviceStructures/Commands.h"
#include "DeviceStructures/Json.h"
#include "DeviceStructures/Markdown.h"

#include "Base/FileUtil.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace {

using devices::Field;
using devices::Kind;
using devices::Layout;
using devices::Octets;

/// Every structure that travels or stands within one.
class Structure : public testing::TestWithParam<const Layout*>
{};

TEST_P(Structure, IsCoveredByItsFieldsWithoutGapOrOverlap)
{
    std::uint32_t end = 0;
    for (const Field& field : *GetParam()) {
        EXPECT_EQ(field.offset, end) << field.name;
        if (field.nested) {
            EXPECT_EQ(field.size, field.nested().size) << field.name;
        }
        end = field.offset + field.Bytes();
    }
    EXPECT_EQ(end, GetParam()->size);
}

TEST_P(Structure, OfAFreshDeviceIsWithinItsRangesAndPassesThroughJson)
{
    const Octets fresh = devices::Defaults(*GetParam());
    EXPECT_EQ(devices::Check(*GetParam(), fresh.data(), fresh.size()), std::nullopt);

    // Every shown member gets another value than it has in the structure that JSON is read into.
    Octets changed = fresh;
    for (const Field& field : *GetParam())
        if (devices::IsNumber(field))
            for (std::uint32_t i = 0; i < field.count; ++i)
                devices::WriteNumber(field, &changed[field.offset + i * field.size],
                                     field.initial == field.max ? field.min : field.max);
        else if (field.kind == Kind::Text && !field.secret)
            ASSERT_TRUE(devices::WriteText(field, &changed[field.offset], "T\xC3\xBCr \"1\""));
        else if (field.kind == Kind::Numbers)
            ASSERT_TRUE(devices::WriteNumbers(field, &changed[field.offset], {1, 9, 512}));
        else if (field.kind == Kind::Octets)
            changed[field.offset + field.size - 1] = static_cast<std::uint8_t>(field.max);
    Octets read = fresh;
    EXPECT_EQ(devices::FromJson(*GetParam(), devices::ToJson(*GetParam(), changed.data()), read),
              std::nullopt);
    EXPECT_EQ(read, changed);
}

TEST_P(Structure, WithAValueOutOfRangeIsRefusedByTheMembersName)
{
    for (const Field& field : *GetParam()) {
        Octets bytes = devices::Defaults(*GetParam());
        std::uint8_t* last = &bytes[field.offset + field.Bytes() - field.size];
        if (field.kind == Kind::Size)
            devices::WriteNumber(field, last, 1);
        else if (field.kind == Kind::Text)
            std::fill_n(last, field.size, 'x');
        else if (devices::IsNumber(field) && field.max < (std::int64_t{1} << (8 * field.size)) - 1)
            devices::WriteNumber(field, last, field.max + 1);
        else
            continue;
        EXPECT_THAT(devices::Check(*GetParam(), bytes.data(), bytes.size()).value_or(""),
                    testing::StartsWith(field.name));
    }
}

INSTANTIATE_TEST_SUITE_P(All, Structure, testing::ValuesIn(devices::AllLayouts()),
                         [](const auto& info) { return std::string(info.param->name); });

TEST(ConfigCommands, HaveEachNameAndNumberOnce)
{
    std::set<std::string> names;
    std::set<std::uint32_t> numbers;
    for (const auto& command : devices::ConfigCommands()) {
        EXPECT_TRUE(names.insert(command.parameter).second) << command.parameter;
        EXPECT_TRUE(command.get || command.set) << command.parameter;
        for (std::uint32_t number : {command.get, command.set})
            if (number) {
                EXPECT_TRUE(numbers.insert(number).second) << number;
                EXPECT_EQ(devices::FindCommand(number), devices::FindParameter(command.parameter));
            }
    }
    EXPECT_EQ(devices::FindCommand(0), nullptr);
}

TEST(StructuresPage, IsWhatTheListsGive)
{
    std::string page;
    ASSERT_TRUE(Base::FileUtil::ReadFile(STRUCTURES_PAGE, page));
    const auto tables = page.find("## Parameters\n");
    ASSERT_NE(tables, std::string::npos);
    EXPECT_EQ(page.substr(tables), devices::StructureTables()) << "vantor-device --structures prints it";
}

TEST(StructureCheck, FindsFaultsDeepInside)
{
    const Layout& motion = devices::FindParameter("motion")->layout();
    const Octets fresh = devices::Defaults(motion);
    EXPECT_NE(devices::Check(motion, fresh.data(), fresh.size() - 1), std::nullopt);

    Octets bytes = fresh;
    bytes[8 + 3 * 68 + 4 + 2 * 8 + 1] = 60; // the minute at which Thursday's third segment starts
    EXPECT_EQ(devices::Check(motion, bytes.data(), bytes.size()),
              "handling.armed.days[3].segments[2].startMinute: 60 is not within 0 to 59");
    bytes = fresh;
    const Field* scenes = motion.Find("scenes");
    bytes[scenes->offset + 9 * scenes->size + scenes->nested().Find("name")->offset] = 0xC0;
    EXPECT_EQ(devices::Check(motion, bytes.data(), bytes.size()), "scenes[9].name: the text is no UTF-8");
}

} // namespace
