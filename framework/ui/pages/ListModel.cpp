#include "framework/ui/pages/ListModel.h"

#include "VantorGUIToolkit/Icons.h"

#include <QFont>

#include <algorithm>

namespace framework {

CListModel::CListModel(QStringList headers, QObject* parent)
    : QAbstractTableModel(parent), m_headers(std::move(headers))
{}

void CListModel::SetRows(std::vector<ListRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int CListModel::RowOf(const QString& id) const
{
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(), [&](const auto& each) { return each.id == id; });
    return row == m_rows.end() ? -1 : static_cast<int>(row - m_rows.begin());
}

int CListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_headers.size();
}

QVariant CListModel::data(const QModelIndex& index, int role) const
{
    const ListRow& row = Row(index.row());
    const ListCell& cell = row.cells[static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole:
        return cell.text;
    case Qt::UserRole:
        return cell.sort.isValid() ? cell.sort : QVariant(cell.text);
    case Qt::DecorationRole:
        return cell.icon.isEmpty() ? QVariant() : QVariant(VantorGUIToolkit::icon(cell.icon));
    case Qt::FontRole: {
        QFont font;
        font.setBold(true);
        return row.isStrong ? QVariant(font) : QVariant();
    }
    default:
        return {};
    }
}

QVariant CListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeading | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? QVariant(m_headers.value(section)) : QVariant();
}

} // namespace framework
