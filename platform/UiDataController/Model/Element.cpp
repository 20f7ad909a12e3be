#include "UiDataController/Model/Element.h"

#include <tuple>

namespace UiDataController {

bool ElementInfo::operator==(const ElementInfo& other) const
{
    const auto all = [](const ElementInfo& info) {
        return std::tie(info.id, info.type, info.deviceId, info.groupId, info.name, info.state, info.problem,
                        info.typeCode, info.subType, info.number);
    };
    return all(*this) == all(other);
}

} // namespace UiDataController
