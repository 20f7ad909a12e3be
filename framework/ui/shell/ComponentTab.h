#pragma once

#include "framework/ui/shell/TabSession.h"

#include <QWidget>

class QStackedLayout;

namespace embedding {
class CGuestContainer;
}

namespace framework {

class CReport;
class CStatePage;

/// A tab that shows a window of the component. GUI thread.
class CComponentTab : public QWidget, public ITabView
{
    Q_OBJECT

public:
    CComponentTab(const QString& name, const QString& title, IComponentWindows& component, CReport& report);
    /// Closes the session.
    ~CComponentTab() override;

    CTabSession& Session() { return m_session; }
    /// Tells the embedded window where it is; call when the main window was moved.
    void TellPosition();
    /// The place of the embedded window.
    const QWidget* Place() const;

    bool Embed(quint64 wnd) override;
    void Release() override;
    void ShowState(TabState state) override;

private:
    void ShowStatePage(TabState state);

    const QString m_name;
    const QString m_title;
    CReport& m_report;
    QStackedLayout* m_stack;
    embedding::CGuestContainer* m_container;
    CStatePage* m_statePage;
    CTabSession m_session;
};

} // namespace framework
