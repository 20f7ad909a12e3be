#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

class QStackedWidget;
class QTabBar;

namespace framework {

class CTabStrip;
struct WindowRow;

/// The tab bar and the page of the tab in front. Each tab is one row of the window table and is open at most
/// once; "Home" is always open. GUI thread.
class CTabArea : public QWidget
{
    Q_OBJECT

public:
    /// Makes the page of a row, for the parent.
    using PageFactory = std::function<QWidget*(const WindowRow& row, QWidget* parent)>;

    explicit CTabArea(PageFactory factory, QWidget* parent = nullptr);

    /// Opens the tab or brings it to the front. False for an unknown name.
    bool Open(const QString& name);
    /// Opens the tab behind the others unless it is open. False for an unknown name.
    bool Add(const QString& name);
    /// Closes the tab; its page is destroyed.
    void Close(const QString& name);

    /// Brings the tab so many places further to the front; behind the last one comes the first.
    void Step(int places);

    QStringList Names() const;
    QString Current() const;
    /// The page of an open tab; nullptr for none.
    QWidget* Page(const QString& name) const;

    const QTabBar& Bar() const { return *m_bar; }
    const QWidget& Content() const;
    /// Where the tab, or its closing cross, is on the screen; null when there is none.
    QRect TabRect(const QString& name) const;
    QRect CloseRect(const QString& name) const;

signals:
    void Opened(const QString& name);
    void Closed(const QString& name);
    void Moved();
    void CurrentChanged(const QString& name);

private:
    int IndexOf(const QString& name) const;
    QString NameAt(int index) const;
    void ShowCurrent();
    void AddTab(const WindowRow& row);

    PageFactory m_factory;
    CTabStrip* m_strip;
    QTabBar* m_bar; ///< the strip's
    QStackedWidget* m_stack;
    QHash<QString, QWidget*> m_pages;
    QString m_shown; ///< the tab that CurrentChanged told last
};

} // namespace framework
