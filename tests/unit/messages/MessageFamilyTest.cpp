#include "MessageSamples.h"
#include "Protocol/JSONStruct/AllMessages.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"
#include "support/CapturedLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <set>

using namespace protocol;

namespace {

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

/// A JSON text that no field of the type accepts; empty when there is none.
template<typename M>
std::string WrongFor()
{
    if constexpr (std::is_same_v<M, RawJSON>)
        return {};
    else
        return std::is_same_v<M, std::string> || HasFields<M>::value ? "7" : "{}";
}

/// A message type as the tests see it, so that each of them is compiled once for all types.
using Message = std::unique_ptr<IJSONStruct>;

struct FieldInfo
{
    const char* key; ///< null: the message is this field alone
    bool mandatory;
    std::string wrong;
    std::function<Message()> sampleWithDefault; ///< the sample, but for this field
};

struct MessageInfo
{
    Message (*empty)();
    Message (*sample)();
    bool (*equal)(const IJSONStruct&, const IJSONStruct&);
    bool listCoversStructure;
    std::vector<FieldInfo> fields;

    bool IsWhole() const { return !fields.front().key; }
};

template<typename T>
Message Sample()
{
    auto message = std::make_unique<T>();
    MessageSamples().Fill(*message);
    return message;
}

template<typename T, typename F>
FieldInfo Describe(const F& field)
{
    using Member = std::decay_t<decltype(T{}.*field.member)>;
    const auto member = field.member;
    FieldInfo info{nullptr, true, WrongFor<Member>(), [member] {
                       Message message = Sample<T>();
                       static_cast<T&>(*message).*member = T{}.*member;
                       return message;
                   }};
    if constexpr (!IsWhole<F>::value) {
        info.key = field.key;
        info.mandatory = field.mandatory;
    }
    return info;
}

template<typename T>
MessageInfo Describe()
{
    MessageInfo info{[]() -> Message { return std::make_unique<T>(); },
                     &Sample<T>,
                     [](const IJSONStruct& left, const IJSONStruct& right) {
                         return static_cast<const T&>(left) == static_cast<const T&>(right);
                     },
                     ListCoversStructure<T>(),
                     {}};
    ForEachField<T>([&](const auto& field) { info.fields.push_back(Describe<T>(field)); });
    return info;
}

template<typename... Messages>
std::vector<MessageInfo> Describe(MessageList<Messages...>)
{
    return {Describe<Messages>()...};
}

/// The sample as a tree in which the value under the key is replaced, or removed when there is none.
json::Tree SampleWith(const MessageInfo& info, const char* key, const std::string& value)
{
    std::string error;
    json::Tree holder = json::NewObject();
    info.sample()->ToJSON(holder.get(), "message");
    json::Tree read = json::ParseText(json::PrintText(holder->child), error);
    cJSON_DeleteItemFromObjectCaseSensitive(read.get(), key);
    if (!value.empty())
        json::Attach(read.get(), key, json::NewRaw(value));
    return json::ParseText(json::PrintText(read.get()), error);
}

void ExpectRefused(const MessageInfo& info, const json::Tree& item, const std::string& key)
{
    const Message message = info.sample();
    const CapturedLog log;
    EXPECT_FALSE(message->FromJSON(item.get())) << key;
    EXPECT_TRUE(info.equal(*message, *info.sample()))
        << "a refused body must not change the message: " << key;
    const auto lines = log.Lines();
    ASSERT_EQ(lines.size(), 1u) << key;
    EXPECT_THAT(lines[0].message, testing::HasSubstr("Key: [" + key + "]"));
}

void CheckWithout(const MessageInfo& info, const FieldInfo& field)
{
    const json::Tree without = SampleWith(info, field.key, "");
    if (field.mandatory)
        return ExpectRefused(info, without, field.key);
    const Message message = info.sample();
    ASSERT_TRUE(message->FromJSON(without.get())) << field.key;
    EXPECT_TRUE(info.equal(*message, *field.sampleWithDefault())) << field.key << " has its default";
}

class EveryMessage : public testing::TestWithParam<MessageInfo>
{};
INSTANTIATE_TEST_SUITE_P(Rows, EveryMessage, testing::ValuesIn(Describe(AllMessages())), [](const auto& row) {
    return std::to_string(row.index) + "_" + row.param.empty()->Key();
});

TEST_P(EveryMessage, ComesBackAsItWasWritten)
{
    const MessageInfo& info = GetParam();
    const std::pair<Message, Message> rows[] = {{info.sample(), info.empty()}, {info.empty(), info.sample()}};
    for (const auto& [written, read] : rows) {
        ASSERT_TRUE(ParseJSONStr(*read, WriteJSONStr(*written))) << WriteJSONStr(*written);
        EXPECT_TRUE(info.equal(*read, *written)) << WriteJSONStr(*written) << "\n" << WriteJSONStr(*read);
    }
}

TEST_P(EveryMessage, ListsEachOfItsMembersOnce)
{
    EXPECT_TRUE(GetParam().listCoversStructure);
    std::set<std::string> keys;
    for (const FieldInfo& field : GetParam().fields) {
        const std::string key = field.key ? field.key : "";
        EXPECT_TRUE(keys.insert(key).second) << key;
        EXPECT_FALSE(GetParam().equal(*field.sampleWithDefault(), *GetParam().sample())) << key;
    }
}

TEST_P(EveryMessage, RefusesAWrongOrMissingFieldByItsName)
{
    const MessageInfo& info = GetParam();
    if (info.IsWhole())
        return ExpectRefused(info, json::NewText("neither list nor object"), info.empty()->Key());
    for (const FieldInfo& field : info.fields) {
        if (!field.wrong.empty())
            ExpectRefused(info, SampleWith(info, field.key, field.wrong), field.key);
        CheckWithout(info, field);
    }
}

TEST_P(EveryMessage, IgnoresUnknownKeysAndTakesTheFirstOfTwo)
{
    const MessageInfo& info = GetParam();
    if (info.IsWhole())
        return;
    const json::Tree item = SampleWith(info, "unknown", "{}");
    for (const FieldInfo& field : info.fields)
        json::Attach(item.get(), field.key, json::NewObject());
    const Message message = info.empty();
    ASSERT_TRUE(message->FromJSON(item.get()));
    EXPECT_TRUE(info.equal(*message, *info.sample()));
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

} // namespace
