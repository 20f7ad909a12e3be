#include "UiDataController/Model/ElementTable.h"

#include <gmock/gmock.h>

#include <map>
#include <random>

using namespace UiDataController;

namespace {

using Kind = ElementChange::Kind;

ChannelHeard Heard(int number, ElementState state, const char* name = "")
{
    return {number, state, name};
}

/// "+id" for an addition, "~id" for a change, "-id" for a removal.
std::string Shape(const ElementChanges& changes)
{
    std::string shape;
    for (const ElementChange& change : changes)
        shape += std::string(shape.empty() ? "" : " ") + "+~-"[static_cast<int>(change.kind)] +
                 change.element.id.toStdString();
    return shape;
}

struct Step
{
    const char* name;
    ModelEdits edits;
    const char* shape;
};

const Step kSteps[] = {
    {"a channel of an unknown device is left out", {ChannelResource{"c1", "d", "", "", 1}}, ""},
    {"a device, a group and channels in any order",
     {DeviceResource{"d", "Door", "host", 1, 0}, ChannelResource{"c2", "d", "g", "", 2},
      ChannelResource{"c1", "d", "g", "One", 1}, GroupResource{"g", "top", "Group"}},
     "+d +c2 +c1 +g ~c1 ~c2"},
    {"the same once more",
     {DeviceResource{"d", "Door", "host", 1, 0}, GroupResource{"g", "top", "Group"}},
     ""},
    {"a group above that comes later", {GroupResource{"top", "", "Top"}}, "+top ~g"},
    {"a group may not stand below itself", {GroupResource{"top", "g", "Top"}}, ""},
    {"a device comes online and names a channel",
     {DeviceHeard{"d", ElementState::Online, "", 7, 6, {Heard(1, ElementState::Recording, "Gate")}}},
     "~d ~c1 ~c2"},
    {"a channel gets another number", {ChannelResource{"c2", "d", "g", "", 3}}, "~c2"},
    {"exactly one channel is in the group", {GroupMembers{"g", {"c2", "unknown"}}}, "~c1"},
    {"a circle of groups is open where it was closed last",
     {GroupResource{"x", "y", "X"}, GroupResource{"y", "z", "Y"}, GroupResource{"z", "x", "Z"}},
     "+x +y ~x +z"},
    {"and none when one of them leaves it", {GroupResource{"x", "", "X"}}, "~x ~y"},
    {"groups of the circle go", {Removal{"x"}}, "-y -z -x"},
    {"groups go with those below; their channels stay", {Removal{"top"}}, "~c2 -g -top"},
    {"all other channels go", {KeepOnly{"d", {"c2"}}}, "-c1"},
    {"another type is another element", {DeviceResource{"d", "Door", "host", 128, 0}}, "-c2 -d +d"},
    {"channels go before their device",
     {ChannelResource{"b", "d", "", "", 2}, ChannelResource{"a", "d", "", "", 1}, Removal{"d"}},
     "+b +a -a -b -d"},
    {"an element without identifier is none", {DeviceResource{}, ChannelResource{}, GroupResource{}}, ""},
};

TEST(TheElements, ChangeAsTheStepsSay)
{
    CElementTable table;
    for (const Step& step : kSteps) {
        std::string shape = Shape(table.Apply(step.edits));
        if (shape == "+d +c2 +c1 +g ~c2 ~c1") // the channels of a group come in no order
            shape = "+d +c2 +c1 +g ~c1 ~c2";
        EXPECT_EQ(shape, step.shape) << step.name;
    }
    EXPECT_TRUE(table.All().empty());
}

TEST(AChannel, ShowsWhatItsDeviceTellsAndElseWhatTheFrameworkTold)
{
    CElementTable table;
    table.Apply({DeviceResource{"d", "", "host", 1, 0}, ChannelResource{"c1", "d", "", "Own", 1},
                 ChannelResource{"c2", "d", "", "", 2}});
    EXPECT_EQ(table.Find("c1")->state, ElementState::Connecting);
    EXPECT_EQ(table.Find("c2")->name, "host 2");
    table.Apply(
        {DeviceHeard{"d",
                     ElementState::Online,
                     "",
                     15,
                     6,
                     {Heard(3, ElementState::NotSupported, "Late"), Heard(1, ElementState::Recording)}}});
    EXPECT_EQ(table.Find("c1")->state, ElementState::Recording);
    EXPECT_EQ(table.Find("c1")->name, "Own");
    EXPECT_EQ(table.Find("c1")->subType, 6);
    EXPECT_EQ(table.Find("c2")->state, ElementState::Offline) << "its device does not tell of it";
    table.Apply({ChannelResource{"c3", "d", "", "Third", 3}});
    EXPECT_EQ(table.Find("c3")->name, "Late");
    EXPECT_EQ(table.Find("c3")->state, ElementState::NotSupported);
    const ModelCounts counts = table.Counts();
    EXPECT_EQ(counts.devicesOnline, 1u);
    EXPECT_EQ(counts.channelsOnline, 1u);
    table.Apply({DeviceHeard{"d", ElementState::Offline, "why", 0, 0, {}}});
    EXPECT_EQ(table.Find("c1")->problem, "why");
    EXPECT_EQ(table.Find("c3")->state, ElementState::Offline);
}

// The framework hears of a device's kind from the device itself, as do the sessions, which then tell no more.
TEST(ADevice, KeepsWhatWasHeardOfItWhenItTurnsOutToBeAStorageServer)
{
    CElementTable table;
    table.Apply({DeviceResource{"s", "Store", "host", 0, 0}, ChannelResource{"c", "s", "", "One", 1}});
    table.Apply({DeviceHeard{"s", ElementState::Online, "", 128, 0, {Heard(1, ElementState::Recording)}}});
    table.Apply({DeviceResource{"s", "Store", "host", 128, 0}, ChannelResource{"c", "s", "", "One", 1}});
    EXPECT_EQ(table.Find("s")->type, ElementType::StorageServer);
    EXPECT_EQ(table.Find("s")->state, ElementState::Online);
    EXPECT_EQ(table.Find("c")->state, ElementState::Recording);
}

/// Edits of few identifiers, so that they meet; nonsense among them.
class RandomEdits
{
public:
    ModelEdits Next()
    {
        ModelEdits edits;
        for (int count = Below(6); count >= 0; --count)
            edits.push_back(One());
        return edits;
    }

private:
    int Below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    QID Id(const char* kind, int limit) { return kind + QString::number(Below(limit)); }
    ElementState State() { return static_cast<ElementState>(Below(3)); }

