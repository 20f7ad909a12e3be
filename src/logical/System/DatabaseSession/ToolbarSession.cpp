#include "logical/System/DatabaseSession/ToolbarSession.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "logical/Local/DatabaseSession/Columns.h"

#include <optional>
#include <vector>

namespace video {
namespace {

constexpr const char* kDelete = "DELETE FROM Toolbar";

/// The button that the earlier release had and this one has not, and how many rows that release wrote.
constexpr std::int32_t kRemovedShowId = 7;
constexpr std::size_t kRowsOfEarlierRelease = 17;

struct Row
{
    std::int32_t uKeyNum = 0;
    bool bShow = false;
    std::int32_t iShowID = 0;
    std::int32_t iRemoteConfigHideFixed = 0;
};

constexpr auto kColumns = std::make_tuple(ColumnOf("uKeyNum", &Row::uKeyNum), ColumnOf("bShow", &Row::bShow),
                                          ColumnOf("iShowID", &Row::iShowID),
                                          ColumnOf("iRemoteConfigHideFixed", &Row::iRemoteConfigHideFixed));

/// Takes the removed button out; gives the position at which it stood.
std::optional<std::int32_t> TakeOutRemovedButton(std::vector<Row>& rows)
{
    std::optional<std::int32_t> position;
    for (auto row = rows.begin(); row != rows.end();) {
        if (row->iShowID != kRemovedShowId) {
            row->iShowID -= row->iShowID > kRemovedShowId ? 1 : 0;
            ++row;
            continue;
        }
        const Row removed = *row;
        position = removed.uKeyNum;
        row = rows.erase(row);
        // The line shows the row that moved into the place; behind the last one none did.
        const Row& shown = row == rows.end() ? removed : *row;
        BASE_INFO("iShowID == 7 is removed, uKeyNum:%d, bShow:%d", shown.uKeyNum, shown.bShow ? 1 : 0);
    }
    return position;
}

void MigrateEarlierRelease(std::vector<Row>& rows)
{
    const std::optional<std::int32_t> position = TakeOutRemovedButton(rows);
    for (Row& row : rows) {
        row.uKeyNum -= position && row.uKeyNum > *position ? 1 : 0;
        BASE_INFO("toolbar fixed:%d, iShowID:%d, bShow:%d", row.uKeyNum, row.iShowID, row.bShow ? 1 : 0);
    }
}

void Apply(const Row& row, vantor::ToolbarStruct& layout)
{
    if (row.uKeyNum < 0 || static_cast<std::size_t>(row.uKeyNum) >= vantor::ToolbarStruct::kPositions) {
        BASE_LIMITED(Base::CFaultLimit, BASE_INFO, "uKeyNum overflow:%d, iShowID:%d, bShow:%d", row.uKeyNum,
                     row.iShowID, row.bShow ? 1 : 0);
        return;
    }
    const auto position = static_cast<std::size_t>(row.uKeyNum);
    layout.shown[position] = row.bShow;
    layout.showIds[position] = row.iShowID;
}

} // namespace

bool ToolbarSession::Query(vantor::ToolbarStruct& layout)
{
    layout = vantor::ToolbarStruct();
    Sqlite3DO::CSQLite3Recordset table;
    m_connection.Execute("SELECT * FROM Toolbar", table);
    std::vector<Row> rows;
    while (table.Next())
        ReadRow(table, kColumns, rows.emplace_back());
    if (rows.empty() || rows.back().iRemoteConfigHideFixed == 0) {
        BASE_INFO("0 == iRemoteConfigHideFixed");
        if (rows.size() == kRowsOfEarlierRelease)
            MigrateEarlierRelease(rows);
    }
    for (const Row& row : rows)
        Apply(row, layout);
    return true;
}

bool ToolbarSession::Save(const vantor::ToolbarStruct& layout)
{
    std::vector<std::string> statements{kDelete};
    for (std::size_t i = 0; i < vantor::ToolbarStruct::kPositions; ++i)
        statements.push_back(Sqlite3DO::FormatStatement<1000>("INSERT INTO Toolbar VALUES(%d, %d, %d, 1)",
                                                              static_cast<int>(i), layout.shown[i] ? 1 : 0,
                                                              layout.showIds[i]));
    return m_connection.ExecuteTogether(statements);
}

bool ToolbarSession::Clear()
{
    return m_connection.Execute(kDelete);
}

} // namespace video
