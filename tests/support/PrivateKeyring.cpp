#include "support/PrivateKeyring.h"

#include "Keyring/Keyring.h"
#include "support/WaitUntil.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

// Without folders of services, so that the bus starts nothing by itself.
constexpr char kBusBegin[] =
    R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><auth>EXTERNAL</auth><listen>unix:path=)";
constexpr char kBusEnd[] =
    R"(</listen><policy context="default"><allow send_destination="*" eavesdrop="true"/>
<allow eavesdrop="true"/><allow own="*"/></policy></busconfig>)";

constexpr char kServiceCommand[] = "exec gnome-keyring-daemon --components=secrets --foreground ";

/// What the keyring says to somebody who asks for an entry that it does not have.
std::string Word()
{
    std::string why;
    keyring::Load("nobody-has-this", why);
    return why;
}

} // namespace

PrivateKeyring::PrivateKeyring(const std::string& folder) : m_folder(folder)
{
    Set("VANTOR_KEYRING", "");
    Set("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + m_folder + "bus");
    Set("XDG_DATA_HOME", m_folder + "keyring-data");
    Set("HOME", m_folder);
    StartBus();
}

PrivateKeyring::~PrivateKeyring()
{
    for (const auto& [name, value] : m_environment) {
        if (value)
            setenv(name.c_str(), value->c_str(), 1);
        else
            unsetenv(name.c_str());
    }
}

void PrivateKeyring::Set(const char* name, const std::string& value)
{
    const char* old = std::getenv(name);
    m_environment.emplace_back(name, old ? std::optional<std::string>(old) : std::nullopt);
    setenv(name, value.c_str(), 1);
}

void PrivateKeyring::StartBus()
{
    const std::string settings = m_folder + "bus.conf";
    std::ofstream(settings) << kBusBegin << m_folder << "bus" << kBusEnd;
    std::string error;
    const bool started = m_bus.Start({"dbus-daemon", "--config-file=" + settings, "--nofork", "--nopidfile"},
                                     m_folder + "bus.out", error);
    if (!started || !WaitUntil([&] { return std::filesystem::exists(m_folder + "bus"); }))
        ADD_FAILURE() << "no session bus: " << error;
}

void PrivateKeyring::Start(Service service)
{
    m_service.reset();
    if (service == Service::None)
        return;
    const bool isLocked = service == Service::Locked;
    const std::string password = m_folder + "keyring-password";
    std::ofstream(password) << "private";
    m_service = std::make_unique<CChildProcess>();
    std::string error;
    const bool started =
        m_service->Start({"sh", "-c", kServiceCommand + (isLocked ? std::string() : "--unlock <" + password)},
                         m_folder + "keyring.out", error);
    const std::string wanted = isLocked ? "the keyring is locked" : "the keyring has no such entry";
    if (!started || !WaitUntil([&] { return Word() == wanted; }))
        ADD_FAILURE() << "no keyring service: " << error << Word();
}
