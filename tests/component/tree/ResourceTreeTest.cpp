#include "UiDataController/Tree/ResourceTree.h"
#include "UiDataController/Tree/ResourceTreeView.h"
#include "UiDataController/Tree/Samples/SampleElements.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace UiDataController;
using Kind = ElementChange::Kind;
using testing::ElementsAre;

namespace {

class TheTree : public testing::Test
{
protected:
    TheTree()
    {
        QObject::connect(&tree, &CResourceTree::SignalCurElementChanged,
                         [this](const QID& id) { told.push_back(id.toStdString()); });
        tree.show();
        (void)QTest::qWaitForWindowActive(&tree);
        view->collapse(Row("r2"));
    }

    QModelIndex Row(const char* id) { return tree.Model()->IndexOf(id); }

    CSampleElements source{siteElements()};
    CResourceTree tree{source};
    CResourceTreeView* view = tree.View();
    QLineEdit* field = tree.findChild<QLineEdit*>("resourceSearch");
    std::vector<std::string> told;
};

} // namespace

TEST_F(TheTree, KeepsCurrentElementAndExpansionThroughASearch)
{
    EXPECT_TRUE(tree.SetCurElement("r1/2"));
    QTest::keyClicks(field, "bay");
    EXPECT_EQ(view->currentIndex(), QModelIndex());
    EXPECT_TRUE(view->isExpanded(Row("r2")));
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(view->currentIndex(), Row("r1/2"));
    EXPECT_TRUE(view->isExpanded(Row("r1")));
    EXPECT_FALSE(view->isExpanded(Row("r2")));
    EXPECT_THAT(told, ElementsAre("r1/2"));
}

TEST_F(TheTree, GoesToTheFirstHitByEnter)
{
    QTest::keyClicks(field, "bay");
    EXPECT_TRUE(tree.findChild<QLabel*>("resourceCount")->text().contains('2'));
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClick(view, Qt::Key_Escape);
    EXPECT_EQ(tree.CurElement(), "r2/1");
    EXPECT_EQ(view->currentIndex(), Row("r2/1"));
}

TEST_F(TheTree, TellsThatAnElementIsGoneAlsoWhereASearchHidesIt)
{
    tree.SetCurElement("r1/2");
    tree.SetSearch("bay");
    source.Apply({{Kind::Remove, sampleChannel("r1", 2, "Lobby")}});
    QApplication::processEvents();
    EXPECT_THAT(told, ElementsAre("r1/2", ""));
}

TEST_F(TheTree, ShowsAnElementThatASearchHides)
{
    tree.SetSearch("bay");
    EXPECT_TRUE(tree.SetCurElement("r1/2"));
    EXPECT_EQ(field->text(), "");
    EXPECT_FALSE(tree.SetCurElement("nobody"));
    EXPECT_THAT(told, ElementsAre("r1/2"));
}

TEST_F(TheTree, KeepsCurrentElementAndExpansionWhenAllElementsAreTakenAnew)
{
    tree.SetCurElement("r1/2");
    std::vector<ElementInfo> elements = siteElements();
    elements.erase(elements.begin() + 2);
    elements.insert(elements.begin(), sampleDevice("r0", "First"));
    source.Replace(elements);
    QApplication::processEvents();
    EXPECT_EQ(view->currentIndex(), Row("r1/2"));
    EXPECT_EQ(Row("r1").row(), 1);
    EXPECT_TRUE(view->isExpanded(Row("r1")));
    EXPECT_FALSE(view->isExpanded(Row("r2")));
    EXPECT_THAT(told, ElementsAre("r1/2"));
}

TEST_F(TheTree, SaysWhyItIsEmpty)
{
    const auto sentence = [&] {
        std::string shown;
        for (const QLabel* label : tree.findChildren<QLabel*>("emptyTitle"))
            shown += label->isVisible() ? label->text().toStdString() : "";
        return shown;
    };
    EXPECT_EQ(sentence(), "");
    tree.SetSearch("zzz");
    EXPECT_EQ(sentence(), "Nothing found");
    tree.SetSearch("");
    source.Replace({});
    QApplication::processEvents();
    EXPECT_EQ(sentence(), "No devices yet");
}
