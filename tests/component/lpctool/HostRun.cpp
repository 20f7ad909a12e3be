#include "component/lpctool/HostRun.h"

#include "Base/FileUtil.h"
#include "Base/GuidUtil.h"

#include <gtest/gtest.h>

#include <fstream>

static constexpr int kLongestMs = 30000;

CProgramRun::CProgramRun(const TestDataRoot& root, const std::vector<std::string>& command)
    : m_outputPath(root.Path() + "output-" + Base::GuidUtil::CreateGuid())
{
    std::string error;
    EXPECT_TRUE(m_process.Start(command, m_outputPath, error)) << error;
}

int CProgramRun::Status()
{
    const auto status = m_process.WaitForExit(kLongestMs);
    EXPECT_TRUE(status) << "still running; so far:\n" << Output();
    return status.value_or(-1000);
}

std::string CProgramRun::Output() const
{
    std::string text;
    (void)Base::FileUtil::ReadFile(m_outputPath, text);
    return text;
}

bool CProgramRun::WaitForOutput(const std::string& text) const
{
    return WaitUntil([&] { return Says(text); }, std::chrono::milliseconds(kLongestMs));
}

std::string CHostRun::WriteScript(const std::string& script) const
{
    const std::string path = m_root.Path() + "s.jsonl";
    std::ofstream(path) << script;
    return path;
}

void CHostRun::Start(const std::string& script, const std::string& way,
                     const std::vector<std::string>& options)
{
    setenv("FAKE_COMPONENT_WAY", way.c_str(), 1);
    std::vector<std::string> command = {VANTOR_LPC,          "host",    "--script",
                                        WriteScript(script), "--spawn", FAKE_COMPONENT};
    command.insert(command.end(), options.begin(), options.end());
    m_host = std::make_unique<CProgramRun>(m_root, command);
}

void CHostRun::StartAlone(const std::string& script)
{
    m_host = std::make_unique<CProgramRun>(
        m_root, std::vector<std::string>{VANTOR_LPC, "host", "--script", WriteScript(script)});
}

std::unique_ptr<CProgramRun> CHostRun::Tool(std::vector<std::string> arguments) const
{
    arguments.insert(arguments.begin(), VANTOR_LPC);
    return std::make_unique<CProgramRun>(m_root, arguments);
}
