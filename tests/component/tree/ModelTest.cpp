#include "RandomSite.h"
#include "TreeDump.h"

#include "UiDataController/Tree/ResourceTreeModel.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QSignalSpy>

#include <thread>

using namespace UiDataController;
using Kind = ElementChange::Kind;

namespace {

struct Following
{
    ResourceOrder order;
    const char* search;
};

class TheModel : public testing::TestWithParam<Following>
{};

std::string FreshDump(CSampleElements& source)
{
    CResourceTreeModel fresh(source, TheModel::GetParam().order);
    fresh.SetSearch(TheModel::GetParam().search);
    return DumpOf(fresh);
}

QModelIndex AnyIndex(const QAbstractItemModel& model, RandomSite& site, const QModelIndex& parent = {})
{
    const int rows = model.rowCount(parent);
    const QModelIndex index = rows ? model.index(site.Below(rows), 0, parent) : QModelIndex();
    return index.isValid() && site.Below(3) ? AnyIndex(model, site, index)
                                            : (index.isValid() ? index : parent);
}

} // namespace

TEST_P(TheModel, FollowsItsSourceThroughAnyChangesAndKeepsPersistentRows)
{
    CSampleElements source(siteElements());
    CResourceTreeModel model(source, GetParam().order);
    model.SetSearch(GetParam().search);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    RandomSite site(source);
    for (int step = 0; step < 600; ++step) {
        const QPersistentModelIndex held = AnyIndex(model, site);
        const QString id = held.data(ElementIdRole).toString();
        std::thread told([&] {
            for (int sets = 1 + step % 2; sets > 0; --sets)
                source.Apply(site.Next());
            if (step % 20 == 0)
                source.ApplyInSecret(site.Next()); // and the next set tells that one was missed
            if (step % 50 == 0)
                source.Replace(source.Snapshot().elements);
        });
        told.join();
        QCoreApplication::processEvents();
        if (step % 20 == 0)
            continue;
        ASSERT_EQ(DumpOf(model), FreshDump(source)) << "step " << step;
        EXPECT_EQ(held.data(ElementIdRole).toString(), model.IndexOf(id).data(ElementIdRole).toString());
    }
}

INSTANTIATE_TEST_SUITE_P(InEitherOrder, TheModel,
                         testing::Values(Following{ResourceOrder::ByDevice, ""},
                                         Following{ResourceOrder::ByGroup, ""},
                                         Following{ResourceOrder::ByDevice, "a"},
                                         Following{ResourceOrder::ByGroup, "b"}));

TEST(ResourceTreeModel, OrdersByDeviceAndByGroup)
{
    CSampleElements source(siteElements());
    CResourceTreeModel model(source);
    EXPECT_EQ(DumpOf(model), "r1(r1/1 r1/2 r1/3 r1/4) r2(r2/1 r2/2 r2/3 r2/4 r2/5) r3(r3/1 r3/2) s1");
    const QPersistentModelIndex held = model.IndexOf("r2/4");
    model.SetOrder(ResourceOrder::ByGroup);
    EXPECT_EQ(held.parent().data(), "Entrances");
    EXPECT_EQ(DumpOf(model), "g1(g2(r1/1 r2/4 r3/1) r1/4 r2/1 r2/2) g3(r1/2 r1/3 r2/3 r2/5) r3/2 s1");
}

TEST(ResourceTreeModel, BringsElementsTogetherInWhateverOrderTheyCome)
{
    const ElementChanges changes = {
        {Kind::Add, sampleChannel("r9", 2, "Channel", ElementState::Online, "g9")},
        {Kind::Add, sampleGroup("g9", "Group", "g8")},
        {Kind::Add, sampleGroup("g8", "Above", "g9")},
        {Kind::Add, sampleDevice("r9", "Device")}};
    CSampleElements source;
    CResourceTreeModel byDevice(source);
    CResourceTreeModel byGroup(source, ResourceOrder::ByGroup);
    source.Apply(changes);
    QCoreApplication::processEvents();
    EXPECT_EQ(DumpOf(byDevice), "r9(r9/2)");
    EXPECT_EQ(DumpOf(byGroup), "g9(g8 r9/2)") << "a circle of groups stays in sight";
}

