#include "MessageSamples.h"
#include "Protocol/JSONStruct/AllMessages.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace protocol;

namespace {

template<typename List>
struct AsTypes;
template<typename... Messages>
struct AsTypes<MessageList<Messages...>>
{
    using Type = ::testing::Types<Messages...>;
};

template<typename T>
T Sample()
{
    T message;
    MessageSamples().Fill(message);
    return message;
}

/// The extent of one member within its structure.
struct Extent
{
    std::size_t begin;
    std::size_t end;
    std::size_t alignment;
};

template<typename T>
std::vector<Extent> ExtentsOf()
{
    static const T object{};
    const auto* const start = reinterpret_cast<const char*>(&object);
    std::vector<Extent> extents;
    ForEachField<T>([&](const auto& field) {
        using Member = std::decay_t<decltype(object.*field.member)>;
        const auto begin =
            static_cast<std::size_t>(reinterpret_cast<const char*>(&(object.*field.member)) - start);
        extents.push_back({begin, begin + sizeof(Member), alignof(Member)});
    });
    std::sort(extents.begin(), extents.end(),
              [](const Extent& a, const Extent& b) { return a.begin < b.begin; });
    return extents;
}

/// A member that is missing from the list, or in it twice, shows as a hole or an overlap among the listed
/// ones.
template<typename T>
bool ListCoversStructure()
{
    std::size_t reached = std::is_polymorphic_v<T> ? sizeof(void*) : 0;
    for (const Extent& extent : ExtentsOf<T>()) {
        if (extent.begin < reached || extent.begin - reached >= extent.alignment)
            return false;
        reached = extent.end;
    }
    return sizeof(T) - reached < alignof(T);
}

/// Something that no field of the type accepts.
template<typename M>
json::Tree WrongFor()
{
    if constexpr (std::is_same_v<M, std::string> || HasFields<M>::value)
        return json::NewInteger(7LL);
    else
        return json::NewObject();
}

/// The sample as a tree in which the value under the key is replaced, or removed.
template<typename T>
json::Tree SampleWith(const char* key, json::Tree value)
{
    std::string error;
    json::Tree holder = json::NewObject();
    Sample<T>().ToJSON(holder.get(), "message");
    json::Tree read = json::ParseText(json::PrintText(holder->child), error);
    cJSON_DeleteItemFromObjectCaseSensitive(read.get(), key);
    if (value)
        json::Attach(read.get(), key, std::move(value));
    return read;
}

bool Names(const std::string& line, const std::string& key)
{
    return line.find("Key: [" + key + "]") != std::string::npos;
}

template<typename T>
void ExpectRefused(const cJSON* item, const std::string& key)
{
    T message = Sample<T>();
    const CapturedLog log;
    EXPECT_FALSE(message.FromJSON(item)) << key;
    EXPECT_TRUE(message == Sample<T>()) << "a refused body must not change the message: " << key;
    const auto lines = log.Lines();
    ASSERT_EQ(lines.size(), 1u) << key;
    EXPECT_TRUE(Names(lines[0].message, key)) << lines[0].message;
}

/// The values under keys, each of them replaced by a wrong one or left out.
template<typename T, typename F>
void CheckField(const F& field)
{
    using Member = std::decay_t<decltype(T{}.*field.member)>;
    if constexpr (!std::is_same_v<Member, RawJSON>)
        ExpectRefused<T>(SampleWith<T>(field.key, WrongFor<Member>()).get(), field.key);

    const json::Tree without = SampleWith<T>(field.key, nullptr);
    if (field.mandatory)
        return ExpectRefused<T>(without.get(), field.key);
    T message = Sample<T>();
    ASSERT_TRUE(message.FromJSON(without.get())) << field.key;
    EXPECT_TRUE(message.*field.member == T{}.*field.member) << field.key << " keeps its default";
}

} // namespace

template<typename T>
class EveryMessage : public ::testing::Test
{};
TYPED_TEST_SUITE(EveryMessage, AsTypes<AllMessages>::Type);

TYPED_TEST(EveryMessage, ComesBackAsItWasWritten)
{
    const TypeParam written = Sample<TypeParam>();
    TypeParam read;
    ASSERT_TRUE(TParseJSONStr(read, WriteJSONStr(written)));
    EXPECT_TRUE(read == written) << WriteJSONStr(written) << "\n" << WriteJSONStr(read);
}

TYPED_TEST(EveryMessage, ComesBackWithItsDefaults)
{
    TypeParam read = Sample<TypeParam>();
    ASSERT_TRUE(TParseJSONStr(read, WriteJSONStr(TypeParam{})));
    EXPECT_TRUE(read == TypeParam{});
}

TYPED_TEST(EveryMessage, ListsAllItsMembers)
{
    EXPECT_TRUE(ListCoversStructure<TypeParam>());
}

TYPED_TEST(EveryMessage, DiffersWhenAnyFieldDiffers)
{
    const TypeParam sample = Sample<TypeParam>();
    ForEachField<TypeParam>([&](const auto& field) {
        TypeParam changed = sample;
        changed.*field.member = TypeParam{}.*field.member;
        EXPECT_TRUE(changed != sample);
    });
}

TYPED_TEST(EveryMessage, UsesEachKeyOnce)
{
    if constexpr (!IsWhole<decltype(TypeParam::Fields())>::value) {
        std::set<std::string> keys;
        ForEachField<TypeParam>(
            [&](const auto& field) { EXPECT_TRUE(keys.insert(field.key).second) << field.key; });
    }
}

TYPED_TEST(EveryMessage, RefusesAWrongOrMissingFieldByItsName)
{
    if constexpr (IsWhole<decltype(TypeParam::Fields())>::value)
        ExpectRefused<TypeParam>(json::NewObject().get(), TypeParam::kKey);
    else
        ForEachField<TypeParam>([](const auto& field) { CheckField<TypeParam>(field); });
}

TYPED_TEST(EveryMessage, IgnoresUnknownKeysAndTakesTheFirstOfTwo)
{
    if constexpr (!IsWhole<decltype(TypeParam::Fields())>::value) {
        json::Tree item = SampleWith<TypeParam>("unknown", json::NewObject());
        ForEachField<TypeParam>(
            [&](const auto& field) { json::Attach(item.get(), field.key, json::NewObject()); });
        TypeParam message;
        ASSERT_TRUE(message.FromJSON(item.get()));
        EXPECT_TRUE(message == Sample<TypeParam>());
    }
}

TEST(NestedStructures, ListAllTheirMembers)
{
    EXPECT_TRUE(ListCoversStructure<AlarmInputInfo>());
    EXPECT_TRUE(ListCoversStructure<AlarmOutputInfo>());
    EXPECT_TRUE(ListCoversStructure<ComponentInfo>());
    EXPECT_TRUE(ListCoversStructure<DeviceChannelInfo>());
    EXPECT_TRUE(ListCoversStructure<GroupInfo>());
    EXPECT_TRUE(ListCoversStructure<LocalFileQueryItem>());
    EXPECT_TRUE(ListCoversStructure<ResultCode>());
    EXPECT_TRUE(ListCoversStructure<TimeSyncResult>());
    EXPECT_TRUE(ListCoversStructure<WiperControlResult>());
}

TEST(MessageFields, TestSeesAForgottenMember)
{
    struct Forgetful
    {
        std::string listed;
        std::string forgotten;
        static constexpr auto Fields() { return std::make_tuple(Must("listed", &Forgetful::listed)); }
    };
    EXPECT_FALSE(ListCoversStructure<Forgetful>());
}
