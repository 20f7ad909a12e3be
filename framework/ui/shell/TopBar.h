#pragma once

#include <QFrame>
#include <QTimer>

class QLabel;
class QMenu;
class QToolButton;

namespace framework {

struct User;

/// The bar at the top: the product, the clock, the bell and the user. GUI thread.
class CTopBar : public QFrame
{
    Q_OBJECT

public:
    explicit CTopBar(QWidget* parent = nullptr);

    void SetUser(const User& user);
    void SetUnread(int count);

signals:
    void NavigationToggled();
    void NoticesRequested();
    void SwitchUserRequested();
    void SettingsRequested();
    void EndRequested();

private:
    QToolButton* MakeUserButton();
    QWidget* MakeBell();
    void ShowTime();

    QLabel* m_date;
    QLabel* m_time;
    QLabel* m_unread;
    QAction* m_settings = nullptr; ///< an entry of the user's menu
    QToolButton* m_user;
    QTimer m_clock;
};

} // namespace framework
