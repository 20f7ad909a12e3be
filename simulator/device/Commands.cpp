#include "simulator/device/Commands.h"

#include <algorithm>
#include <array>

namespace simulator {

namespace {

constexpr CommandScope kChannel = CommandScope::Channel;

constexpr std::array<CommandRow, 16> kRows = {{
    {1004, 1005, 508, kChannel},
    {1008, 1009, 2620, kChannel},
    {1240, 0, 2340, kChannel},
    {1252, 1253, 92, kChannel},
    {1278, 0, 160, kChannel},
    {1280, 1281, 1840, kChannel},
    {1282, 1283, 596, kChannel},
    {1290, 1291, 456, kChannel},
    {6118, 6119, 36, kChannel},
    {6179, 6180, 77140, kChannel},
    {5052, 5051, 31876, kChannel},
    {3287, 3288, 128, kChannel},
    {3209, 3210, 15332, kChannel},
    {3366, 3367, 920, kChannel},
    {20001, 0, 256, CommandScope::Device},
    {20002, 0, 5152, kChannel},
}};

const CommandRow* Find(unsigned command, unsigned CommandRow::*member)
{
    const auto row = std::find_if(kRows.begin(), kRows.end(),
                                  [&](const CommandRow& known) { return known.*member == command; });
    return command == 0 || row == kRows.end() ? nullptr : &*row;
}

} // namespace

const CommandRow* FindGet(unsigned command)
{
    return Find(command, &CommandRow::get);
}

const CommandRow* FindSet(unsigned command)
{
    return Find(command, &CommandRow::set);
}

} // namespace simulator
