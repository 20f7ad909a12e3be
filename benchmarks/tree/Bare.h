#pragma once

#include "UiDataController/Model/Element.h"

#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QWidget>

class QLineEdit;
class QTreeView;

namespace bench {

/// What Qt offers for the same: a tree of standard items with name and icon, and a line edit that filters it
/// and expands what is left.
class CBareTree : public QWidget
{
    Q_OBJECT

public:
    CBareTree(const std::vector<UiDataController::ElementInfo>& elements, QWidget* parent);

    QTreeView* View() const { return m_view; }
    QLineEdit* Search() const { return m_search; }

private:
    void Fill(const std::vector<UiDataController::ElementInfo>& elements);
    void Filter(const QString& text);

    QStandardItemModel m_model;
    QSortFilterProxyModel m_proxy;
    QLineEdit* m_search;
    QTreeView* m_view;
};

} // namespace bench
