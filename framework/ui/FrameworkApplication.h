#pragma once

#include "framework/core/FrameworkCore.h"
#include "framework/ui/CommandLine.h"
#include "framework/ui/Pages.h"
#include "framework/ui/demonstration/Demonstration.h"
#include "framework/ui/parts/CoreLocalFiles.h"
#include "framework/ui/parts/CoreWindows.h"
#include "framework/ui/parts/EventRelay.h"
#include "framework/ui/parts/Report.h"
#include "framework/ui/parts/UnreadNotices.h"

#include <QObject>

#include <future>
#include <memory>

namespace framework {

class CMainWindow;
class CTour;

/// Puts the framework together: core, look, window; and brings it to its end. GUI thread.
class CFrameworkApplication : public QObject
{
    Q_OBJECT

public:
    explicit CFrameworkApplication(CommandLine line);
    ~CFrameworkApplication() override;

    /// Starts everything. False, with the reason in error, when it cannot run; also, without a reason, when
    /// the user closed the start dialog.
    [[nodiscard]] bool Start(QString& error);

    /// Ends the component in order, then the program. May be called again.
    void RequestEnd();

private:
    bool ChooseLook();
    std::string MemoryPath() const;
    void MakeWindow();
    void ReportEvents();
    void OnChoices(const FrameworkChoices& before, const FrameworkChoices& now);
    void ChangeLook(const FrameworkChoices& choices);
    void SwitchUser();
    void StartDemonstration();
    void StartTour();
    void EndProgram();

    const CommandLine m_line;
    int m_exitCode = 0;
    bool m_ending = false;
    CReport m_report;
    CEventRelay m_relay;
    CUnreadNotices m_unread;
    const std::string m_folder; ///< the framework's own, ends in "/"
    CFrameworkCore m_core;
    CCoreWindows m_windows;
    CCoreLocalFiles m_files;
    CPages m_pages;
    std::unique_ptr<CMainWindow> m_window;
    std::unique_ptr<CTour> m_tour;
    std::unique_ptr<CDemonstration> m_demonstration;
    std::unique_ptr<CSimulatedDevices> m_simulated; ///< the devices of the demonstration
    std::future<void> m_stopping;
};

} // namespace framework
