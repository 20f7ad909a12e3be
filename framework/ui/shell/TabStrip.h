#pragma once

#include <QFrame>

class QMenu;
class QTabBar;
class QToolButton;

namespace framework {

/// The row of tabs, with a button for the list of all of them. Tabs are closed by their cross, the middle
/// mouse button or their menu, and moved with the mouse. GUI thread.
class CTabStrip : public QFrame
{
    Q_OBJECT

public:
    explicit CTabStrip(QWidget* parent = nullptr);

    QTabBar& Bar() { return *m_bar; }
    const QTabBar& Bar() const { return *m_bar; }

    /// Takes the cross of a tab away; it then stays open.
    void MakePermanent(int index);
    bool IsPermanent(int index) const;
    /// The cross of a tab; nullptr for a permanent one.
    const QWidget* Cross(int index) const;

signals:
    void CloseRequested(int index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FillList();
    void ShowMenu(const QPoint& position);
    /// Closes every tab that can be, but the given one.
    void CloseAllBut(int kept);

    QTabBar* m_bar;
    QToolButton* m_all;
    QMenu* m_list;
};

} // namespace framework
