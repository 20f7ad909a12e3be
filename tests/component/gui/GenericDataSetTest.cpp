#include "VantorGUIToolkit/GenericDataSet.h"
#include "support/CapturedLog.h"
#include "support/FileContent.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <set>

using VantorGUIToolkit::CGenericDataSet;
using VantorGUIToolkit::DataElement;

namespace {

QByteArray Nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

QByteArray Many(int elements)
{
    return "<r>" + QByteArray("<e/>").repeated(elements - 1) + "</r>";
}

QByteArray Comment(std::size_t bytes)
{
    const QByteArray frame = "<r><!---->"
                             "</r>";
    return "<r><!--" + QByteArray(static_cast<int>(bytes) - frame.size(), 'x') + "--></r>";
}

} // namespace

TEST(GenericDataSet, GivesElementsAttributesAndTexts)
{
    CGenericDataSet set;
    ASSERT_TRUE(
        set.loadContent("<?xml version=\"1.0\"?><Config version='3'>\n <!-- words --> text &lt;1&gt; "
                        "<Page name='M&#228;in'><Splitter sizes='1,2'/></Page><Page name='B' width='-12'>"
                        "<![CDATA[<raw>]]></Page> more </Config>",
                        "row"));
    const DataElement& root = set.root();
    EXPECT_EQ(root.name, "Config");
    EXPECT_EQ(root.text, "text <1>  more");
    EXPECT_EQ(root.IntAttribute("version", 0), 3);
    ASSERT_EQ(root.children.size(), 2U);
    EXPECT_EQ(root.children[0].Attribute("name"), "M\xC3\xA4in");
    EXPECT_EQ(root.children[1].text, "<raw>");
    EXPECT_EQ(root.children[1].IntAttribute("width", 0), -12);
    EXPECT_EQ(root.children[1].IntAttribute("name", 5), 5);
    EXPECT_EQ(root.children[1].IntAttribute("height", 6), 6);
    ASSERT_NE(root.Find("Page/Splitter"), nullptr);
    EXPECT_EQ(root.Find("Page/Splitter")->Attribute("sizes"), "1,2");
    EXPECT_EQ(root.Find("Page/None/Splitter"), nullptr);
    EXPECT_EQ(root.Find(""), nullptr);
    EXPECT_EQ(root.Child("Other"), nullptr);
}

TEST(GenericDataSet, TakesWhatIsJustWithinTheLimits)
{
    const std::pair<const char*, QByteArray> rows[] = {
        {"the smallest", "<Config/>"},
        {"the deepest", Nested(CGenericDataSet::kMaxDepth)},
        {"the most elements", Many(CGenericDataSet::kMaxElements)},
        {"the largest", Comment(CGenericDataSet::kMaxBytes)},
        {"a byte order mark", "\xEF\xBB\xBF<Config/>"},
        {"sixteen bits a letter", QByteArray("\xFF\xFE<\0C\0/\0>\0", 10)},
        {"Latin-1", "<?xml version='1.0' encoding='ISO-8859-1'?><C>\xE4</C>"},
    };
    for (const auto& [name, content] : rows) {
        CGenericDataSet set;
        EXPECT_TRUE(set.loadContent(content, name)) << name;
        EXPECT_FALSE(set.root().name.empty()) << name;
    }
}

