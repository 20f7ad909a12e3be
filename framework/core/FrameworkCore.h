#pragma once

#include "Protocol/JSONStruct/HTTP/LocalFileJSONStruct.h"
#include "framework/core/ComponentAnswer.h"
#include "framework/core/DeviceLinks.h"
#include "framework/core/FrameworkEvents.h"
#include "framework/core/FrameworkSettings.h"
#include "framework/core/Resources.h"
#include "framework/core/Users.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace framework {

struct FrameworkParts;

/// How the framework is started.
struct FrameworkOptions
{
    std::string dataFolder;       ///< the framework's own folder, "<root>/Framework.C/"; made when missing
    std::string componentProgram; ///< path of the component; empty: it is started by somebody else
    std::string componentOutput;  ///< file for what the component prints; empty: as this process
    std::chrono::milliseconds endLimit{5000};     ///< for the component to end before it is killed
    std::chrono::milliseconds answerLimit{10000}; ///< for the component's routes to answer
    bool connectDevices = true;                   ///< false: nothing is heard of them
    devices::SessionLimits deviceLimits{};
};

/// A window of the component, ready to be embedded.
struct ComponentWindow
{
    std::uint64_t wnd = 0; ///< the native identifier
    bool available = true; ///< false: the page only says that it does not exist yet

    /// The identifier, for those who ask for nothing else.
    operator std::uint64_t() const { return wnd; }
};

/// Everything of the framework but its window: the server that components and other clients join, the
/// component's process, and what is kept on disk. Neither the window's thread nor the server's ever waits for
/// the other.
class CFrameworkCore : Base::CNoncopyable
{
public:
    /// A window, or none when the component has no such window, is not there or does not answer
    /// within ten seconds. Called once, on a thread of the core.
    using WindowAnswer = std::function<void(std::optional<ComponentWindow> window)>;

    CFrameworkCore(IFrameworkEvents& events, FrameworkOptions options);
    /// Stops.
    ~CFrameworkCore();

    /// Listens, reads what is on disk and writes the data-encryption setup when there is none. False with an
    /// English sentence: another framework runs, the folder cannot be written, or there is a setup that
    /// cannot be read, which is left as it is because databases depend on it. To be called once, first, from
    /// a thread that may touch the disk.
    [[nodiscard]] bool Start(std::string& error);

    /// Starts the component with the settings' skin, language and edition, or again after it was given up or
    /// stopped.
    void StartComponent();
    /// Ends the component with "componentUninit" and, after the end limit, by force; it is not started again.
    void StopComponent();
    /// Stop and start, as after a change of skin or language.
    void RestartComponent();
    /// Ends the component, waiting for it as StopComponent says, and the server. May be called again. Not
    /// from within an event.
    void Stop();

    ComponentState State() const;

    // The component's windows, by name.
    void GetWndHandle(const std::string& name, WindowAnswer onAnswer);
    void ShowWnd(const std::string& name);
    void TabRemoved(const std::string& name);
    void TabSwitched(const std::string& name);
    void WindowMoved(int x, int y);

    // The component's catalogue of pictures and clips. The answer limit holds.
    void QueryLocalFiles(const protocol::LocalFileQuery& query,
                         OnAsked<protocol::LocalFileQueryResult> onAnswer);
    /// The path of a record; empty when there is none of this identifier.
    void ResolveLocalFile(const protocol::LocalFile& file, OnAsked<protocol::LocalFileResult> onAnswer);
    /// Tells of a new file; the answer is its record's identifier, empty when it could not be stored.
    void ReportLocalFile(const protocol::LocalFileNotify& file, OnAsked<protocol::FileNotifyResult> onAnswer);

    /// Tells the component to stop working, changes the user, and tells it to bring its pages up to date.
    /// False: as CUsers::Login.
    [[nodiscard]] bool SwitchUser(const std::string& name, const std::string& password);

    /// Sends an alarm message to the registered components and adds it to the notices.
    void RaiseAlarm(const std::string& deviceGuid, const std::string& text);

    // What is kept on disk; to be used from a successful Start on.
    CResources& Resources();
    CDeviceLinks& Devices(); ///< the sessions with what the resources list
    CUsers& Users();
    CFrameworkSettings& Settings();
    CJournal& Operations(); ///< the operation log
    CJournal& Notices();    ///< the notification centre

private:
    std::unique_ptr<FrameworkParts> m_parts;
};

} // namespace framework
