#include "CapabilitySet/CapabilitySet.h"
#include "OtherValues.h"
#include "RecorderSession.h"
#include "simulator/abilities/Channels.h"
#include "ui/Public/RemoteConfigBusiness/DeviceCfgBusiness.h"
#include "ui/Public/RemoteConfigBusiness/StreamCfgBusiness.h"

#include <functional>
#include <type_traits>

using video::CDeviceCfgBusiness;
using video::CStreamCfgBusiness;
using video::WirelessAlarms;

namespace {

constexpr int kCamera = 2;
constexpr int kNoCamera = 99;
constexpr int kItems = 3; ///< the last of them is of no camera

const std::string kGet = "NET_DVR_GetDVRConfig";
const std::string kSet = "NET_DVR_SetDVRConfig";

/// Each of the tables' operations once, against a device that takes them, and then again, when it refuses.
class DeviceConfig : public testing::Test
{
protected:
    template<class Structure, class Read>
    std::unique_ptr<Structure> Reads(const std::string& name, const Read& read)
    {
        auto structure = std::make_unique<Structure>();
        EXPECT_EQ(0, read(structure.get())) << name;
        EXPECT_EQ(Strings(), m_session.NewErrors()) << name;
        m_again.push_back({kGet, [read, kept = std::make_shared<Structure>()] { return read(kept.get()); }});
        return structure;
    }

    template<class Structure, class Write>
    void Takes(const std::string& name, const Write& write, const Structure& structure)
    {
        auto sent = std::make_shared<Structure>(structure);
        EXPECT_EQ(0, write(sent.get())) << name;
        EXPECT_EQ(Strings(), m_session.NewErrors()) << name;
        m_again.push_back({kSet, [write, sent] { return write(sent.get()); }});
    }

    template<class Structure, class Read>
    void ExpectHas(const std::string& name, const Read& read, const Structure& expected)
    {
        const Structure before = other::Lasting(expected);
        Structure after{};
        EXPECT_EQ(0, read(&after)) << name;
        after = other::Lasting(after);
        EXPECT_EQ(0, std::memcmp(&before, &after, sizeof before)) << name;
    }

    template<class Structure, class Read, class Write>
    void Keeps(const std::string& name, std::uint32_t command, const Read& read, const Write& write)
    {
        auto structure = Reads<Structure>(name, read);
        other::Change(command, *structure);
        Takes(name, write, *structure);
        ExpectHas(name, read, *structure);
    }

    /// place(structure) is the part that write sends.
    template<class Structure, class Place, class Write>
    void KeepsPart(const std::string& name, std::uint32_t command, const Place& place, const Write& write)
    {
        const auto read = [this, command](Structure* structure) {
            return NET_DVR_GetDVRConfig(m_session.Login(), command, kCamera, structure, sizeof *structure) -
                   1;
        };
        auto expected = std::make_unique<Structure>();
        ASSERT_EQ(0, read(expected.get())) << name;
        auto changed = std::make_shared<Structure>(*expected);
        other::Change(command, *changed);
        EXPECT_EQ(0, write(place(*changed))) << name;
        std::memcpy(place(*expected), place(*changed), sizeof *place(*expected));
        ExpectHas(name, read, *expected);
        m_again.push_back({kGet, [=] { return write(place(*changed)); }});
    }

    template<class Structure, class Batch>
    void KeepsItems(const std::string& parameter, std::uint32_t command, const Batch& read,
                    const Batch& write)
    {
        tagNET_DVR_CHANNEL_GROUP groups[kItems] = {{0, 1, 0, {}}, {0, kCamera, 0, {}}, {0, kNoCamera, 0, {}}};
        const std::string end = parameter + "[i], error code (501).";
        Structure items[kItems]{};
        EXPECT_EQ(0, read(groups, items)) << parameter;
        EXPECT_EQ(Strings{"[stream config]----error GET_" + end}, m_session.NewErrors());
        for (Structure& item : items)
            other::Change(command, item);
        EXPECT_EQ(0, write(groups, items)) << parameter;
        EXPECT_EQ(Strings{"[stream config]----error SET_" + end}, m_session.NewErrors());
        Structure after[kItems]{};
        EXPECT_EQ(0, read(groups, after)) << parameter;
        EXPECT_EQ(0, std::memcmp(items, after, 2 * sizeof *items)) << parameter;
        (void)m_session.NewErrors();
        for (const auto& [function, batch] :
             {std::pair("NET_DVR_GetDeviceConfig", read), std::pair("NET_DVR_SetDeviceConfig", write)})
            m_again.push_back({function, [call = batch] {
                                   tagNET_DVR_CHANNEL_GROUP none[kItems]{};
                                   Structure nothing[kItems]{};
                                   return call(none, nothing);
                               }});
    }