TEST(GenericDataSet, RefusesBadContentWithOneLineAndKeepsNothing)
{
    const std::tuple<const char*, QByteArray, const char*> rows[] = {
        {"nothing", "", "empty"},
        {"blanks", "  \n ", "line"},
        {"no mark-up", "Config", "line 1"},
        {"not closed", "<Config>\n<Page>\n</Config>", "line 3"},
        {"cut inside a tag", "<Config><Page na", "line 1"},
        {"two outermost elements", "<Config/><Config/>", "line 1"},
        {"an attribute twice", "<Config a='1' a='2'/>", "line 1"},
        {"zero bytes", QByteArray("<Config>\0\0</Config>", 19), "line 1"},
        {"no UTF-8", "<Config>\xFF\xFE\xFA</Config>", "line 1"},
        {"an encoding that nobody knows", "<?xml version='1.0' encoding='x-none'?><Config/>", "line 1"},
        {"an entity that nobody declared", "<Config>&none;</Config>", "line 1"},
        {"entities that grow",
         "<!DOCTYPE c [<!ENTITY a 'xxxxxxxxxx'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;'>"
         "<!ENTITY d '&b;&b;&b;&b;&b;&b;&b;&b;'><!ENTITY e '&d;&d;&d;&d;&d;&d;&d;&d;'>]><c>&e;&e;&e;</c>",
         "line 1"},
        {"an entity that is a file", "<!DOCTYPE c [<!ENTITY f SYSTEM 'file:///etc/hostname'>]><c>&f;</c>",
         "document type"},
        {"a document type elsewhere", "<!DOCTYPE c SYSTEM 'http://localhost:1/c.dtd'><c/>", "document type"},
        {"too deep", Nested(CGenericDataSet::kMaxDepth + 1), "deeper"},
        {"deep beyond measure", QByteArray("<a>").repeated(1'000'000), "deeper"},
        {"too many elements", Many(CGenericDataSet::kMaxElements + 1), "elements"},
        {"too large", Comment(CGenericDataSet::kMaxBytes + 1), "larger"},
    };
    for (const auto& [name, content, reason] : rows) {
        CGenericDataSet set;
        ASSERT_TRUE(set.loadContent("<Config><Page/></Config>", "before"));
        CapturedLog log;
        EXPECT_FALSE(set.loadContent(content, name)) << name;
        EXPECT_TRUE(set.root().name.empty()) << name;
        EXPECT_TRUE(set.root().children.empty()) << name;
        const auto lines = log.Lines();
        ASSERT_EQ(lines.size(), 1U) << name;
        EXPECT_NE(lines[0].message.find(name), std::string::npos) << lines[0].message;
        EXPECT_NE(lines[0].message.find(reason), std::string::npos) << name << ": " << lines[0].message;
    }
}

TEST(GenericDataSet, RefusesPathsThatAreNoFile)
{
    TestDataRoot root;
    CGenericDataSet set;
    EXPECT_FALSE(set.load(QString::fromStdString(root.Path() + "missing.xml")));
    EXPECT_FALSE(set.load(QString::fromStdString(root.Path())));
    EXPECT_FALSE(set.load(QString()));
}

TEST(GenericDataSet, EveryCutOfTheDefaultLayoutIsRefused)
{
    const QByteArray layout = QByteArray::fromStdString(FileContent(DEFAULT_WIDGET_LAYOUT)).trimmed();
    CGenericDataSet set;
    for (int size = 0; size < layout.size(); size += 7)
        EXPECT_FALSE(set.loadContent(layout.left(size), "cut")) << size;
    EXPECT_FALSE(set.loadContent(layout.chopped(1), "cut"));
    EXPECT_TRUE(set.loadContent(layout, "whole"));
}

TEST(GenericDataSet, TheDefaultLayoutGivesEveryWindowASize)
{
    CGenericDataSet set;
    ASSERT_TRUE(set.load(DEFAULT_WIDGET_LAYOUT));
    EXPECT_EQ(set.root().name, "Config");
    std::set<std::string> windows;
    for (const DataElement& page : set.root().children) {
        windows.insert(page.Attribute("name"));
        EXPECT_GE(page.IntAttribute("width", 0), 400) << page.Attribute("name");
        EXPECT_GE(page.IntAttribute("height", 0), 300) << page.Attribute("name");
    }
    const std::set<std::string> all = {
        "MainView",      "RemotePlayback", "EncodingDevice",    "AuxiliaryScreen", "SecondLiveView",
        "ThirdLiveView", "FourthLiveView", "StoragePlan",       "RecordSchedule",  "BroadcastWID",
        "AlarmOutput",   "Wiper",          "StreamMediaServer", "VideoFile",       "SnapshotFile"};
    EXPECT_EQ(windows, all);
}
