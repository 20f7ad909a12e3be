#include "logical/Communication/RouteTable.h"

#include <algorithm>

namespace video {

void CRouteTable::Declare(const std::string& name)
{
    RowOf(name);
}

void CRouteTable::Bind(const std::string& name, LPCHandler handler)
{
    RowOf(name).handler = std::move(handler);
}

CRouteTable::Result CRouteTable::Serve(const std::string& name, const lpcclient::LPCCallBackData& data) const
{
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(), [&](const Row& each) { return each.name == name; });
    if (row == m_rows.end())
        return Result::Unknown;
    if (!row->handler)
        return Result::NobodyServes;
    row->handler(data);
    return Result::Served;
}

std::vector<std::string> CRouteTable::Names() const
{
    std::vector<std::string> names;
    for (const Row& row : m_rows)
        names.push_back(row.name);
    return names;
}

std::vector<std::string> CRouteTable::ServedNames() const
{
    std::vector<std::string> names;
    for (const Row& row : m_rows)
        if (row.handler)
            names.push_back(row.name);
    return names;
}

CRouteTable::Row& CRouteTable::RowOf(const std::string& name)
{
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(), [&](const Row& each) { return each.name == name; });
    if (row != m_rows.end())
        return *row;
    m_rows.push_back({name, {}});
    return m_rows.back();
}

} // namespace video
