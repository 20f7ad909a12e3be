#include "SettingsWorld.h"
#include "logical/System/ToolbarConfig.h"

#include <gmock/gmock.h>

using namespace settings;
using testing::ElementsAre;
using vantor::ToolbarStruct;

namespace {

struct ToolbarWorld : Database
{
    struct Observer : Listener<vantor::IToolbarConfigObserver>
    {
        void OnToolbarConfigChanged(const Param& param) override { Note(param.type); }
    };

    Observer observer; ///< outlives those who call it
    Base::CMessageLoop loop{"notify"};
    std::string rowsWhenSent;
    video::CToolbarConfig config{connection, loop, [this] { rowsWhenSent += Rows() + "."; }};

    ToolbarWorld() { config.AddObserver(&observer); }

    std::string Rows() { return Ask("SELECT count(*) FROM Toolbar"); }
    void AddRow(int position, bool shown, int showId, int marker)
    {
        Run("INSERT INTO Toolbar VALUES(" + std::to_string(position) + ", " + std::to_string(shown) + ", " +
            std::to_string(showId) + ", " + std::to_string(marker) + ")");
    }
    /// Rows in which position i shows button i, but for positions 5 and 7, which have changed places.
    void AddRows(int count, int marker)
    {
        for (int i = 0; i < count; ++i)
            AddRow(i, i % 2 == 0, i == 5 ? 7 : i == 7 ? 5 : i, marker);
    }
    ToolbarStruct Loaded()
    {
        config.Load();
        return config.Layout();
    }
};

TEST(Toolbar, ComesBackAsItWasSavedAndIsOfThisRelease)
{
    ToolbarWorld world;
    EXPECT_EQ(world.Loaded(), ToolbarStruct());
    ToolbarStruct& layout = world.config.Working();
    layout.shown = {};
    layout.shown[3] = true;
    std::swap(layout.showIds[0], layout.showIds[25]);
    const ToolbarStruct changed = layout;
    world.config.Apply();
    world.config.Apply();
    EXPECT_EQ(world.rowsWhenSent, "26.") << "an unchanged layout is not announced";
    EXPECT_EQ(world.Ask("SELECT DISTINCT iRemoteConfigHideFixed FROM Toolbar"), "1");
    EXPECT_EQ(world.Loaded(), changed);
    world.config.RestoreDefaults();
    world.config.RestoreDefaults();
    EXPECT_EQ(world.rowsWhenSent, "26.0.0.") << "restoring is always announced";
    Deliver(world.loop);
    EXPECT_EQ(world.observer.heard, "0 0") << "the second time nothing changed";
    EXPECT_EQ(world.Loaded(), ToolbarStruct());
}

TEST(ToolbarOfAnEarlierRelease, LosesTheButtonThatThereIsNoMore)
{
    ToolbarWorld world;
    world.AddRows(17, 0);
    const CapturedLog log;
    const ToolbarStruct layout = world.Loaded();
    for (int i = 0; i < 16; ++i) {
        const int was = i < 5 ? i : i + 1;
        const int id = was == 7 ? 5 : was > 7 ? was - 1 : was;
        EXPECT_EQ(layout.showIds[static_cast<std::size_t>(i)], id) << i;
        EXPECT_EQ(layout.shown[static_cast<std::size_t>(i)], was % 2 == 0) << i;
    }
    EXPECT_EQ(layout.showIds[16], 16) << "a position that no row names";
    const auto lines = log.Messages(Base::LogLevel::Info);
    ASSERT_EQ(lines.size(), 18u);
    EXPECT_EQ(lines[0], "0 == iRemoteConfigHideFixed");
    EXPECT_EQ(lines[1], "iShowID == 7 is removed, uKeyNum:6, bShow:1");
    EXPECT_EQ(lines[2], "toolbar fixed:0, iShowID:0, bShow:1");
    EXPECT_EQ(lines[8], "toolbar fixed:6, iShowID:5, bShow:0");
    EXPECT_EQ(lines[17], "toolbar fixed:15, iShowID:15, bShow:1");
}

TEST(ToolbarRows, AreTakenAsTheyAreUnlessTheyAreExactlyThoseOfTheEarlierRelease)
{
    for (const auto& [count, marker] : {std::pair(17, 1), std::pair(16, 0), std::pair(18, 0)}) {
        ToolbarWorld world;
        world.AddRows(count, marker);
        EXPECT_EQ(world.Loaded().showIds[5], 7) << count << " rows marked " << marker;
    }
    ToolbarWorld lastIsRemoved;
    for (int i = 0; i < 17; ++i)
        lastIsRemoved.AddRow(i, true, i == 16 ? 7 : 1, 0);
    const CapturedLog log;
    EXPECT_EQ(lastIsRemoved.Loaded().showIds[15], 1);
    EXPECT_TRUE(log.Has("iShowID == 7 is removed, uKeyNum:16, bShow:1")) << "no row moved into its place";
}

TEST(ToolbarRows, OutsideThePositionsAreLeftOutAndAMissingTableIsTheDefault)
{
    ToolbarWorld world;
    world.AddRow(26, true, 3, 1);
    world.AddRow(-1, false, 4, 1);
    const CapturedLog log;
    EXPECT_EQ(world.Loaded(), ToolbarStruct());
    EXPECT_THAT(log.Messages(Base::LogLevel::Info), ElementsAre("uKeyNum overflow:26, iShowID:3, bShow:1",
                                                                "uKeyNum overflow:-1, iShowID:4, bShow:0"));
    world.Run("DROP TABLE Toolbar");
    EXPECT_EQ(world.Loaded(), ToolbarStruct());
}

} // namespace
