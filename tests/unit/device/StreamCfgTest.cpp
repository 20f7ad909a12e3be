#include "ui/Public/RemoteConfigBusiness/StreamCfgBusiness.h"
#include "unit/device/OperationRows.h"

using namespace rows;
using Business = video::CStreamCfgBusiness;

namespace {

constexpr int kHolidayGet = 20140;
constexpr int kHolidaySet = 20141;

int GetHoliday(int login, int channel, tagNET_DVR_HOLIDAY_HANDLE* config)
{
    return Business::GetCameraHolidayParameters(login, channel, kHolidayGet, config);
}

int SetHoliday(int login, int channel, tagNET_DVR_HOLIDAY_HANDLE* config)
{
    return Business::SetCameraHolidayParameters(login, channel, kHolidaySet, config);
}

const std::vector<Operation> kOperations = {
    {"GetRecordParameters", kGet, 1004, 508, On<NET_DVR_RECORD_V30>(Business::GetRecordParameters)},
    {"SetRecordParameters", kSet, 1005, 508, On<NET_DVR_RECORD_V30>(Business::SetRecordParameters)},
    {"GetRecordParameters", kGet, 1008, 2620, On<NET_DVR_RECORD_V40>(Business::GetRecordParameters)},
    {"SetRecordParameters", kSet, 1009, 2620, On<NET_DVR_RECORD_V40>(Business::SetRecordParameters)},
    {"GetRecordHolidayParameters", kGet, 1252, 92, On(Business::GetRecordHolidayParameters)},
    {"SetRecordHolidayParameters", kSet, 1253, 92, On(Business::SetRecordHolidayParameters)},
    {"GetCameraHolidayParameters", kGet, kHolidayGet, 276, On(GetHoliday)},
    {"SetCameraHolidayParameters", kSet, kHolidaySet, 276, On(SetHoliday)},
    {"GetHolidayCalendar", kGet, 1240, 2340, On(Business::GetHolidayCalendar)},
    {"GetSnapshotCfgParameters", kGet, 1280, 1840, On(Business::GetSnapshotCfgParameters)},
    {"SetSnapshotCfgParameters", kSet, 1281, 1840, On(Business::SetSnapshotCfgParameters)},
    {"GetSnapshotSchedParameters", kGet, 1282, 596, On(Business::GetSnapshotSchedParameters)},
    {"SetSnapshotSchedParameters", kSet, 1283, 596, On(Business::SetSnapshotSchedParameters)},
    {"GetStorageQuota", kGet, 1278, 160, On(Business::GetStorageQuota)},
    {"GetStorageServerSwitch", kGet, 1290, 456, On(Business::GetStorageServerSwitch)},
    {"SetStorageServerSwitch", kSet, 1291, 456, On(Business::SetStorageServerSwitch)},
    {"GetCabacParameters", kGet, 6118, 36, On(Business::GetCabacParameters)},
    {"SetCabacPatameters", kSet, 6119, 36, On(Business::SetCabacPatameters)},
    {"GetMotionParameters", kGet, 6179, 77140, On(Business::GetMotionParameters)},
    {"GetVCADetection", kGet, 5052, 31876, On(Business::GetVCADetection)},
    {"SetVCADetection", kSet, 5051, 31876, On(Business::SetVCADetection)},
    {"GetPtzLockInfo", kGet, 3287, 128, On(Business::GetPtzLockInfo)},
    {"SetPtzLockInfo", kSet, 3288, 128, On(Business::SetPtzLockInfo)},
    {"GetAuxAlarmInfo", kGet, 3209, 15332, On(Business::GetAuxAlarmInfo)},
};

/// A setter that writes a structure back with only a part of it changed.
struct PartSetter
{
    std::string name;
    uint32_t getCommand;
    uint32_t setCommand;
    uint32_t size;        ///< of the structure
    std::size_t offset;   ///< of the part in it
    std::size_t partSize; ///< in bytes
    std::function<int(int login, int channel, const void* part)> call;
};

template<class Part>
auto Whole(int (*setter)(int, int, const Part*))
{
    return [setter](int login, int channel, const void* part) {
        return setter(login, channel, static_cast<const Part*>(part));
    };
}

template<class Part>
auto Element(int (*setter)(int, int, int, const Part*), int index)
{
    return [=](int login, int channel, const void* part) {
        return setter(login, channel, index, static_cast<const Part*>(part));
    };
}

PartSetter Motion(const char* name, std::size_t offset, std::size_t bytes, decltype(PartSetter::call) call)
{
    return {name, 6179, 6180, 77140, offset, bytes, std::move(call)};
}

PartSetter Aux(const char* name, std::size_t offset, std::size_t bytes, decltype(PartSetter::call) call)
{
    return {name, 3209, 3210, 15332, offset, bytes, std::move(call)};
}

using MotionCfg = NET_DVR_MOTION_V40;
using AuxCfg = tagNET_IPC_AUX_ALARMCFG;
using Pir = tagNET_IPC_PIR_ALARMCFG;
using PirEx = tagNET_IPC_PIR_ALARMCFG_EX;

// What a newer device keeps in reserved bytes stays when all that is known of motion is written.
const std::vector<PartSetter> kPartSetters = {
    Motion("motion", 0, offsetof(MotionCfg, reserved2), Whole(Business::SetMotionParameters)),
    Motion("handling", offsetof(MotionCfg, handling), 608, Whole(Business::SetMotionHandling)),
    Motion("holiday", offsetof(MotionCfg, holiday), 68, Whole(Business::SetMotionHoliday)),
    Motion("scene 9", offsetof(MotionCfg, scenes[9]), 7364, Element(Business::SetMotionScene, 9)),
    Aux("call for help", offsetof(AuxCfg, callHelp), 200, Whole(Business::SetCallHelpAlarm)),
    Aux("body heat", offsetof(AuxCfg, pir), 676, Whole<Pir>(Business::SetPirAlarmInfo)),
    Aux("body heat, all", offsetof(AuxCfg, pir), 748, Whole<PirEx>(Business::SetPirAlarmInfo)),
    Aux("wireless", offsetof(AuxCfg, wireless), 16 * 680, Whole(Business::SetWirelessAlarm)),
    Aux("sensor 0", offsetof(AuxCfg, wireless), 680, Element(Business::SetSingleWirelessAlarm, 0)),
    Aux("sensor 15", offsetof(AuxCfg, wireless[15]), 680, Element(Business::SetSingleWirelessAlarm, 15)),
};

void ExpectChangesOnlyItsPart(const PartSetter& row)
{
    FakeSdk sdk;
    FakeSdk::Bytes expected(row.size, 0x5a);
    sdk.Answer(row.getCommand, expected);
    const FakeSdk::Bytes part(row.partSize, 0x21);
    ASSERT_EQ(0, row.call(kLogin, kChannel, part.data()));
    ASSERT_EQ(2u, sdk.Calls().size());
    EXPECT_EQ(kGet, sdk.Calls()[0].function);
    EXPECT_EQ(row.getCommand, sdk.Calls()[0].command);
    const FakeSdk::Call written = sdk.Calls()[1];
    EXPECT_EQ(kSet, written.function);
    EXPECT_EQ(row.setCommand, written.command);
    EXPECT_EQ(kChannel, written.channel);
    std::copy(part.begin(), part.end(), expected.begin() + static_cast<std::ptrdiff_t>(row.offset));
    EXPECT_EQ(WithSizeField(expected, row.size), written.input);
}

void ExpectEndsWhereItFails(const PartSetter& row, const std::string& function, std::size_t calls)
{
    FakeSdk sdk;
    CapturedLog log;
    sdk.Fail(function, {QXNET_ERROR_BUSY, 17, 0});
    const FakeSdk::Bytes part(row.partSize);
    EXPECT_EQ(-1, row.call(kLogin, kChannel, part.data()));
    EXPECT_EQ(calls, sdk.Calls().size());
    ExpectOneErrorLine(log, function + " failed, [503]-[17].");
}

void ExpectRefusesArguments(const PartSetter& row)
{
    FakeSdk sdk;
    CapturedLog log;
    const FakeSdk::Bytes part(row.partSize);
    EXPECT_EQ(-1, row.call(-1, kChannel, part.data()));
    EXPECT_EQ(-1, row.call(kLogin, -1, part.data()));
    EXPECT_EQ(-1, row.call(kLogin, kChannel, nullptr));
    ExpectNothingDone(sdk, log);
}

} // namespace

TEST(StreamCfg, EveryOperationIsOneRequestWithItsCommandAndSize)
{
    ExpectUniform(kOperations);
}

TEST(StreamCfg, ASetterOfAPartWritesWhatItReadWithOnlyThatPartChanged)
{
    for (const PartSetter& row : kPartSetters) {
        SCOPED_TRACE(row.name);
        ExpectChangesOnlyItsPart(row);
        ExpectEndsWhereItFails(row, kGet, 1);
        ExpectEndsWhereItFails(row, kSet, 2);
        ExpectRefusesArguments(row);
    }
}

TEST(StreamCfg, AnIndexOutsideTheStructureAsksNothing)
{
    FakeSdk sdk;
    CapturedLog log;
    static const QxNetMotionScene scene{};
    const QxNetWirelessAlarm alarm{};
    EXPECT_EQ(-1, Business::SetSingleWirelessAlarm(kLogin, kChannel, -1, &alarm));
    EXPECT_EQ(-1, Business::SetSingleWirelessAlarm(kLogin, kChannel, 16, &alarm));
    EXPECT_EQ(-1, Business::SetMotionScene(kLogin, kChannel, 10, &scene));
    ExpectNothingDone(sdk, log);
}
