#pragma once

#include "Base/WeakAnchor.h"
#include "SingleApplication/SingleApplication.h"
#include "ui/Application/ApplicationLook.h"
#include "ui/Application/OrderlyQuit.h"
#include "ui/Application/VantorEventFilter.h"

#include <future>
#include <memory>
#include <string>
#include <vector>

namespace video {

/// The component's application object: its staged start-up, and its shut-down in a fixed order. GUI thread.
class CVantorApplication : public SingleApplication
{
    Q_OBJECT

public:
    /// Ends the process at once with exit code 0 when another instance is running. argv[3] carries the start
    /// parameters.
    CVantorApplication(const QString& title, int& argc, char** argv);
    ~CVantorApplication() override;

    /// Starts the component; false when it cannot run.
    [[nodiscard]] bool Init();

    /// Takes down what Init brought up, as far as it came.
    void UnInit();

    /// The language numbers of the two languages written from right to left mirror the layout.
    bool IsRightToLeft() const;

public slots:
    /// Takes the component down and ends the event loop, once open dialogs are closed. Further calls do
    /// nothing.
    void onQuit();

    /// Native messages that the event filter lets pass; none is swallowed.
    bool OnCurEvent(MSG* message, long* result);

private:
    void InitSysParameter(int argc, char** argv);
    std::future<bool> StartDatabase();
    void InitRemoteConfig();
    void LoadLook();
    void StartWinIDAndSystemManager();
    void InitManager();
    void RegisterForNotifications();
    [[nodiscard]] bool InitLogical();
    void initDateTimeFormat();
    void UnInitOnQuit();
    void UnInitLink();
    void UnInitGui();
    void UnInitLogical();

    QString m_skin;
    std::future<void> m_fInitReportManager;
    std::shared_future<void> m_fInitWinIDAndSystemManager;
    std::unique_ptr<CVantorEventFilter> m_eventFilter;
    COrderlyQuit m_quit{[this] { UnInitOnQuit(); }};
    Base::details::CWeakPtrBase m_anchor; ///< of the handlers of notifications
};

} // namespace video
