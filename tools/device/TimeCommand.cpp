#include "device/Commands.h"
#include "device/Tool.h"

#include "Base/StringUtil.h"
#include "Base/TimeUtil.h"
#include "DeviceStructures/ClockTime.h"
#include "DeviceStructures/Text.h"
#include "QxNetSDK/Structures.h"

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <ostream>

namespace devicetool {

namespace {

using Base::StringUtil::Format;

/// Minutes by which this computer's clock is east of UTC.
std::int32_t ComputersZone(std::time_t now)
{
    const std::tm local = *std::localtime(&now);
    const std::string shown = Format("%04d-%02d-%02d %02d:%02d:%02d", local.tm_year + 1900, local.tm_mon + 1,
                                     local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
    return static_cast<std::int32_t>((Base::TimeUtil::StrDatetime2TimeT(shown).value_or(now) - now) / 60);
}

void PutNow(QxNetClock& clock)
{
    const std::time_t now = std::time(nullptr);
    clock.zone = ComputersZone(now);
    devices::PutClockTime(now + 60 * clock.zone, clock);
}

void ShowClock(Context& context, const QxNetClock& clock)
{
    context.out << Format("%04u-%02u-%02u %02u:%02u:%02u %c%02d:%02d", clock.year, clock.month, clock.day,
                          clock.hour, clock.minute, clock.second, clock.zone < 0 ? '-' : '+',
                          std::abs(clock.zone) / 60, std::abs(clock.zone) % 60);
    if (clock.timeServer)
        context.out << ", set by the time server " << devices::Visible(clock.serverAddress);
    context.out << "\n";
}

} // namespace

int RunTime(Context& context)
{
    std::string text;
    for (const std::string& word : context.invocation.words)
        text += (text.empty() ? "" : " ") + word;
    const auto moment = Base::TimeUtil::StrDatetime2TimeT(text);
    if (!text.empty() && text != "now" && !moment)
        return context.WrongUse("the time must be now, or of the form 2026-03-01 12:00:00");
    const auto& command = *devices::FindCommand(QXNET_GET_CLOCK);
    devices::Octets octets;
    if (!context.device.Get(command, 0, octets))
        return context.Failed("time");
    QxNetClock clock{};
    std::memcpy(&clock, octets.data(), sizeof(clock));
    if (text.empty()) {
        if (context.Json())
            Show(context, command.layout(), octets);
        else
            ShowClock(context, clock);
        return kGood;
    }
    if (moment)
        devices::PutClockTime(*moment, clock);
    else
        PutNow(clock);
    std::memcpy(octets.data(), &clock, sizeof(clock));
    if (const auto fault = devices::Check(command.layout(), octets.data(), octets.size()))
        return context.WrongUse(*fault);
    return context.device.Set(command, 0, octets) ? kGood : context.Failed("time");
}

} // namespace devicetool