TEST(ResourceTreeModel, MakesRowsOnlyWhenTheyAreAskedFor)
{
    CSampleElements source(siteElements());
    CResourceTreeModel model(source);
    const QModelIndex device = model.IndexOf("r1");
    EXPECT_EQ(model.rowCount(device), 0);
    EXPECT_TRUE(model.hasChildren(device));
    source.Apply({{Kind::Add, sampleChannel("r1", 9, "New")}});
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QCoreApplication::processEvents();
    EXPECT_EQ(inserted.count(), 0);
    EXPECT_EQ(model.IndexOf("r1/9").row(), 4);
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(device.data(ChannelsRole), 5);
}

TEST(ResourceTreeModel, TellsEachChangeByItself)
{
    CSampleElements source(siteElements());
    CResourceTreeModel model(source);
    (void)model.IndexOf("r1/1");
    QSignalSpy removing(&model, &QAbstractItemModel::rowsAboutToBeRemoved);
    const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    int layouts = 0;
    QObject::connect(&model, &QAbstractItemModel::layoutChanged, [&] { ++layouts; });
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    ElementInfo lobby = sampleChannel("r1", 2, "Lobby", ElementState::Offline);
    lobby.problem = "<No> picture";
    source.Apply({{Kind::Change, lobby}, {Kind::Remove, sampleChannel("r1", 3, "Reception")}});
    QCoreApplication::processEvents();
    const QModelIndex index = model.IndexOf("r1/2");
    EXPECT_EQ(changed.takeFirst().at(0).toModelIndex(), index);
    EXPECT_EQ(removing.at(0).at(1), 2);
    EXPECT_EQ(reset.count() + layouts, 0);
    EXPECT_TRUE(index.data(Qt::ToolTipRole).toString().contains("&lt;No&gt; picture"));
    EXPECT_EQ(index.data(ElementStateRole), int(ElementState::Offline));
    EXPECT_EQ(index.data(ProblemRole), "<No> picture");
}

TEST(ResourceTreeModel, TakesAllElementsAnewWhenItWasLeftBehind)
{
    CSampleElements source(siteElements());
    CResourceTreeModel model(source);
    ElementInfo lobby = sampleChannel("r1", 2, "Lobby");
    for (std::size_t sent = 0; sent <= CElementFeed::kMostWaiting; ++sent) {
        lobby.name = QString::number(sent);
        source.Apply({{Kind::Change, lobby}});
    }
    source.Apply({{Kind::Remove, sampleChannel("r1", 1, "Entrance")}});
    int layouts = 0;
    QObject::connect(&model, &QAbstractItemModel::layoutChanged, [&] { ++layouts; });
    QCoreApplication::processEvents();
    EXPECT_EQ(layouts, 1);
    EXPECT_EQ(model.IndexOf("r1/2").data(), QString::number(CElementFeed::kMostWaiting));
    EXPECT_FALSE(model.Has("r1/1"));
}

TEST(ResourceTreeModel, GivesIdentifiersToADrag)
{
    CSampleElements source(siteElements());
    CResourceTreeModel model(source);
    const std::unique_ptr<QMimeData> data(model.mimeData({model.IndexOf("r1/2"), model.IndexOf("s1")}));
    EXPECT_EQ(CResourceTreeModel::IdsOf(*data), (std::vector<QID>{"r1/2", "s1"}));
    data->setData(CResourceTreeModel::kMimeType, "[1, {\"a\": \"b\"}, \"r2\"");
    EXPECT_TRUE(CResourceTreeModel::IdsOf(*data).empty());
}
