#include "ui/Application/VantorEventFilter.h"

#include <gtest/gtest.h>

using video::CVantorEventFilter;

namespace {

constexpr unsigned int kSystemKeyDown = 0x104;
constexpr unsigned int kKeyDown = 0x100;
constexpr unsigned int kF4 = 0x73;

TEST(ANativeMessage, IsSwallowedPassedOnOrLeftAlone)
{
    const struct
    {
        const char* name;
        const char* eventType;
        unsigned int message;
        unsigned int key;
        bool slotResult;
        bool swallowed;
        int emitted;
    } rows[] = {{"Alt+F4", "windows_generic_MSG", kSystemKeyDown, kF4, false, true, 0},
                {"Alt+F4 of the dispatcher", "windows_dispatcher_MSG", kSystemKeyDown, kF4, false, true, 0},
                {"F4 alone", "windows_generic_MSG", kKeyDown, kF4, false, false, 1},
                {"Alt and another key", "windows_generic_MSG", kSystemKeyDown, 0x74, false, false, 1},
                {"taken by the slot", "windows_dispatcher_MSG", kKeyDown, 0x41, true, true, 1},
                {"of another system", "xcb_generic_event_t", kSystemKeyDown, kF4, true, false, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
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
}

TEST(ANativeMessageThatNobodyListensTo, IsNotSwallowed)
{
    CVantorEventFilter filter;
    MSG native{};
    long result = 0;
    EXPECT_FALSE(filter.nativeEventFilter("windows_generic_MSG", &native, &result));
}

} // namespace
