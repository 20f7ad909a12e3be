#pragma once

#include "ChildProcess/ChildProcess.h"
#include "support/PointerAndKeys.h"
#include "support/PrivateDisplay.h"
#include "system/ComponentRun.h"

#include <QJsonObject>
#include <QStringList>

#include <csignal>
#include <memory>

/// The real framework with the real component, on a display and a data root of their own, and a user in front
/// of them. What is waited for too long ends the test with an exception.
class ClientRun
{
public:
    using Area = PointerAndKeys::Area;
    using Window = PointerAndKeys::Window;

    explicit ClientRun(PrivateDisplay::WindowManager manager, int dpi = 96);
    /// Ends a client that runs, as End.
    ~ClientRun();

    /// options: more words for the framework. binFolder: of other programs than the built ones, ends in "/".
    void Start(const QStringList& options = {}, const std::string& binFolder = {});
    /// Asks the framework to end; both programs must end in order, without complaints of the X server.
    void End();
    void Kill();
    /// Asks the framework to end, and does not wait.
    void AskToEnd() { m_framework->Signal(SIGTERM); }
    /// The exit status of the framework that ends by itself.
    std::optional<int> AwaitExit(int seconds) { return m_framework->WaitForExit(seconds * 1000); }

    /// Waits until the report has told so many events with these fields since the start; gives the last.
    QJsonObject Await(const QJsonObject& fields, int times = 1);
    int Count(const QJsonObject& fields);

    /// Where an item of the framework's layout is; see framework/ui/shell/LayoutReport.h.
    Area Item(const QString& name);
    bool HasItem(const QString& name);
    void Click(const QString& item) { Click(Item(item)); }
    void Click(const Area& area);
    /// Returns when the window has the keyboard.
    void ClickForKeys(const Area& area, Window window);

    /// Opens a component's tab through the navigation.
    Window OpenTab(const QString& name);
    /// Waits until the tab was embedded so often since the start; gives the window.
    Window AwaitEmbedded(const QString& name, int times = 1);
    /// The window is to be seen, as large as its place.
    void AwaitSeen(Window page);
    Window TopLevel() const { return m_topLevel; }

    /// Writes into the line at that place, instead of what was there.
    void Write(const Area& line, Window window, const std::string& text);
    /// Copies what stands in the line, as the user would take it elsewhere.
    void ExpectText(const Area& line, Window window, const std::string& text);

    PrivateDisplay display;
    ComponentRun component;
    PointerAndKeys user{display.Name()};

private:
    void ReadReport();
    std::string Folder() const { return component.Path() + "Framework.C/"; }

    std::unique_ptr<CChildProcess> m_framework;
    QList<QJsonObject> m_events;
    qint64 m_read = 0;
    Window m_topLevel = 0;
};
