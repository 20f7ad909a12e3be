#include "support/ApiPage.h"
#include "ApiMessages.h"

#include "Protocol/JSONStruct/HTTP/SystemJSONStruct.h"
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

#include <algorithm>
#include <map>
#include <memory>
#include <set>

using namespace protocol;
using testing::Contains;
using testing::UnorderedElementsAreArray;

namespace {

using Names = std::vector<std::string>;
using Paths = std::set<std::string>;

/// What holds for all messages.
constexpr const char* kCommonChapter = "How to read it";

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

/// The keys in a message's rows.
Paths KeysOf(const MessageInfo& message)
{
    Paths keys;
    for (const std::string& row : message.rows)
        keys.insert(row.substr(0, row.find(", ")));
    return keys;
}

/// The messages that an example of the section can be: those of its tables and the common ones, or of any
/// table where it has none.
std::set<const MessageInfo*> Candidates(const ApiPage::Section& section, const ApiPage::Example& example)
{
    std::set<const MessageInfo*> candidates;
    for (const ApiPage::Section& other : Page().sections)
        if (section.fields.empty() || other.name == section.name || other.chapter == kCommonChapter)
            for (const ApiPage::Fields& fields : other.fields)
                if (fields.role != (example.kind == "answer" ? "Data" : "Answer"))
                    candidates.insert(MessageOf(fields));
    return candidates;
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

/// Adds the paths of all members within an item, in the tables' form.
void AddPaths(const cJSON* item, const std::string& path, Paths& paths)
{
    for (const cJSON* child = item->child; child; child = child->next) {
        const std::string key = child->string ? child->string : "";
        const std::string inner = cJSON_IsArray(item) ? path + "[]" : path.empty() ? key : path + "." + key;
        if (!cJSON_IsArray(item))
            paths.insert(inner);
        AddPaths(child, inner, paths);
    }
}

/// The paths that an example's message has.
Paths PathsIn(const MessageInfo& message, const std::string& body)
{
    std::string error;
    const json::Tree tree = json::ParseText(body, error);
    const char* const key = message.isMethod ? "data" : message.key.c_str();
    const cJSON* const item = *key ? json::Member(tree.get(), key) : tree.get();
    Paths paths;
    if (item)
        AddPaths(item, "", paths);
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

/// Whether an example is of the message: it is read and, as an answer, to the letter what the message writes
/// (all the settings, where it is they that answer).
bool Fits(const MessageInfo* message, const ApiPage::Example& example)
{
    const auto written = message ? ReadAndWrite(*message, example.body) : std::nullopt;
    if (!written || example.kind != "answer")
        return written.has_value();
    const bool isSettings = message->key == SystemConfigsData::kKey;
    return *written == example.body && (!isSettings || PathsIn(*message, example.body) == KeysOf(*message));
}

/// Examples that are no message with fields: a route whose body does not matter, a method without data, and
/// what the component gives no answer to.
bool HasNoFields(const ApiPage::Section& section, const ApiPage::Example& example)
{
    return example.kind == "unanswered" || example.body.empty() || example.body == "{}" ||
           example.body == WriteLPCStr(section.name);
}

TEST(TheApiPage, HasExamplesThatItsMessagesReadAndWrite)
{
    std::map<const MessageInfo*, Paths> shown;
    for (const ApiPage::Section& section : Page().sections) {
        for (const ApiPage::Example& example : section.examples) {
            if (HasNoFields(section, example))
                continue;
            const auto candidates = Candidates(section, example);
            const auto fitting = std::find_if(candidates.begin(), candidates.end(),
                                              [&](const auto* message) { return Fits(message, example); });
            if (fitting == candidates.end())
                ADD_FAILURE() << section.name << ", line " << example.line << ": " << example.body;
            else
                shown[*fitting].merge(PathsIn(**fitting, example.body));
        }
    }
    for (const MessageInfo* message : DescribedMessages())
        if (message) {
            EXPECT_EQ(shown[message], KeysOf(*message)) << "the examples of \"" << message->key << '"';
        }
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
