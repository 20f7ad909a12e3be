#include "QxNetSDK/library/LastError.h"
#include "QxNetSDK/library/session/DeviceChecks.h"
#include "QxNetSDK/library/session/Library.h"

#include <cstring>

using sdk::Failure;

namespace {

constexpr char kHostCharacters[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.-_:%";

/// A text of the caller that ends within its array; nothing that could be more than one header line.
template<std::size_t size>
bool ReadText(const char (&text)[size], std::string& value)
{
    const void* end = std::memchr(text, 0, size);
    if (!end)
        return false;
    value = text;
    const auto isControl = [](unsigned char c) { return c < 0x20 || c == 0x7F; };
    return sdk::IsUtf8(value.data(), value.size()) && std::none_of(value.begin(), value.end(), isControl);
}

bool ReadTime(std::uint32_t value, std::uint32_t most, std::chrono::milliseconds& time)
{
    if (value != 0)
        time = std::chrono::milliseconds(value);
    return value == 0 || (value >= 100 && value <= most);
}

bool ReadLogin(const QxNetLogin* login, sdk::LoginSettings& settings)
{
    if (!login || login->size != sizeof *login || login->port == 0 || login->useTls > 1)
        return false;
    settings.device.port = login->port;
    settings.device.useTls = login->useTls == 1;
    const std::string& address = settings.device.address;
    return ReadTime(login->connectTimeoutMs, 60000, settings.connectTimeout) &&
           ReadTime(login->exchangeTimeoutMs, 600000, settings.exchangeTimeout) &&
           ReadText(login->address, settings.device.address) && ReadText(login->user, settings.user) &&
           ReadText(login->password, settings.password) && !address.empty() && address.size() <= 253 &&
           address.find_first_not_of(kHostCharacters) == std::string::npos;
}

} // namespace

extern "C" {

int QxNet_Init(void)
{
    return sdk::Outcome([] {
        sdk::CLibrary::Instance().Init();
        return Failure{};
    });
}

int QxNet_Cleanup(void)
{
    return sdk::Outcome([] { return sdk::CLibrary::Instance().Cleanup(); });
}

int QxNet_SetTrustFile(const char* path)
{
    return sdk::Outcome([=] { return sdk::CLibrary::Instance().SetTrustFile(path); });
}

int32_t QxNet_Login(const QxNetLogin* login, QxNetDeviceInfo* info)
{
    std::int32_t handle = -1;
    (void)sdk::Outcome([&]() -> Failure {
        sdk::LoginSettings settings;
        if (!ReadLogin(login, settings))
            return {QXNET_ERROR_ARGUMENT};
        return sdk::CLibrary::Instance().LogIn(std::move(settings), info, handle);
    });
    return handle;
}

int QxNet_Logout(int32_t login)
{
    return sdk::Outcome([=] { return sdk::CLibrary::Instance().LogOut(login); });
}

uint32_t NET_DVR_GetLastError(void)
{
    return sdk::LastFailure().code;
}

uint32_t NET_DVR_GetLastErrorModelCode(uint32_t* own)
{
    if (own)
        *own = sdk::LastFailure().own;
    return sdk::LastFailure().module;
}

} // extern "C"
