#include "framework/ui/parts/UnreadNotices.h"

#include "framework/core/Journal.h"

#include <algorithm>

namespace framework {

namespace {

std::vector<std::int32_t> OnlyPossible(std::vector<std::int32_t> positions)
{
    const auto isNone = [](int position) { return position < 0 || position >= int(CJournal::kKept); };
    positions.erase(std::remove_if(positions.begin(), positions.end(), isNone), positions.end());
    std::sort(positions.begin(), positions.end());
    positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
    return positions;
}

} // namespace

bool CUnreadNotices::Contains(int position) const
{
    return std::binary_search(m_positions.begin(), m_positions.end(), position);
}

void CUnreadNotices::Set(std::vector<std::int32_t> positions)
{
    positions = OnlyPossible(std::move(positions));
    if (positions == m_positions)
        return;
    m_positions = std::move(positions);
    emit Changed();
}

void CUnreadNotices::Add()
{
    std::vector<std::int32_t> positions{0};
    for (const int position : m_positions)
        positions.push_back(position + 1);
    m_positions = OnlyPossible(std::move(positions));
    emit Changed();
}

void CUnreadNotices::MarkRead(int position)
{
    std::vector<std::int32_t> positions = m_positions;
    positions.erase(std::remove(positions.begin(), positions.end(), position), positions.end());
    Set(std::move(positions));
}

} // namespace framework
