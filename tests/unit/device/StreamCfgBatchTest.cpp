#include "ui/Public/RemoteConfigBusiness/StreamCfgBusiness.h"
#include "unit/device/OperationRows.h"

#include <new>

using namespace rows;
using Business = video::CStreamCfgBusiness;

namespace {
bool g_noMemory = false;
} // namespace

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return g_noMemory ? nullptr : ::operator new[](size);
}

namespace {

constexpr uint32_t kGroupSize = 76;

struct Batch
{
    std::string parameter; ///< of the lines of failed items
    uint32_t command;
    uint32_t size; ///< of an item
    std::function<int(int login, tagNET_DVR_CHANNEL_GROUP* groups, void* items, int count)> call;

    bool Reads() const { return parameter[0] == 'G'; }
};

template<class Structure>
Batch Row(const char* parameter, uint32_t command,
          int (*operation)(int, tagNET_DVR_CHANNEL_GROUP*, Structure*, int),
          uint32_t size = sizeof(Structure))
{
    return {parameter, command, size,
            [operation](int login, tagNET_DVR_CHANNEL_GROUP* groups, void* items, int count) {
                return operation(login, groups, static_cast<Structure*>(items), count);
            }};
}

const std::vector<Batch> kBatches = {
    Row("GET_FACE_DETECT", 3352, Business::GetFaceDetectAlarm),
    Row("SET_FACE_DETECT", 3353, Business::SetFaceDetectAlarm),
    Row("GET_SceneChange", 3356, Business::GetSceneChangeAlarm),
    Row("SET_SceneChange", 3357, Business::SetSceneChangeAlarm),
    Row("GET_TRAVERSE_PLANE_DETECTION", 3360, Business::GetTraversePlaneAlarm),
    Row("SET_TRAVERSE_PLANE_DETECTION", 3361, Business::SetTraversePlaneAlarm),
    Row("GET_FIELD_DETECTION", 3362, Business::GetEnterRegionAlarm),
    Row("SET_FIELD_DETECTION", 3363, Business::SetEnterRegionAlarm),
    Row("GET_DEFOCUSPARAM", 3364, Business::GetDefocusDetection),
    Row("SET_DEFOCUSPARAM", 3365, Business::SetDefocusDetection),
    Row("GET_AUDIOEXCEPTIONPARAM", 3366, Business::GetAudioDetection, 920),
    Row("SET_AUDIOEXCEPTIONPARAM", 3367, Business::SetAudioDetection, 920),
};

/// A batch of one item as an operation, whose negative channel is a count of 0.
Operation Single(const Batch& row)
{
    const std::string function = row.Reads() ? "NET_DVR_GetDeviceConfig" : "NET_DVR_SetDeviceConfig";
    return {row.parameter,
            function,
            row.command,
            row.size,
            [call = row.call](int login, int channel, void* item) {
                tagNET_DVR_CHANNEL_GROUP group{};
                return call(login, &group, item, channel < 0 ? 0 : 1);
            },
            -1};
}

FakeSdk::Bytes At(const FakeSdk::Bytes& bytes, std::size_t offset, std::size_t size)
{
    const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(offset);
    return FakeSdk::Bytes(begin, begin + static_cast<std::ptrdiff_t>(size));
}

void ExpectThreeItems(const Batch& row)
{
    FakeSdk sdk;
    CapturedLog log;
    FakeSdk::Bytes groups(3 * kGroupSize, 0x11);
    FakeSdk::Bytes items(3 * row.size, 0x21);
    sdk.AnswerStatus({501, 0, 504});
    EXPECT_EQ(0,
              row.call(kLogin, reinterpret_cast<tagNET_DVR_CHANNEL_GROUP*>(groups.data()), items.data(), 3));
    ASSERT_EQ(1u, sdk.Calls().size());
    const FakeSdk::Call call = sdk.Calls().front();
    EXPECT_EQ(3u, call.count);
    EXPECT_EQ(3 * row.size, call.size);
    ASSERT_EQ(3 * kGroupSize, call.condition.size());
    EXPECT_EQ(WithSizeField(FakeSdk::Bytes(kGroupSize, 0x11), kGroupSize),
              At(call.condition, 2 * kGroupSize, kGroupSize));
    if (!row.Reads()) {
        EXPECT_EQ(WithSizeField(FakeSdk::Bytes(row.size, 0x21), row.size),
                  At(call.input, 2 * row.size, row.size));
    }
    const std::string line = "[stream config]----error " + row.parameter + "[i], error code (";
    EXPECT_EQ((std::vector<std::string>{line + "501).", line + "504)."}), log.Errors());
}

void ExpectNothingWithoutMemory(const Batch& row)
{
    FakeSdk sdk;
    CapturedLog log;
    FakeSdk::Bytes item(row.size);
    g_noMemory = true;
    EXPECT_EQ(-1, Single(row).call(kLogin, kChannel, item.data()));
    g_noMemory = false;
    ExpectNothingDone(sdk, log);
}

} // namespace

TEST(StreamCfgBatch, EveryBatchIsOneRequestAndFailedItemsHaveALineEach)
{
    for (const Batch& row : kBatches) {
        SCOPED_TRACE(row.parameter);
        ExpectUniform({Single(row)});
        ExpectThreeItems(row);
        ExpectNothingWithoutMemory(row);
    }
}
