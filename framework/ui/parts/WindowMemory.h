#pragma once

#include "Protocol/JSONStruct/JSONMessage.h"

#include <string>
#include <vector>

namespace framework {

/// What the main window remembers from one start to the next.
struct WindowMemory : protocol::CMessage<WindowMemory, protocol::IInboundData>
{
    static constexpr const char* kKey = "window";
    std::vector<std::int32_t> geometry; ///< x, y, width, height of the window when it is not maximised
    bool maximized = false;
    std::vector<std::string> tabs; ///< the names of the open tabs in their order
    std::string currentTab;
    bool navigationCollapsed = false;
    std::vector<std::int32_t> closedGroups; ///< numbers of WindowGroup
    std::vector<std::int32_t> unread;       ///< see CUnreadNotices::Positions

    static constexpr auto Fields()
    {
        using T = WindowMemory;
        using protocol::May;
        return std::make_tuple(May("geometry", &T::geometry), May("maximized", &T::maximized),
                               May("tabs", &T::tabs), May("currentTab", &T::currentTab),
                               May("navigationCollapsed", &T::navigationCollapsed),
                               May("closedGroups", &T::closedGroups), May("unread", &T::unread));
    }

    /// From the file; as at the first start when there is none or it cannot be read.
    static WindowMemory Load(const std::string& path);
    void Save(const std::string& path) const;
};

} // namespace framework
