#pragma once

#include "ChildProcess/ChildProcess.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A session bus with a keyring of its own in a test's folder: programs that the test starts, and the test
/// itself, use it while it lives. Nothing runs and nothing is left of it afterwards.
class PrivateKeyring
{
public:
    /// folder: ends in "/" and is $XDG_RUNTIME_DIR.
    explicit PrivateKeyring(const std::string& folder);
    ~PrivateKeyring();

    enum class Service { None, Locked, Unlocked };
    /// Ends the service that runs and starts it anew; the entries are kept. Once unlocked before it is
    /// locked.
    void Start(Service service);

private:
    void Set(const char* name, const std::string& value);
    void StartBus();

    const std::string m_folder;
    std::vector<std::pair<std::string, std::optional<std::string>>> m_environment; // as it was
    CChildProcess m_bus;
    std::unique_ptr<CChildProcess> m_service;
};
