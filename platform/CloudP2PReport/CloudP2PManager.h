#pragma once

#include "Base/Noncopyable.h"
#include "CloudP2PReport/OpenSDKInfo.h"

#include <mutex>
#include <string>

namespace cloudreport {

/// The login to a cloud service, over which devices behind other networks are reached peer to peer.
///
/// This edition has no cloud client. The calls of start-up are answered truthfully: nobody is logged in, and
/// what would need the service is refused. The log says why once in a process, when the configuration is
/// loaded. Any thread.
class CCloudP2PManager : Base::CNoncopyable
{
public:
    static CCloudP2PManager& Instance();
    CCloudP2PManager() = default;

    /// Looks for the service's configuration "cloud.json" in the folder. False when there is none.
    bool loadConfig(const std::string& dir);

    /// Connects to the configured service. Always false in this edition.
    bool init();

    /// Switches connections peer to peer. True when they are as asked for afterwards: without a service, off.
    bool enableP2P(bool enable);

    bool isLoggedIn() const;

    /// Hands the login of the user over to the device SDK, and asks the service for the user's devices.
    /// False, without effect, while nobody is logged in.
    bool setLoginInfo();
    bool startFetchDeviceList();

    OpenSDKInfo openSDKInfo() const;

private:
    std::once_flag m_said;
};

} // namespace cloudreport
