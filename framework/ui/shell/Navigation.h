#pragma once

#include "framework/ui/parts/WindowTable.h"

#include <QFrame>
#include <QHash>
#include <QList>

class QPushButton;
class QVBoxLayout;

namespace framework {

/// The list of tabs at the edge of the window, in groups that can be closed; collapsed it shows icons only.
/// GUI thread.
class CNavigation : public QFrame
{
    Q_OBJECT

public:
    explicit CNavigation(QWidget* parent = nullptr);

    /// Shows what the user may open.
    void SetUser(const User& user);
    /// Marks the item of the tab in front.
    void SetCurrent(const QString& name);

    void SetCollapsed(bool collapsed);
    bool IsCollapsed() const { return m_collapsed; }

    void SetClosedGroups(const QList<WindowGroup>& groups);
    QList<WindowGroup> ClosedGroups() const { return m_closed; }

    /// The item of a tab, whether it is shown or not; nullptr for an unknown name.
    const QPushButton* Item(const QString& name) const;

signals:
    void OpenRequested(const QString& name);
    void GroupsChanged();

private:
    void AddGroup(WindowGroup group, QVBoxLayout& list);
    void AddItem(const WindowRow& row, QVBoxLayout& layout);
    void Toggle(WindowGroup group);
    void UpdateItems();
    bool IsShown(const WindowRow& row) const;

    QHash<QString, QPushButton*> m_items;
    QHash<int, QWidget*> m_groups; ///< what holds the heading and the items of each
    QHash<int, QPushButton*> m_headings;
    QList<WindowGroup> m_closed;
    User m_user;
    bool m_collapsed = false;
};

} // namespace framework