    ModelEdit One()
    {
        switch (Below(9)) {
        case 0:
            return DeviceResource{Id("d", 4), Id("name", 3), "host", Below(4) ? 1 : 128, 0};
        case 1:
        case 2:
            return ChannelResource{Id("c", 20), Id("d", 5), Id("g", 6), Id("name", 3), Below(5)};
        case 3:
            return GroupResource{Id("g", 5), Id("g", 6), Id("name", 3)};
        case 4:
            return GroupMembers{Id("g", 6), {Id("c", 20), Id("c", 20)}};
        case 5:
            return Removal{Below(2) ? Id("c", 20) : Id("g", 5)};
        case 6:
            return Removal{Id("d", 4)};
        case 7:
            return KeepOnly{Below(8) ? Id("d", 4) : QID(), {"d0", "d1", "g1", Id("c", 20), Id("c", 20)}};
        default:
            return DeviceHeard{Id("d", 5), State(), Id("p", 2), Below(3), 0, {Heard(Below(4), State(), "n")}};
        }
    }

    std::mt19937 m_random{20240503};
};

/// What somebody has who only hears of changes.
class Listener
{
public:
    void Hear(const ElementChanges& changes)
    {
        for (const ElementChange& change : changes) {
            const auto known = m_elements.find(change.element.id);
            ASSERT_EQ(known == m_elements.end(), change.kind == Kind::Add);
            if (change.kind == Kind::Remove) {
                ASSERT_EQ(known->second, change.element);
                m_elements.erase(known);
            } else {
                ASSERT_TRUE(change.kind == Kind::Add || known->second.type == change.element.type);
                m_elements[change.element.id] = change.element;
            }
            ASSERT_TRUE(IsWhole(change.element)) << "a moment without what it stands below";
        }
    }

    bool IsWhole(const ElementInfo& element) const
    {
        return (element.deviceId.isEmpty() || m_elements.count(element.deviceId)) &&
               (element.groupId.isEmpty() || m_elements.count(element.groupId));
    }
    const std::map<QID, ElementInfo>& Elements() const { return m_elements; }

private:
    std::map<QID, ElementInfo> m_elements;
};

TEST(Changes, AppliedToAnEarlierStateGiveTheNewOne)
{
    CElementTable table;
    Listener listener;
    RandomEdits edits;
    for (int round = 0; round < 5000; ++round) {
        ASSERT_NO_FATAL_FAILURE(listener.Hear(table.Apply(edits.Next())));
        std::map<QID, ElementInfo> all;
        const ElementInfo* before = nullptr;
        const std::vector<ElementInfo> elements = table.All();
        for (const ElementInfo& element : elements) {
            const bool isBelowLater = element.type == ElementType::Group && !element.groupId.isEmpty() &&
                                      !all.count(element.groupId);
            ASSERT_FALSE(isBelowLater);
            const bool isSibling =
                before && element.type == ElementType::Channel && before->deviceId == element.deviceId;
            ASSERT_TRUE(!isSibling ||
                        std::tie(before->number, before->id) < std::tie(element.number, element.id));
            all[element.id] = element;
            before = &element;
        }
        ASSERT_EQ(all.size(), elements.size());
        ASSERT_EQ(all, listener.Elements()) << round;
    }
}

} // namespace
