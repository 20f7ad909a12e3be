#include "system/ComponentRun.h"

#include "Base/FileUtil.h"
#include "Base/StringUtil.h"
#include "support/FileLog.h"

#include <signal.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

ComponentRun::ComponentRun() : m_bin(Base::FileUtil::GetCurExeDir()), m_program(m_bin + "Vantor.Video.C")
{
    // The log holds the message alone, so that it can be compared word for word.
    std::filesystem::create_directories(DataPath());
    WriteLogSettings(DataPath() + "log.properties", "${VANTOR_LOG_DIR}/Video.C.log");
    if (!std::getenv("DISPLAY"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
}

void ComponentRun::LeaveLooksOut()
{
    const std::string bin = Path() + "copy/bin/";
    std::filesystem::create_directories(bin);
    for (const char* folder : {"maintain", "WidgetLayout"})
        std::filesystem::create_directory_symlink(m_bin + folder, bin + folder);
    for (const auto& file : std::filesystem::directory_iterator(m_bin))
        if (file.path().extension() == ".so")
            std::filesystem::create_symlink(file, bin + file.path().filename().string());
    std::filesystem::copy_file(m_program, bin + "Vantor.Video.C");
    m_program = bin + "Vantor.Video.C";
}

int ComponentRun::Play(const std::string& script)
{
    const std::string path = Path() + "script.jsonl";
    std::ofstream(path) << script;
    return Shell(HostCommand(path));
}

int ComponentRun::PlayFile(const std::string& name, const std::string& options)
{
    return Shell(HostCommand(std::string(VANTOR_SCRIPTS) + "/" + name, options));
}

int ComponentRun::Shell(const std::string& command) const
{
    const std::string logged = "( " + command + " ) >" + Path() + "output 2>&1";
    const int status = std::system(logged.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

std::string ComponentRun::HostCommand(const std::string& scriptPath, const std::string& options) const
{
    return m_bin + "vantor-lpc host " + options + " --script " + scriptPath + " --spawn " + Program();
}

std::vector<std::string> ComponentRun::LogMessages() const
{
    return Base::StringUtil::Split(FileContent(DataPath() + "log/Video.C.log"), '\n');
}

std::vector<std::string> ComponentRun::MissingInOrder(const std::vector<std::string>& wanted) const
{
    std::vector<std::string> missing;
    const auto messages = LogMessages();
    auto from = messages.begin();
    for (const std::string& text : wanted) {
        const auto found = std::find(from, messages.end(), text);
        if (found == messages.end())
            missing.push_back(text);
        else
            from = found + 1;
    }
    return missing;
}

bool ComponentRun::WaitForLog(const std::string& message, int seconds) const
{
    return WaitUntil([&] { return MissingInOrder({message}).empty(); }, std::chrono::seconds(seconds));
}

int ComponentRun::ProcessId() const
{
    for (const auto& process : std::filesystem::directory_iterator("/proc")) {
        std::error_code ignored;
        if (std::filesystem::read_symlink(process.path() / "exe", ignored) != Program())
            continue;
        if (FileContent(process.path() / "environ")
                .find("VANTOR_USER_DATA=" + Path().substr(0, Path().size() - 1)) != std::string::npos)
            return std::stoi(process.path().filename());
    }
    return 0;
}

void ComponentRun::Terminate() const
{
    if (const int process = ProcessId())
        ::kill(process, SIGTERM);
}
