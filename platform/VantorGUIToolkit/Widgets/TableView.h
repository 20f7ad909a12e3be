#pragma once

#include <QTableView>

#include <vector>

namespace VantorGUIToolkit {

class CEmptyState;

/// A table as every page shows it: whole rows selected, columns sorted by a press on their header, rows on
/// the grid, texts that do not fit in their cell shown in full in a tool tip, and a sentence where there is
/// no row. Tab leaves the table; the arrow keys move in it.
class CTableView : public QTableView
{
    Q_OBJECT

public:
    explicit CTableView(QWidget* parent = nullptr);

    /// What is shown when there is no row; iconName is an icon of the skin.
    void SetEmptyState(const QString& iconName, const QString& title, const QString& sentence);

    void setModel(QAbstractItemModel* model) override;

protected:
    bool viewportEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowEmptyState();
    bool ShowFullText(const QPoint& position, const QPoint& global);

    CEmptyState* m_empty = nullptr;
    std::vector<QMetaObject::Connection> m_watched; ///< to the model
};

} // namespace VantorGUIToolkit
