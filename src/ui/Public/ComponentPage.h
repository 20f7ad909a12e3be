#pragma once

#include <QWidget>

namespace video {

struct User;

/// Base of every window of the component that the framework embeds, and of the settings pages.
///
/// The framework embeds winId(), which is made unmapped: at first, and anew after the framework's window took
/// the page's along when it died. The page has no frame of its own, so that it never looks like a window
/// beside the framework's, and it is not shown before the framework asks for that. The framework alone
/// decides when it goes: requests to close are ignored. Its modal dialogs go with it. GUI thread.
class CComponentPage : public QWidget
{
    Q_OBJECT

public:
    /// title: translated; the page's window title.
    explicit CComponentPage(const QString& title);

    /// False for a page that only says that it is not there yet.
    virtual bool IsAvailable() const { return true; }

    /// Another user is about to take over: what runs in the name of the present one ends. Popups and dialogs
    /// are closed already.
    virtual void StopWorking() {}

    /// Who the user is from now on; a page that is made later asks CCurrentUser.
    virtual void UpdateUser(const User& user);

protected:
    void closeEvent(QCloseEvent* event) final;
    void hideEvent(QHideEvent* event) override;
};

} // namespace video