    void ExpectRefusals()
    {
        m_session.Device().SetFaults(
            R"([{"fault": "error", "status": 503, "error": 503, "module": 17, "own": 9}])");
        for (const auto& [function, call] : m_again) {
            EXPECT_EQ(-1, call());
            EXPECT_EQ(Strings{function + " failed, [503]-[17]."}, m_session.NewErrors());
        }
        EXPECT_TRUE(m_session.HasInfo("NET_DVR_GetLastError: [503]"));
        EXPECT_TRUE(
            m_session.HasInfo("NET_DVR_GetLastErrorModelCode, ErrModelCode:[0x11], MErrDevSelfEx:[0x9]."));
    }

    struct Call
    {
        std::string function; ///< whose error line a refusal gives
        std::function<int()> call;
    };

    RecorderSession m_session;
    std::vector<Call> m_again;
};

} // namespace

// What a test does with the rows of a table, whose class is Business.
#define OPERATION(name, Structure, ...)                                                                      \
    [login](Structure* config) { return Business::name(login, __VA_ARGS__ config); }
#define SDK_GETTER(name, Structure, command, bytes)                                                          \
    Reads<Structure>(#name, OPERATION(name, Structure, kCamera, ));
#define SDK_SETTER(name, Structure, command, bytes)                                                          \
    Takes(#name, OPERATION(name, Structure, kCamera, ), other::Order<Structure>(command));
#define SDK_CONFIG(getter, setter, Structure, getCommand, setCommand, bytes)                                 \
    Keeps<Structure>(#setter, getCommand, OPERATION(getter, Structure, kCamera, ),                           \
                     OPERATION(setter, Structure, kCamera, ));
#define SDK_DEVICE_GETTER(name, Structure, command, bytes)                                                   \
    Reads<Structure>(#name, OPERATION(name, Structure, ));
#define SDK_DEVICE_SETTER(name, Structure, command, bytes)                                                   \
    Takes(#name, OPERATION(name, Structure, ), other::Order<Structure>(command));
#define SDK_DEVICE_CONFIG(getter, setter, Structure, getCommand, setCommand, bytes)                          \
    Keeps<Structure>(#setter, getCommand, OPERATION(getter, Structure, ), OPERATION(setter, Structure, ));
#define BATCH(name, Structure)                                                                               \
    std::function([login](tagNET_DVR_CHANNEL_GROUP* groups, Structure* items) {                              \
        return Business::name(login, groups, items, kItems);                                                 \
    })
#define SDK_BATCH(getter, setter, Structure, getCommand, setCommand, bytes, parameter)                       \
    KeepsItems<Structure>(parameter, getCommand, BATCH(getter, Structure), BATCH(setter, Structure));
#define SDK_PART(setter, Structure, getCommand, setCommand, Part, member)                                    \
    KeepsPart<Structure>(                                                                                    \
        #setter, getCommand, [](Structure& whole) { return &whole.member; },                                 \
        [login](const Part* part) { return Business::setter(login, kCamera, part); });
#define SDK_ELEMENT(setter, Structure, getCommand, setCommand, Part, member)                                 \
    KeepsPart<Structure>(                                                                                    \
        #setter, getCommand, [](Structure& whole) { return std::end(whole.member) - 1; },                    \
        [login](const Part* part) {                                                                          \
            return Business::setter(login, kCamera, std::extent_v<decltype(Structure::member)> - 1, part);   \
        });

TEST_F(DeviceConfig, EveryParameterOfAChannelIsKeptByTheDeviceAndARefusalIsTold)
{
    using Business = CStreamCfgBusiness;
    const int login = m_session.Login();
#define SDK_TABLE "ui/Public/RemoteConfigBusiness/StreamCfgTable.inc"
#include SDK_TABLE
    KeepsPart<NET_DVR_MOTION_V40>(
        "SetMotionParameters", QXNET_GET_MOTION, [](NET_DVR_MOTION_V40& whole) { return &whole; },
        [login](const NET_DVR_MOTION_V40* whole) {
            return Business::SetMotionParameters(login, kCamera, whole);
        });
    for (const int command :
         {QXNET_GET_MOTION_HOLIDAY, QXNET_GET_DETECTION_HOLIDAY, QXNET_GET_ALARM_INPUT_HOLIDAY})
        Keeps<tagNET_DVR_HOLIDAY_HANDLE>(
            "SetCameraHolidayParameters", static_cast<std::uint32_t>(command),
            [=](auto* config) {
                return Business::GetCameraHolidayParameters(login, kCamera, command, config);
            },
            [=](auto* config) {
                return Business::SetCameraHolidayParameters(login, kCamera, command + 1, config);
            });
    ExpectRefusals();
}
#undef SDK_TABLE

TEST_F(DeviceConfig, EveryParameterOfTheDeviceIsKeptByItAndARefusalIsTold)
{
    using Business = CDeviceCfgBusiness;
    const int login = m_session.Login();
#define SDK_TABLE "ui/Public/RemoteConfigBusiness/DeviceCfgTable.inc"
#include SDK_TABLE
    QxNetAudioCompress compress{};
    EXPECT_EQ(0, Business::GetAudioCompress(login, &compress));
    EXPECT_EQ(QXNET_AUDIO_G722, compress.encoding);
    ExpectRefusals();
}
#include "ui/Public/RemoteConfigBusiness/ForgetOperations.inc"

TEST_F(DeviceConfig, StandardConfigurationCarriesTheSameStructures)
{
    std::uint32_t camera = kCamera;
    tagNET_DVR_STREAM_CABAC cabac{};
    tagNET_DVR_STD_CONFIG config{&camera, sizeof camera, &cabac, sizeof cabac, &cabac, sizeof cabac, 0};
    const int login = m_session.Login();
    ASSERT_EQ(0, CStreamCfgBusiness::GetDeviceConfig(login, QXNET_GET_CABAC, &config));
    EXPECT_EQ(sizeof cabac, config.outputLength);
    cabac.enabled = !cabac.enabled;
    const tagNET_DVR_STREAM_CABAC changed = cabac;
    EXPECT_EQ(0, CStreamCfgBusiness::SetDeviceConfig(login, QXNET_SET_CABAC, &config));
    EXPECT_EQ(0, CStreamCfgBusiness::GetCabacParameters(login, kCamera, &cabac));
    EXPECT_EQ(0, std::memcmp(&changed, &cabac, sizeof cabac));
    camera = kNoCamera;
    EXPECT_EQ(-1, CStreamCfgBusiness::GetDeviceConfig(login, QXNET_GET_CABAC, &config));
    EXPECT_EQ(-1, CStreamCfgBusiness::SetDeviceConfig(login, QXNET_SET_CABAC, &config));
    EXPECT_EQ((Strings{"NET_DVR_GetSTDConfig failed, [501]-[0].", "NET_DVR_SetSTDConfig failed, [501]-[0]."}),
              m_session.NewErrors());
}

TEST_F(DeviceConfig, AbilitiesComeWholeFromTheDeviceAndAreAskedForOnce)
{
    using namespace CapabilitySet;
    using simulator::abilities::Source;
    const int login = m_session.Login();
    const auto ask = [login](int channel, Source source) {
        ChannelInput input;
        RecordOptions record;
        CaptureOptions capture;
        DetectionOptions detections;
        BasicFeatures basic;
        EXPECT_TRUE(ChannelInputAbility::GetChannelInputAbility(login, channel, input));
        EXPECT_TRUE(RecordAbility::GetRecordAbility(login, channel, record));
        EXPECT_TRUE(JpegCaptureAbility::GetJpegCaptureAbility(login, channel, capture));
        EXPECT_TRUE(VcaAbility::GetVcaAbility(login, channel, detections));
        EXPECT_TRUE(BasicCapability::GetBasicCapability(login, channel, basic));
        EXPECT_TRUE(input == InputOf(source) && record == RecordingOf(source));
        EXPECT_TRUE(capture == CapturesOf(source) && detections == DetectionsOf(source));
        EXPECT_TRUE(basic.extendedRecord && basic.holidays > 0 && basic.alarmInputs == 16);
    };
    ask(1, Source::Network);
    ask(2, Source::Analog);
    EXPECT_EQ(Strings(), m_session.NewErrors());
    m_session.Device().Kill();
    ask(1, Source::Network);
    ask(2, Source::Analog);
    BasicFeatures basic;
    EXPECT_FALSE(BasicCapability::GetBasicCapability(login, 0, basic));
    EXPECT_EQ(static_cast<std::uint32_t>(QXNET_ERROR_UNREACHABLE), CapabilitySet::LastError().error);
    EXPECT_EQ(1u, m_session.NewErrors().size());
}
