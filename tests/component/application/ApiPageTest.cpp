#include "support/ApiPage.h"

#include "Base/ThreadPool.h"
#include "Protocol/JSONStruct/AllMessages.h"
#include "Protocol/JSONStruct/LPC/LPCCommonJSONStruct.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"
#include "SignalTransmit.h"
#include "WndIdManager.h"
#include "logical/Communication/LPCClientPackage.h"
#include "logical/System/CurrentUser.h"
#include "ui/Application/ServedRoutes.h"
#include "ui/System/SystemconfigUIManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>

using namespace protocol;
using testing::Contains;
using testing::UnorderedElementsAreArray;

namespace {

using Names = std::vector<std::string>;

const ApiPage& Page()
{
    static const ApiPage page(LPC_API_PAGE);
    return page;
}

/// The component's tables, filled as the program fills them.
struct Tables
{
    Tables() : windows({}, settings), transmitter(windows, user, {}), link([](Base::Task) { return false; })
    {
        video::ServeAllRoutes(link, transmitter);
    }

    video::CSystemconfigUIManager settings;
    video::CWndIdManager windows;
    video::CCurrentUser user;
    video::CSignalTransmit transmitter;
    video::CLPCClientPackage link;
};

/// The names of the chapter's sections, and what its section "... that are only received" lists.
struct Chapter
{
    explicit Chapter(const std::string& title)
    {
        for (const ApiPage::Section& section : Page().sections) {
            if (section.chapter != title || section.name.empty())
                continue;
            if (section.name.find(" that are only received") == std::string::npos)
                served.push_back(section.name);
            else
                received = section.listed;
        }
    }

    Names All() const
    {
        Names all = served;
        all.insert(all.end(), received.begin(), received.end());
        return all;
    }

