#include "support/PrivateDisplay.h"

#include "support/PointerAndKeys.h"
#include "support/WaitUntil.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace {

/// The number that the server wrote after whatever else it had to say.
std::string DisplayNumber(const std::string& output)
{
    std::ifstream file(output);
    std::string number;
    for (std::string line; std::getline(file, line) && !file.eof();)
        if (!line.empty() && line.find_first_not_of("0123456789") == std::string::npos)
            number = line;
    return number;
}

} // namespace

PrivateDisplay::PrivateDisplay(WindowManager manager, int dpi)
{
    namespace fs = std::filesystem;
    const std::string output =
        (fs::temp_directory_path() / ("vantor-display-" + std::to_string(getpid()))).string();
    StartServer(output, dpi);
    if (!m_name.empty() && manager == WindowManager::Openbox)
        StartManager(output);
    std::error_code ignored;
    fs::remove(output, ignored);
}

void PrivateDisplay::StartServer(const std::string& output, int dpi)
{
    std::string error;
    const bool started = m_server.Start({"Xvfb", "-displayfd", "1", "-screen", "0", "1920x1600x24", "-dpi",
                                         std::to_string(dpi), "-nolisten", "tcp"},
                                        output, error);
    std::string number;
    if (!started || !WaitUntil([&] { return !(number = DisplayNumber(output)).empty(); })) {
        ADD_FAILURE() << "no X server: " << error;
        return;
    }
    m_name = ":" + number;
    setenv("DISPLAY", m_name.c_str(), 1);
}

void PrivateDisplay::StartManager(const std::string& output)
{
    std::string error;
    const bool started = m_manager.Start({"openbox", "--sm-disable"}, output, error);
    PointerAndKeys screen(m_name);
    if (!started || !WaitUntil([&] { return screen.HasWindowManager(); }))
        ADD_FAILURE() << "no window manager: " << error;
}
