#include "DeviceStructures/Layout.h"

namespace devices {

const Field* Layout::Find(std::string_view member) const
{
    for (const Field& field : *this)
        if (member == field.name)
            return &field;
    return nullptr;
}

} // namespace devices
