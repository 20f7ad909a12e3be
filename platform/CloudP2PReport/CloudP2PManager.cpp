#include "CloudP2PReport/CloudP2PManager.h"

#include "Base/Log.h"
#include "Base/Singleton.h"

#include <filesystem>

namespace cloudreport {

namespace {

void SayWhyThereIsNoCloud(const std::filesystem::path& file, bool configured)
{
    if (configured)
        BASE_WARN("Cloud service: [%s] is not used, this edition has no cloud client.",
                  file.string().c_str());
    else
        BASE_INFO("Cloud service: none is configured, reports and peer-to-peer connections are off.");
}

} // namespace

CCloudP2PManager& CCloudP2PManager::Instance()
{
    return Base::CSingleton<CCloudP2PManager>::Instance();
}

bool CCloudP2PManager::loadConfig(const std::string& dir)
{
    const std::filesystem::path file = std::filesystem::path(dir) / "cloud.json";
    std::error_code ignored;
    const bool configured = std::filesystem::is_regular_file(file, ignored);
    std::call_once(m_said, [&] { SayWhyThereIsNoCloud(file, configured); });
    return configured;
}

bool CCloudP2PManager::init()
{
    return false;
}

bool CCloudP2PManager::enableP2P(bool enable)
{
    return !enable;
}

bool CCloudP2PManager::isLoggedIn() const
{
    return false;
}

bool CCloudP2PManager::setLoginInfo()
{
    return false;
}

bool CCloudP2PManager::startFetchDeviceList()
{
    return false;
}

OpenSDKInfo CCloudP2PManager::openSDKInfo() const
{
    return {};
}

} // namespace cloudreport
