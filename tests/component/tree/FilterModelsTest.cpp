#include "TreeDump.h"

#include "UiDataController/Tree/ResourceTreeModel.h"
#include "UiDataController/Tree/Samples/SampleElements.h"
#include "UiDataController/Tree/SortFilterModels.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

using namespace UiDataController;

namespace {

/// The two models on each other, as a dialog uses them that offers other elements than the current one.
struct Offered
{
    Offered(CSampleElements& source, int role, const QID& current) : model(source)
    {
        secondary.SetSecondaryFilterRole(role);
        secondary.setSourceModel(&model);
        proxy.setFilterRole(662);
        proxy.SetExcluded(current);
        proxy.setSourceModel(&secondary);
    }

    CResourceTreeModel model;
    CSecondarySortFilterModel secondary;
    CSortFilterProxyModel proxy;
};

} // namespace

TEST(FilterModels, OfferChannelsOrStorageServersButTheCurrentElement)
{
    std::vector<ElementInfo> elements = siteElements();
    elements.push_back(sampleServer("s2", "Archive south"));
    elements.push_back(sampleDevice("r4", "Without channels"));
    CSampleElements source(elements);
    Offered channels(source, 767, "r1/2");
    EXPECT_EQ(DumpOf(channels.proxy), "r1(r1/1 r1/3 r1/4) r2(r2/1 r2/2 r2/3 r2/4 r2/5) r3(r3/1 r3/2)");
    Offered servers(source, 771, "s1");
    EXPECT_EQ(DumpOf(servers.proxy), "s2");
}

TEST(FilterModels, FollowTheTree)
{
    CSampleElements source(siteElements());
    Offered channels(source, 767, "r1/2");
    const QAbstractItemModelTester tester(&channels.proxy,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    ElementInfo barrier = sampleChannel("r3", 1, "Barrier");
    source.Apply(
        {{ElementChange::Kind::Remove, barrier}, {ElementChange::Kind::Remove, sampleChannel("r3", 2, "")}});
    source.Apply({{ElementChange::Kind::Add, sampleDevice("r4", "New")}});
    source.Apply({{ElementChange::Kind::Add, sampleChannel("r4", 1, "Channel")}});
    QCoreApplication::processEvents();
    EXPECT_EQ(DumpOf(channels.proxy), "r1(r1/1 r1/3 r1/4) r2(r2/1 r2/2 r2/3 r2/4 r2/5) r4(r4/1)");
    channels.model.SetSearch("bay");
    EXPECT_EQ(DumpOf(channels.proxy), "r2(r2/1* r2/2*)");
}

TEST(FilterModels, SortNumbersByTheirValue)
{
    CSampleElements source({sampleDevice("a", "Recorder 10"), sampleDevice("b", "recorder 2"),
                            sampleDevice("c", "Recorder 1"), sampleServer("d", "Archive")});
    CResourceTreeModel model(source);
    CSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.sort(0);
    EXPECT_EQ(DumpOf(proxy), "d c b a");
}
