#include "UiDataController/Model/Element.h"

#include <tuple>

namespace UiDataController {

namespace {

auto Tied(const ElementInfo& element)
{
    return std::tie(element.id, element.type, element.deviceId, element.groupId, element.name, element.state,
                    element.problem, element.typeCode, element.subType, element.number);
}

} // namespace

bool ElementInfo::operator==(const ElementInfo& other) const
{
    return Tied(*this) == Tied(other);
}

} // namespace UiDataController
