#include "TreeDump.h"

#include "UiDataController/Tree/FoldedText.h"
#include "UiDataController/Tree/ResourceTreeModel.h"
#include "UiDataController/Tree/Samples/SampleElements.h"

#include <gtest/gtest.h>

using namespace UiDataController;

namespace {

struct Search
{
    const char* text;
    ResourceOrder order;
    int hits;
    const char* rows;
};

class ASearch : public testing::TestWithParam<Search>
{};

struct Found
{
    const char* text;
    const char* needle;
    int start;
    int length;
};

class AName : public testing::TestWithParam<Found>
{};

} // namespace

TEST_P(ASearch, LeavesHitsWhatTheyStandInAndWhatStandsInThem)
{
    CSampleElements source(siteElements());
    CResourceTreeModel model(source, GetParam().order);
    const std::string before = DumpOf(model);
    model.SetSearch("zzz");
    model.SetSearch(QString::fromUtf8(GetParam().text));
    EXPECT_EQ(DumpOf(model), GetParam().rows);
    EXPECT_EQ(model.Hits(), GetParam().hits);
    model.SetSearch("");
    EXPECT_EQ(DumpOf(model), before);
}

INSTANTIATE_TEST_SUITE_P(OfASite, ASearch,
                         testing::Values(Search{"CAFE", ResourceOrder::ByDevice, 1, "r1(r1/4*)"},
                                         Search{"  bay 2 ", ResourceOrder::ByDevice, 1, "r2(r2/2*)"},
                                         Search{"house", ResourceOrder::ByDevice, 2,
                                                "r2*(r2/1 r2/2 r2/3 r2/4 r2/5) r3*(r3/1 r3/2)"},
                                         Search{"entrance", ResourceOrder::ByGroup, 2,
                                                "g1(g2*(r1/1* r2/4 r3/1))"},
                                         Search{"archive", ResourceOrder::ByGroup, 1, "s1*"},
                                         Search{"مدخل", ResourceOrder::ByGroup, 1, "g1(g2(r2/4*))"},
                                         Search{"gatehouse", ResourceOrder::ByGroup, 0, ""}));

TEST_P(AName, IsFoundWhateverItsCaseAndAccents)
{
    const TextRange found =
        findFolded(QString::fromUtf8(GetParam().text), foldedText(QString::fromUtf8(GetParam().needle)));
    EXPECT_EQ(found.start, GetParam().start);
    EXPECT_EQ(found.length, GetParam().length);
}

INSTANTIATE_TEST_SUITE_P(OfAnyLanguage, AName,
                         testing::Values(Found{"Große Straße", "STRASSE", 6, 6}, Found{"Müller", "ull", 1, 3},
                                         Found{"Muller", "ü", 1, 1}, Found{"cafe\u0301 1", "CAFÉ", 0, 5},
                                         Found{"שָׁלוֹם", "שלום", 0, 7}, Found{"摄像机 3", "像机", 1, 2},
                                         Found{"😀 Gate", "gate", 3, 4}, Found{"Gate", "gates", 0, 0},
                                         Found{"Gate", "", 0, 0}, Found{"한국", "국", 1, 1}));
