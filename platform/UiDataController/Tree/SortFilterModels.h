#pragma once

#include "UiDataController/Model/Element.h"

#include <QCollator>
#include <QSortFilterProxyModel>

namespace UiDataController {

/// Leaves out the one row whose data in the filter role (setFilterRole, ElementIdRole for instance) is a
/// given element's. Sorted, which it is not until asked, "Camera 2" stands before "Camera 10", by the rules
/// of the language; what holds other rows stays before single channels. GUI thread.
class CSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CSortFilterProxyModel(QObject* parent = nullptr);

    /// An empty identifier leaves nothing out.
    void SetExcluded(const QID& id);
    const QID& Excluded() const { return m_excluded; }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QID m_excluded;
    QCollator m_collator;
};

/// Leaves only the rows whose data in the secondary filter role is true (IsChannelRole, IsServerRole), and
/// for channels the devices and groups that hold any. GUI thread.
class CSecondarySortFilterModel : public CSortFilterProxyModel
{
    Q_OBJECT

public:
    using CSortFilterProxyModel::CSortFilterProxyModel;

    void SetSecondaryFilterRole(int role);
    int SecondaryFilterRole() const { return m_role; }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    int m_role = -1; ///< none: every row stays
};

} // namespace UiDataController
