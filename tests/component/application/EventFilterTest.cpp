#include "ui/Application/VantorEventFilter.h"

#include <gtest/gtest.h>

using video::CVantorEventFilter;

namespace {

constexpr unsigned int kSystemKeyDown = 0x104;
constexpr unsigned int kKeyDown = 0x100;
constexpr unsigned int kF4 = 0x73;

struct Row
{
    const char* name;
    const char* eventType;
    unsigned int message;
    unsigned int key;
    bool slotResult;
    bool swallowed;
    int emitted;
};

class ANativeMessage : public testing::TestWithParam<Row>
{};

TEST_P(ANativeMessage, IsSwallowedPassedOnOrLeftAlone)
{
    const Row& row = GetParam();
    CVantorEventFilter filter;
    int emitted = 0;
    MSG native{};
    native.message = row.message;
    native.wParam = row.key;
    long result = 0;
    QObject::connect(&filter, &CVantorEventFilter::SignalEventFilter, [&](MSG* message, long* given) {
        EXPECT_EQ(message, &native);
        EXPECT_EQ(given, &result);
        ++emitted;
        return row.slotResult;
    });
    EXPECT_EQ(filter.nativeEventFilter(row.eventType, &native, &result), row.swallowed);
    EXPECT_EQ(emitted, row.emitted);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ANativeMessage,
    testing::Values(Row{"AltF4", "windows_generic_MSG", kSystemKeyDown, kF4, false, true, 0},
                    Row{"AltF4OfTheDispatcher", "windows_dispatcher_MSG", kSystemKeyDown, kF4, false, true,
                        0},
                    Row{"F4Alone", "windows_generic_MSG", kKeyDown, kF4, false, false, 1},
                    Row{"AltAndAnotherKey", "windows_generic_MSG", kSystemKeyDown, 0x74, false, false, 1},
                    Row{"TakenByTheSlot", "windows_dispatcher_MSG", kKeyDown, 0x41, true, true, 1},
                    Row{"OfAnotherSystem", "xcb_generic_event_t", kSystemKeyDown, kF4, true, false, 0}),
    [](const auto& row) { return row.param.name; });

TEST(ANativeMessageThatNobodyListensTo, IsNotSwallowed)
{
    CVantorEventFilter filter;
    MSG native{};
    long result = 0;
    EXPECT_FALSE(filter.nativeEventFilter("windows_generic_MSG", &native, &result));
}

} // namespace