    Names served;
    Names received;
};

TEST(TheApiPage, HasASectionForEveryRouteAndMethodAndNoOther)
{
    Tables tables;
    video::CRouteTable& http = tables.link.Dispatcher().Http();
    video::CRouteTable& methods = tables.link.Dispatcher().Methods();
    EXPECT_THAT(Chapter("Routes").served, UnorderedElementsAreArray(http.ServedNames()));
    EXPECT_THAT(Chapter("Routes").All(), UnorderedElementsAreArray(http.Names()));
    EXPECT_THAT(Chapter("Methods").All(), UnorderedElementsAreArray(methods.Names()));
}

// ---- the tables of fields ---------------------------------------------------------------------------------

template<typename E>
std::string EnumKind(const EnumRange<E>& range)
{
    return std::to_string(static_cast<int>(range.first)) + " to " +
           std::to_string(static_cast<int>(range.last));
}

template<typename Texts>
std::string EnumKind(const Texts& texts)
{
    std::string kind;
    for (const auto& entry : texts)
        kind += (kind.empty() ? "\"" : " or \"") + std::string(entry.text) + "\"";
    return kind;
}

template<typename T>
struct IsList : std::false_type
{};
template<typename T>
struct IsList<std::vector<T>> : std::true_type
{};
template<typename T>
struct IsOptional : std::false_type
{};
template<typename T>
struct IsOptional<std::optional<T>> : std::true_type
{};

/// The name of a kind of value, as the page has it.
template<typename M>
std::string KindOf()
{
    if constexpr (IsOptional<M>::value)
        return KindOf<typename M::value_type>();
    else if constexpr (IsList<M>::value)
        return "list of " + KindOf<typename M::value_type>();
    else if constexpr (HasFields<M>::value)
        return "object";
    else if constexpr (std::is_enum_v<M>)
        return EnumKind(JSONEnum(M{}));
    else if constexpr (std::is_same_v<M, std::string>)
        return "text";
    else if constexpr (std::is_same_v<M, bool>)
        return "flag";
    else if constexpr (std::is_same_v<M, double>)
        return "number";
    else if constexpr (std::is_same_v<M, Seconds>)
        return "time";
    else if constexpr (std::is_same_v<M, RawJSON>)
        return "any";
    else
        return (std::is_signed_v<M> ? "int" : "uint") + std::to_string(8 * sizeof(M));
}

template<typename T>
void AddRows(const std::string& prefix, Names& rows);

/// The rows of what a member holds itself.
template<typename M>
void AddInnerRows(const std::string& key, Names& rows)
{
    if constexpr (IsOptional<M>::value)
        AddInnerRows<typename M::value_type>(key, rows);
    else if constexpr (IsList<M>::value)
        AddInnerRows<typename M::value_type>(key + "[]", rows);
    else if constexpr (HasFields<M>::value)
        AddRows<M>(key + ".", rows);
}

/// "key, kind, must" of each field and of the fields within it.
template<typename T>
void AddRows(const std::string& prefix, Names& rows)
{
    ForEachField<T>([&](const auto& field) {
        using Member = std::decay_t<decltype(T{}.*field.member)>;
        if constexpr (IsWhole<std::decay_t<decltype(field)>>::value) {
            AddInnerRows<Member>("", rows);
        } else {
            rows.push_back(prefix + field.key + ", " + KindOf<Member>() + ", " +
                           (field.mandatory ? "yes" : "no"));
            AddInnerRows<Member>(prefix + field.key, rows);
        }
    });
}

/// A message type as this test sees it. Several may have one key, such as a request and its answer.
struct MessageInfo
{
    std::string key;
    Names rows;
    bool isMethod; ///< travels in the envelope of methods
    std::unique_ptr<IJSONStruct> (*make)();
};

template<typename T>
MessageInfo Describe()
{
    Names rows;
    AddRows<T>("", rows);
    return {T::kKey, rows, std::is_base_of_v<ILPCData, T>,
            []() -> std::unique_ptr<IJSONStruct> { return std::make_unique<T>(); }};
}

template<typename... Messages>
std::vector<MessageInfo> Describe(MessageList<Messages...>)
{
    return {Describe<Messages>()...};
}

const std::vector<MessageInfo>& Messages()
{
    static const std::vector<MessageInfo> messages = Describe(AllMessages());
    return messages;
}

Names RowsOf(const ApiPage::Fields& fields)
{
    Names rows;
    for (const ApiPage::Row& row : fields.rows)
        rows.push_back(row.key + ", " + row.kind + ", " + row.must);
    return rows;
}

/// The message whose fields a table shows; null when there is none.
const MessageInfo* MessageOf(const ApiPage::Fields& fields)
{
    for (const MessageInfo& message : Messages())
        if (message.key == fields.message && message.rows == RowsOf(fields))
            return &message;
    return nullptr;
}

/// All messages that the page has a table of.
std::set<const MessageInfo*> DescribedMessages()
{
    std::set<const MessageInfo*> described;
    for (const ApiPage::Section& section : Page().sections)
        for (const ApiPage::Fields& fields : section.fields)
            described.insert(MessageOf(fields));
    return described;
}

TEST(TheApiPage, ShowsTheFieldsOfItsMessages)
{
    for (const ApiPage::Section& section : Page().sections)
        for (const ApiPage::Fields& fields : section.fields) {
            std::vector<Names> lists;
            for (const MessageInfo& message : Messages())
                if (message.key == fields.message)
                    lists.push_back(message.rows);
            EXPECT_THAT(lists, Contains(RowsOf(fields)))
                << section.name << ", " << fields.role << " \"" << fields.message << '"';
        }
}

TEST(TheApiPage, ShowsEveryMessageOfTheMethods)
{
    const auto described = DescribedMessages();
    const Names methods = Chapter("Methods").All();
    for (const MessageInfo& message : Messages()) {
        const bool isServed =
            message.isMethod && std::count(methods.begin(), methods.end(), message.key) != 0;
        EXPECT_EQ(isServed, isServed && described.count(&message) == 1)
            << message.key << ": " << testing::PrintToString(message.rows);
    }
}

// ---- the examples -----------------------------------------------------------------------------------------

/// The texts of all members' paths in an item, such as ".data.type"; those of a list's elements as "[]".
void AddPaths(const cJSON* item, const std::string& path, std::set<std::string>& paths)
{
    paths.insert(path);
    for (const cJSON* child = item->child; child; child = child->next)
        AddPaths(child, path + (cJSON_IsArray(item) ? "[]" : "." + std::string(child->string)), paths);
}

std::set<std::string> PathsOf(const std::string& text)
{
    std::string error;
    const json::Tree tree = json::ParseText(text, error);
    std::set<std::string> paths;
    if (tree)
        AddPaths(tree.get(), "", paths);
    else
        ADD_FAILURE() << error << ": " << text;
    return paths;
}

/// The body that the message writes after it has read this one; nothing when it cannot read it.
std::optional<std::string> ReadAndWrite(const MessageInfo& message, const std::string& body)
{
    const auto read = message.make();
    if (!message.isMethod)
        return ParseJSONStr(*read, body) ? std::optional(WriteJSONStr(*read)) : std::nullopt;
    LPCRequestData envelope(*read);
    const bool isRead = envelope.Parse(body) && envelope.method == message.key;
    return isRead ? std::optional(WriteLPCStr(*read)) : std::nullopt;
}

/// Whether an example is the message: it is read, has no member that the message does not have and, as an
/// answer, is to the letter what the message writes.
bool Fits(const MessageInfo* message, const ApiPage::Example& example)
{
    const auto written = message ? ReadAndWrite(*message, example.body) : std::nullopt;
    if (!written || example.kind == "answer")
        return written == example.body;
    const auto known = PathsOf(*written);
    const auto used = PathsOf(example.body);
    return std::includes(known.begin(), known.end(), used.begin(), used.end());
}

/// The messages that an example of the section can be: those of its tables, or of any table where it has
/// none.
std::set<const MessageInfo*> Candidates(const ApiPage::Section& section, const ApiPage::Example& example)
{
    if (section.fields.empty())
        return DescribedMessages();
    std::set<const MessageInfo*> candidates;
    for (const ApiPage::Fields& fields : section.fields)
        if ((fields.role == "Answer") == (example.kind == "answer"))
            candidates.insert(MessageOf(fields));
    return candidates;
}

/// Examples that are no message with fields: a route whose body does not matter, a method without data, and
/// what the component gives no answer to.
bool HasNoFields(const ApiPage::Section& section, const ApiPage::Example& example)
{
    return example.kind == "unanswered" || example.body == "{}" || example.body == WriteLPCStr(section.name);
}

TEST(TheApiPage, HasExamplesThatItsMessagesReadAndWrite)
{
    std::set<const MessageInfo*> shown;
    for (const ApiPage::Section& section : Page().sections) {
        for (const ApiPage::Example& example : section.examples) {
            int fitting = HasNoFields(section, example) ? 1 : 0;
            for (const MessageInfo* message : Candidates(section, example)) {
                if (!HasNoFields(section, example) && Fits(message, example)) {
                    ++fitting;
                    shown.insert(message);
                }
            }
            EXPECT_EQ(fitting, 1) << section.name << ", line " << example.line << ": " << example.body;
        }
    }
    for (const MessageInfo* message : DescribedMessages())
        EXPECT_EQ(shown.count(message), 1U) << "no example of \"" << (message ? message->key : "?") << '"';
}

TEST(TheApiPage, HasAnExampleOfEveryRouteAndMethod)
{
    for (const char* title : {"Routes", "Methods"}) {
        const Names served = Chapter(title).served;
        for (const ApiPage::Section& section : Page().sections)
            if (section.chapter == title && std::count(served.begin(), served.end(), section.name) != 0) {
                EXPECT_FALSE(section.examples.empty()) << section.name;
            }
    }
}

} // namespace
