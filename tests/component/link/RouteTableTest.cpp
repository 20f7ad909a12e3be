#include "logical/Communication/RouteTable.h"

#include <gtest/gtest.h>

using video::CRouteTable;
using Result = video::CRouteTable::Result;

namespace {

TEST(ARouteTable, ServesExactNamesOnly)
{
    CRouteTable table;
    int served = 0;
    table.Bind("getWndHandle", [&](const lpcclient::LPCCallBackData&) { ++served; });
    EXPECT_EQ(table.Serve("getWndHandle", {}), Result::Served);
    for (const char* other : {"getwndhandle", "getWndHandle ", "getWndHandl", ""})
        EXPECT_EQ(table.Serve(other, {}), Result::Unknown) << other;
    EXPECT_EQ(served, 1);
}

TEST(ARouteTable, KeepsTheOrderOfItsRowsWhenHandlersComeLater)
{
    CRouteTable table;
    table.Declare("b");
    table.Declare("a");
    EXPECT_EQ(table.Serve("a", {}), Result::NobodyServes);
    int first = 0;
    int second = 0;
    table.Bind("a", [&](const lpcclient::LPCCallBackData&) { ++first; });
    table.Bind("a", [&](const lpcclient::LPCCallBackData&) { ++second; });
    table.Declare("a");
    EXPECT_EQ(table.Serve("a", {}), Result::Served);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
    EXPECT_EQ(table.Names(), (std::vector<std::string>{"b", "a"}));
}

} // namespace
