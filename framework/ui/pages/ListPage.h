#pragma once

#include "framework/ui/pages/ListModel.h"

#include <QWidget>

class QComboBox;
class QSortFilterProxyModel;

namespace VantorGUIToolkit {
class CPageHeader;
class CSearchEdit;
class CTableView;
} // namespace VantorGUIToolkit

namespace framework {

/// A page of one table: its head with a search edit and buttons, the table below. What is chosen stays chosen
/// when the rows are set anew. GUI thread.
class CListPage : public QWidget
{
    Q_OBJECT

public:
    CListPage(const QString& title, const QString& sentence, const QStringList& headers,
              QWidget* parent = nullptr);

    void SetRows(std::vector<ListRow> rows);
    /// The id of the row that is chosen; empty for none.
    QString SelectedId() const;
    void Select(const QString& id);

    VantorGUIToolkit::CPageHeader& Header() { return *m_header; }
    VantorGUIToolkit::CTableView& Table() { return *m_table; }

    /// A box in the head that limits the rows to those with one of these texts in a column; first: the entry
    /// for all.
    void AddFilter(int column, const QString& first, const QStringList& texts);

signals:
    void SelectionChanged();
    void Activated(const QString& id);

private:
    void SetUpTable();

    VantorGUIToolkit::CPageHeader* m_header;
    VantorGUIToolkit::CSearchEdit* m_search;
    VantorGUIToolkit::CTableView* m_table;
    CListModel* m_model;
    QSortFilterProxyModel* m_searched;
    QSortFilterProxyModel* m_filtered; ///< limits a column and sorts
};

} // namespace framework
