#pragma once

#include "ChildProcess/ChildProcess.h"

#include <string>

/// A display of one test, on an X server of its own, with or without a window manager. Both end with it.
class PrivateDisplay
{
public:
    enum class WindowManager { None, Openbox };

    /// Sets DISPLAY for the programs started from now on. A test failure when the server does not come up.
    /// dpi: the screen's pixels per inch; at 96 programs are not scaled.
    explicit PrivateDisplay(WindowManager manager = WindowManager::None, int dpi = 96);

    /// ":17"; empty when the server did not come up.
    const std::string& Name() const { return m_name; }

private:
    void StartServer(const std::string& output, int dpi);
    void StartManager(const std::string& output);

    std::string m_name;
    CChildProcess m_server;
    CChildProcess m_manager;
};
