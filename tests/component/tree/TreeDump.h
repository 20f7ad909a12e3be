#pragma once

#include "UiDataController/Tree/Roles.h"

#include <QAbstractItemModel>
#include <QCoreApplication>

#include <string>

/// The identifiers of all rows in brackets by depth, "d1(d1/1 d1/2) s1", fetching what is not yet there. What
/// a search hit has a star.
inline std::string DumpOf(QAbstractItemModel& model, const QModelIndex& parent = {})
{
    while (model.canFetchMore(parent))
        model.fetchMore(parent);
    std::string dump;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        dump += (row ? " " : "") + index.data(UiDataController::ElementIdRole).toString().toStdString();
        dump += index.data(UiDataController::IsHitRole).toBool() ? "*" : "";
        if (model.hasChildren(index))
            dump += '(' + DumpOf(model, index) + ')';
    }
    return dump;
}
