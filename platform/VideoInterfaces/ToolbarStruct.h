#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vantor {

/// The layout of the live-view toolbar: which button stands at each of its positions ("key numbers"), and
/// whether it is shown.
struct ToolbarStruct
{
    static constexpr std::size_t kPositions = 26;

    std::array<std::int32_t, kPositions> showIds{}; ///< which button; at first position i holds button i
    std::array<bool, kPositions> shown{};           ///< at first all but those of positions 0 and 3

    ToolbarStruct()
    {
        for (std::size_t i = 0; i < kPositions; ++i) {
            showIds[i] = static_cast<std::int32_t>(i);
            shown[i] = i != 0 && i != 3;
        }
    }
};

inline bool operator==(const ToolbarStruct& left, const ToolbarStruct& right)
{
    return left.shown == right.shown && left.showIds == right.showIds;
}
inline bool operator!=(const ToolbarStruct& left, const ToolbarStruct& right)
{
    return !(left == right);
}

} // namespace vantor
