#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

namespace framework {

struct ListCell
{
    QString text;
    QVariant sort; ///< what the column is sorted by; the text when empty
    QString icon;  ///< an icon of the skin; empty for none
};

struct ListRow
{
    QString id;
    std::vector<ListCell> cells;
    bool isStrong = false; ///< shown bold, as unread
};

/// Rows of texts for a table. Sorting goes by Qt::UserRole. GUI thread.
class CListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    CListModel(QStringList headers, QObject* parent);

    void SetRows(std::vector<ListRow> rows);
    const ListRow& Row(int row) const { return m_rows[static_cast<std::size_t>(row)]; }
    /// The row of an id; -1 for none.
    int RowOf(const QString& id) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const QStringList m_headers;
    std::vector<ListRow> m_rows;
};

} // namespace framework
