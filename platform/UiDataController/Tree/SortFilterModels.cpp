#include "UiDataController/Tree/SortFilterModels.h"

#include "UiDataController/Tree/Roles.h"

namespace UiDataController {

namespace {

/// The locale "C" knows no collation, and so no numbers.
QLocale LocaleOfNames()
{
    return QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale();
}

} // namespace

CSortFilterProxyModel::CSortFilterProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent), m_collator(LocaleOfNames())
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    setFilterRole(ElementIdRole);
    setDynamicSortFilter(true);
}

void CSortFilterProxyModel::SetExcluded(const QID& id)
{
    m_excluded = id;
    invalidateFilter();
}

bool CSortFilterProxyModel::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    return m_excluded.isEmpty() || index.data(filterRole()).toString() != m_excluded;
}

bool CSortFilterProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const auto isSingle = [](const QModelIndex& index) { return index.data(IsChannelRole).toBool(); };
    if (isSingle(left) != isSingle(right))
        return isSingle(right);
    const int order = m_collator.compare(left.data().toString(), right.data().toString());
    return order != 0 ? order < 0 : left.row() < right.row();
}

void CSecondarySortFilterModel::SetSecondaryFilterRole(int role)
{
    m_role = role;
    invalidateFilter();
}

bool CSecondarySortFilterModel::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (!CSortFilterProxyModel::filterAcceptsRow(row, parent))
        return false;
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    const bool holdsChannels = m_role == IsChannelRole && index.data(ChannelsRole).toInt() > 0;
    return m_role < 0 || index.data(m_role).toBool() || holdsChannels;
}

} // namespace UiDataController
