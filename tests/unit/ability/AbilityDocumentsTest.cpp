#include "CapabilitySet/Documents/Abilities.h"
#include "CapabilitySet/Documents/Parse.h"
#include "simulator/abilities/AbilityWriter.h"
#include "support/FileContent.h"

#include <gtest/gtest.h>

using namespace CapabilitySet;
using simulator::abilities::WriteAbility;

namespace {

/// The block of docs/device-abilities.md that holds the element.
std::string Sample(const std::string& root)
{
    const std::string page = FileContent(ABILITIES_PAGE);
    const std::size_t element = page.find("\n<" + root);
    const std::size_t begin = page.rfind("```xml\n", element) + 7;
    return page.substr(begin, page.find("```", element) - begin);
}

/// What the sample of the page says, as a document of ours; the problem when it is refused.
template<typename Ability>
std::string ReadSample()
{
    Ability ability;
    std::string problem;
    return ParseAbility(Sample(Ability::kRoot), ability, problem) ? WriteAbility(ability) : problem;
}

TEST(AbilityDocuments, TheSamplesOfThePageSayWhatTheyLookLike)
{
    ChannelInput input;
    input.streams = {{0,
                      {{0, "H.264"}, {2, "H.265"}},
                      {{7, "1920x1080"}, {2, "4CIF"}},
                      {{0, "1/4"}, {11, "25"}},
                      Range{32, 16384}},
                     {1, {}, {{0, "CIF"}}, {}, std::nullopt}};
    input.virtualStream = true;
    input.audio = true;
    input.privacyMasks = 4;
    EXPECT_EQ(ReadSample<ChannelInput>(), WriteAbility(input));

    BasicFeatures basic;
    basic.extendedRecord = basic.scheduledCapture = basic.cabac = basic.storageServer = true;
    basic.holidays = basic.users = 32;
    basic.alarmInputs = 16;
    basic.alarmOutputs = 4;
    basic.voiceChannels = 1;
    basic.disks = 8;
    EXPECT_EQ(ReadSample<BasicFeatures>(), WriteAbility(basic));

    RecordOptions record;
    record.recordTypes = {{0, "continuous"}, {2, "motion"}};
    record.preRecordTime = {{0, "disable"}, {1, "5s"}, {7, "0xffffffff"}, {6, "30s"}};
    record.postRecordTime = {{0, "5s"}, {3, "1min"}};
    record.streamType = {{0, "mainstream"}, {2, "main_and_sub"}};
    record.expiryDays = Range{0, 3650};
    record.redundantRecord = record.holidayRecord = true;
    record.segmentsPerDay = 8;
    EXPECT_EQ(ReadSample<RecordOptions>(), WriteAbility(record));

    CaptureOptions capture;
    capture.captureTypes = {{0, "continuous"}, {3, "alarm_input"}};
    capture.continuous = {
        {{2, "4CIF"}, {1, "QCIF"}}, {{0, "best"}, {2, "normal"}}, Range{1, 604800}, std::nullopt};
    capture.event = {{{2, "4CIF"}}, {}, Range{1, 65535}, Range{1, 120}};
    capture.segmentsPerDay = 4;
    EXPECT_EQ(ReadSample<CaptureOptions>(), WriteAbility(capture));

    DetectionOptions detections;
    detections.rules = {{{1, "enter"}, {8, "cross"}}, Range{1, 100}, Range{0, 3600}, 40, 10, {}, true, {}};
    detections.motion = {{}, Range{0, 100}, std::nullopt, 24, 0, {}, false, {{0, "notify"}, {3, "record"}}};
    detections.lineCrossing = {{}, Range{1, 100}, std::nullopt, 8, 2, {{0, "both"}, {1, "to_right"}}, false,
                               {}};
    EXPECT_EQ(ReadSample<DetectionOptions>(), WriteAbility(detections));
}

/// Puts the greatest value allowed, or one more, into a member.
void Fill(bool& value, std::uint32_t, bool)
{
    value = true;
}
void Fill(std::uint32_t& value, std::uint32_t greatest, bool beyond)
{
    value = greatest - 1 + 2 * beyond;
}
void Fill(std::optional<Range>& range, std::uint32_t greatest, bool beyond)
{
    range = Range{1, greatest + beyond};
}
void Fill(Options& options, std::uint32_t greatest, bool beyond)
{
    options = {{greatest + beyond, "a-<&>"}, {0, "\xC3\xA4"}};
}
template<typename T>
void Fill(std::optional<T>& group, std::uint32_t, bool)
{
    ForEachField<T>([&](const auto& field) {
        Fill(group ? *group.*field.member : group.emplace().*field.member, field.greatest, false);
    });
}
template<typename T, std::enable_if_t<HasFields<T>::value, int> = 0>
void Fill(std::vector<T>& list, std::uint32_t greatest, bool beyond)
{
    list.resize(greatest + beyond);
}

template<typename Field, typename Ability>
bool HasLimit(const Field& field, const Ability& ability)
{
    using Member = std::decay_t<decltype(ability.*field.member)>;
    return !std::is_same_v<Member, bool> && field.greatest < std::numeric_limits<std::uint32_t>::max();
}

template<typename Ability>
class EveryAbility : public testing::Test
{};
template<typename... Ability>
testing::Types<Ability...> TypesOf(std::variant<Ability...>);
TYPED_TEST_SUITE(EveryAbility, decltype(TypesOf(AnyAbility())));

TYPED_TEST(EveryAbility, ReadsEachFieldUpToItsLimitAndIsUnchangedByOneBeyond)
{
    std::string problem;
    ForEachField<TypeParam>([&](const auto& field) {
        TypeParam filled;
        Fill(filled.*field.member, field.greatest, false);
        TypeParam read;
        ASSERT_FALSE(filled == read) << field.name;
        EXPECT_TRUE(ParseAbility(WriteAbility(filled), read, problem)) << problem;
        EXPECT_EQ(WriteAbility(read), WriteAbility(filled));
        if (!HasLimit(field, filled))
            return;
        TypeParam beyond;
        Fill(beyond.*field.member, field.greatest, true);
        EXPECT_FALSE(ParseAbility(WriteAbility(beyond), read, problem)) << field.name;
        EXPECT_NE(problem.find(field.name), std::string::npos) << problem;
        EXPECT_EQ(WriteAbility(read), WriteAbility(filled));
    });
}

std::string Record(const std::string& inside)
{
    return "<recordAbility version=\"1\">" + inside + "</recordAbility>";
}

std::string Repeated(const std::string& text, std::size_t count)
{
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
        all += text;
    return all;
}

std::string ManyOptions(int count)
{
    std::string options;
    for (int i = 0; i < count; ++i)
        options += "<option>" + std::to_string(i) + "-x</option>";
    return Record("<preRecordTime>" + options + "</preRecordTime>");
}

std::string OneOption(const std::string& text)
{
    return Record("<preRecordTime><option>" + text + "</option></preRecordTime>");
}

std::string ProblemOf(const std::string& document)
{
    RecordOptions record;
    std::string problem;
    return ParseAbility(document, record, problem) ? "" : problem;
}

TEST(AbilityDocuments, WhatIsJustWithinTheLimitsIsRead)
{
    const std::string good[] = {
        Record(""),
        Record("<other><option>x</option></other><!-- -->"),
        Record(" <expiryDays\nmin='5' max='5' unit='d'/> "),
        Record(Repeated("<a>", 15) + Repeated("</a>", 15)),
        Record(Repeated("<a/>", 19'999)),
        Record("<a>" + std::string(4093, 'x') + "</a>"),
        ManyOptions(256),
        OneOption(" \n1-" + std::string(62, 'x') + "\t"),
        OneOption("4294967295-&lt;&#x41;--"),
        "<?xml version='1.0' encoding='ISO-8859-1'?>" + OneOption("1-" + Repeated("\xC3\xA4", 31)),
    };
    for (const std::string& document : good)
        EXPECT_EQ(ProblemOf(document), "") << document.substr(0, 200);
}

TEST(AbilityDocuments, WhatIsNotOfTheFormIsRefusedWithItsReason)
{
    const struct
    {
        std::string document;
        const char* reason;
    } rows[] = {
        {"", "empty"},
        {"<recordAbility version='1'>", "line 1"},
        {Record("") + "<a/>", "line 1"},
        {Record("<a>\xFF</a>"), "line 1"},
        {Record(std::string("<a>") + '\0' + "</a>"), "zero byte"},
        {Record("") + '\0', "zero byte"},
        {Record("&other;"), "line 1"},
        {Record("<a b='1' b='2'/>"), "line 1"},
        {"<!DOCTYPE recordAbility>" + Record(""), "document type"},
        {"<!DOCTYPE a [<!ENTITY b SYSTEM 'file:///etc/hostname'>]>" + Record("&b;"), "document type"},
        {Record(Repeated("<a>", 16) + Repeated("</a>", 16)), "deeper than 16"},
        {Record(Repeated("<a/>", 20'000)), "more than 20000"},
        {Record("<a>" + std::string(4094, 'x') + "</a>"), "4096"},
        {Record(Repeated("<a>" + std::string(4000, ' ') + "</a>", 270)), "1048576"},
        {"<basicAbility version='1'/>", "another"},
        {"<recordAbility/>", "version"},
        {"<recordAbility version='2'/>", "version"},
        {Record("<recordAudio>yes</recordAudio>"), "/recordAudio: neither"},
        {Record("<recordAudio/>"), "neither"},
        {Record("<recordAudio>true</recordAudio><recordAudio>true</recordAudio>"),
         "recordAudio is there twice"},
        {Record("<segmentsPerDay>-1</segmentsPerDay>"), "/segmentsPerDay: not a decimal"},
        {Record("<segmentsPerDay>99999999999</segmentsPerDay>"), "above 8"},
        {Record("<expiryDays min='2' max='1'/>"), "min is above max"},
        {Record("<expiryDays min='2'/>"), "max is missing"},
        {Record("<expiryDays min='0x1' max='9'/>"), "not a decimal"},
        {ManyOptions(257), "more than 256"},
        {Record("<streamType><option>1-a</option><option>1-b</option></streamType>"),
         "/streamType/option: index 1 is there twice"},
        {OneOption(""), "index-text"},
        {OneOption("5s"), "index-text"},
        {OneOption("1-"), "index-text"},
        {OneOption("1-a&#10;b"), "index-text"},
        {OneOption("-5s"), "not a decimal"},
        {OneOption("4294967296-x"), "above"},
        {OneOption("1-" + std::string(63, 'x')), "longer than 64"},
    };
    for (const auto& row : rows)
        EXPECT_NE(ProblemOf(row.document).find(row.reason), std::string::npos)
            << row.document.substr(0, 200) << "\n"
            << ProblemOf(row.document);
}

} // namespace
