#pragma once

#include "DeviceStructures/Commands.h"
#include "DeviceStructures/Values.h"
#include "QxNetSDK/Structures.h"

#include <cstddef>
#include <cstring>

/// Values to set that differ from those that a device has.
namespace other {

inline void ChangeMembers(const devices::Layout& layout, void* structure);

inline void ChangeElement(const devices::Field& field, std::uint8_t* at)
{
    using devices::Kind;
    const auto other = [&](std::int64_t value) { return value == field.max ? field.min : field.max; };
    if (field.kind == Kind::Nested)
        ChangeMembers(field.nested(), at);
    else if (field.kind == Kind::Text)
        std::memcpy(at, at[0] == 'x' ? "y" : "x", 2);
    else if (field.kind == Kind::Octets)
        std::memset(at, static_cast<int>(other(at[0])), field.size);
    else if (field.kind == Kind::Numbers)
        at[0] ^= 1;
    else if (devices::IsNumber(field))
        devices::WriteNumber(field, at, other(devices::ReadNumber(field, at)));
}

/// Gives every member another value within its range.
inline void ChangeMembers(const devices::Layout& layout, void* structure)
{
    for (const devices::Field& field : layout)
        for (std::uint32_t i = 0; i < field.count; ++i)
            ChangeElement(field, static_cast<std::uint8_t*>(structure) + field.offset + i * field.size);
}

template<class Structure>
void Change(std::uint32_t command, Structure& structure)
{
    ChangeMembers(devices::FindCommand(command)->layout(), &structure);
}

/// The first user is the one of the test's session.
inline void Change(std::uint32_t, QxNetUserList& list)
{
    ChangeMembers(*devices::FindLayout("QxNetUser"), &list.users[1]);
}

/// What does not change by itself.
template<class Structure>
Structure Lasting(const Structure& structure)
{
    return structure;
}

inline QxNetClock Lasting(QxNetClock clock)
{
    std::memset(&clock.year, 0, offsetof(QxNetClock, timeServer) - offsetof(QxNetClock, year));
    return clock;
}

/// What a command that cannot be read is given.
template<class Structure>
Structure Order(std::uint32_t command)
{
    Structure order{};
    const devices::Octets fresh = devices::Defaults(devices::FindCommand(command)->layout());
    std::memcpy(&order, fresh.data(), sizeof order);
    return order;
}

template<>
inline QxNetUserPassword Order(std::uint32_t)
{
    QxNetUserPassword order{};
    std::strcpy(order.name, "admin");
    std::strcpy(order.password, "vantor-device");
    return order;
}

/// After the test.
template<>
inline QxNetReboot Order(std::uint32_t)
{
    QxNetReboot order{};
    order.delay = 60;
    return order;
}

} // namespace other
