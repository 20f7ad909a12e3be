#pragma once

#include <Qt>

namespace UiDataController {

/// What the rows of a resource tree tell beside text, picture and tool tip. The first three numbers are those
/// that the sort-filter models of pages ask for.
enum ResourceRole : int {
    ElementIdRole = 662,     ///< QString
    IsChannelRole = 767,     ///< bool: a channel element
    IsServerRole = 771,      ///< bool: a storage-server element
    ElementTypeRole = 1000,  ///< int, an ElementType
    ElementStateRole = 1001, ///< int, an ElementState
    ProblemRole = 1002,      ///< QString, for the user
    ChannelsRole = 1003,     ///< int: channels below, at any depth
    IsHitRole = 1004,        ///< bool: the name holds what is searched for
    DeviceIdRole = 1005,     ///< QString, of a channel
};

/// What stands at the top of a resource tree. Storage servers do in either.
enum class ResourceOrder {
    ByDevice, ///< devices with their channels
    ByGroup,  ///< groups with groups and channels, and channels without a group
};

} // namespace UiDataController
