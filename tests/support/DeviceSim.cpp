#include "support/DeviceSim.h"

#include "support/FileContent.h"
#include "support/WaitUntil.h"

#include <cjson/cJSON.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

std::string Text(const cJSON* object, const char* name)
{
    const cJSON* member = cJSON_GetObjectItemCaseSensitive(object, name);
    return cJSON_IsString(member) ? member->valuestring : "";
}

unsigned Number(const cJSON* object, const char* name)
{
    const cJSON* member = cJSON_GetObjectItemCaseSensitive(object, name);
    return cJSON_IsNumber(member) ? static_cast<unsigned>(member->valuedouble) : 0;
}

/// The whole line that tells of readiness; empty while there is none.
std::string ReadyLineIn(const std::string& output)
{
    const std::size_t begin = output.find("{\"ready\"");
    const std::size_t end = begin == std::string::npos ? begin : output.find('\n', begin);
    return end == std::string::npos ? std::string() : output.substr(begin, end - begin);
}

} // namespace

DeviceSim::DeviceSim(std::vector<std::string> options, Keeps keeps) : m_options(std::move(options))
{
    std::string name = (std::filesystem::temp_directory_path() / "vantor-sim-XXXXXX").string();
    m_folder = std::string(mkdtemp(name.data())) + '/';
    SetFaults("[]");
    m_options.insert(m_options.end(), {"--faults", m_folder + "faults.json"});
    if (keeps == Keeps::State)
        m_options.insert(m_options.end(), {"--state", StateFolder()});
    EXPECT_TRUE(Start(m_options)) << Output();
}

DeviceSim::~DeviceSim()
{
    m_process.reset();
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}

std::string DeviceSim::Program()
{
    return VANTOR_DEVICE_SIM;
}

bool DeviceSim::Start(const std::vector<std::string>& options)
{
    std::vector<std::string> command{Program()};
    command.insert(command.end(), options.begin(), options.end());
    m_process = std::make_unique<CChildProcess>();
    std::string error;
    if (!m_process->Start(command, m_folder + "output", error))
        return false;
    const bool ended =
        !WaitUntil([this] { return !ReadyLineIn(Output()).empty() || m_process->ExitStatus(); }) ||
        m_process->ExitStatus();
    return !ended && ReadReadyLine();
}

bool DeviceSim::ReadReadyLine()
{
    const std::unique_ptr<cJSON, decltype(&cJSON_Delete)> line(cJSON_Parse(ReadyLineIn(Output()).c_str()),
                                                               &cJSON_Delete);
    m_devices.clear();
    const cJSON* entry = nullptr;
    cJSON_ArrayForEach(entry, cJSON_GetObjectItemCaseSensitive(line.get(), "devices"))
    {
        Device device;
        device.kind = Text(entry, "kind");
        device.name = Text(entry, "name");
        device.typeCode = Number(entry, "typeCode");
        device.subType = Number(entry, "subType");
        device.port = static_cast<std::uint16_t>(Number(entry, "port"));
        device.channels = Number(entry, "channels");
        device.fingerprint = Text(entry, "fingerprint");
        m_devices.push_back(device);
    }
    return !m_devices.empty();
}

void DeviceSim::SetFaults(const std::string& json)
{
    // The length tells a new file from one that was written within the same tick of the file system's clock.
    const std::string path = m_folder + "faults.json";
    std::ofstream(path + ".new") << json << std::string(++m_faultsWritten, '\n');
    std::filesystem::rename(path + ".new", path);
}

std::optional<int> DeviceSim::Stop()
{
    m_process->Signal(SIGTERM);
    return m_process->WaitForExit(10000);
}

void DeviceSim::Kill()
{
    m_process->Signal(SIGKILL);
    m_process->WaitForExit(10000);
}

void DeviceSim::Pause()
{
    m_process->Signal(SIGSTOP);
}

bool DeviceSim::Restart(const std::vector<std::string>& moreOptions)
{
    std::string ports;
    for (const Device& device : m_devices)
        ports += (ports.empty() ? "" : ",") + std::to_string(device.port);
    std::vector<std::string> options = m_options;
    options.insert(options.end(), {"--port", ports});
    options.insert(options.end(), moreOptions.begin(), moreOptions.end());
    return Start(options);
}

std::string DeviceSim::Output() const
{
    return FileContent(m_folder + "output");
}
