#pragma once

#include "UiDataController/Model/Element.h"

#include <cstdint>
#include <vector>

namespace UiDataController {

/// An element with its place in a resource tree.
struct ElementNode
{
    ElementInfo info;
    QString folded;                     ///< the name as it is searched; null until a search needed it
    std::uint64_t addition = 0;         ///< grows with each element that is added
    ElementNode* parent = nullptr;      ///< null for the root, and for what this order does not show
    std::vector<ElementNode*> children; ///< in their order
    std::vector<ElementNode*> shown;    ///< those of the children that a search leaves
    int row = -1;                       ///< among the rows of the parent; -1 when a search hides it
    int channels = 0;                   ///< below, at any depth
    bool isFetched = true;              ///< its rows are told to views; false where nobody asked for them yet
    bool isHit = false;
    bool leadsToHit = false;

    bool IsChannel() const { return info.type == ElementType::Channel; }
};

} // namespace UiDataController
