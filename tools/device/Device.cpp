#include "device/Device.h"

#include "QxNetSDK/QxNetSDK.h"

#include <algorithm>
#include <cstring>

namespace devicetool {

namespace {

template<std::size_t Size>
bool Copy(const std::string& text, char (&to)[Size])
{
    if (text.size() >= Size)
        return false;
    std::memcpy(to, text.data(), text.size());
    return true;
}

std::vector<tagNET_DVR_CHANNEL_GROUP> Groups(const std::vector<CDevice::Item>& items)
{
    std::vector<tagNET_DVR_CHANNEL_GROUP> groups(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        groups[i].size = sizeof(groups[i]);
        groups[i].channel = items[i].channel;
    }
    return groups;
}

template<typename Integer>
std::uint32_t Bytes(Integer size)
{
    return static_cast<std::uint32_t>(size);
}

} // namespace

CDevice::~CDevice()
{
    if (m_login >= 0)
        QxNet_Logout(m_login);
    if (m_initialised)
        QxNet_Cleanup();
}

/// Keeps the library's reason for a failure.
bool CDevice::Noted(bool success)
{
    m_failure = {};
    if (!success) {
        m_failure.error = NET_DVR_GetLastError();
        m_failure.module = NET_DVR_GetLastErrorModelCode(&m_failure.own);
    }
    return success;
}

bool CDevice::Fits(const devices::Layout& layout, const devices::Octets& structure)
{
    const auto fault = devices::Check(layout, structure.data(), structure.size());
    if (fault)
        m_failure = {QXNET_ERROR_UNREADABLE, 0, 0, *fault};
    return !fault;
}

bool CDevice::Login(const Target& target, const std::string& password, const Way& way)
{
    m_initialised = Noted(QxNet_Init());
    if (!m_initialised || (!way.trustFile.empty() && !Noted(QxNet_SetTrustFile(way.trustFile.c_str()))))
        return false;
    QxNetLogin login{};
    login.size = sizeof(login);
    login.port = target.port;
    login.useTls = way.tls;
    login.connectTimeoutMs = way.timeoutMs ? std::min(way.timeoutMs, 60000u) : 0;
    login.exchangeTimeoutMs = way.timeoutMs;
    if (!Copy(target.host, login.address) || !Copy(target.user, login.user) ||
        !Copy(password, login.password)) {
        m_failure = {QXNET_ERROR_ARGUMENT, 0, 0, "host, user or password is too long"};
        return false;
    }
    m_login = QxNet_Login(&login, nullptr);
    return Noted(m_login >= 0);
}

bool CDevice::Get(const devices::ConfigCommand& command, std::int32_t channel, devices::Octets& structure)
{
    if (command.scope == devices::Scope::Item) {
        std::vector<Item> items{{Bytes(channel), {}, {}}};
        if (!GetBatch(command, items))
            return false;
        m_failure = items[0].failure;
        structure = items[0].structure;
        return m_failure.error == 0;
    }
    structure.assign(command.layout().size, 0);
    return Noted(NET_DVR_GetDVRConfig(m_login, command.get, channel, structure.data(),
                                      Bytes(structure.size()))) &&
           Fits(command.layout(), structure);
}

bool CDevice::Set(const devices::ConfigCommand& command, std::int32_t channel,
                  const devices::Octets& structure)
{
    if (command.scope != devices::Scope::Item)
        return Noted(
            NET_DVR_SetDVRConfig(m_login, command.set, channel, structure.data(), Bytes(structure.size())));
    std::vector<Item> items{{Bytes(channel), {}, structure}};
    if (!SetBatch(command, items))
        return false;
    m_failure = items[0].failure;
    return m_failure.error == 0;
}

bool CDevice::GetBatch(const devices::ConfigCommand& command, std::vector<Item>& items)
{
    const auto groups = Groups(items);
    const std::uint32_t size = command.layout().size;
    std::vector<std::uint32_t> status(items.size());
    devices::Octets structures(items.size() * size);
    if (!Noted(NET_DVR_GetDeviceConfig(m_login, command.get, Bytes(items.size()), groups.data(),
                                       Bytes(groups.size() * sizeof(groups[0])), status.data(),
                                       structures.data(), Bytes(structures.size()))))
        return false;
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i].structure.assign(&structures[i * size], &structures[i * size] + size);
        items[i].failure = {status[i], 0, 0, ""};
        if (!status[i] && !Fits(command.layout(), items[i].structure))
            items[i].failure = m_failure;
    }
    return true;
}

bool CDevice::SetBatch(const devices::ConfigCommand& command, std::vector<Item>& items)
{
    const auto groups = Groups(items);
    std::vector<std::uint32_t> status(items.size());
    devices::Octets structures;
    for (const Item& item : items)
        structures.insert(structures.end(), item.structure.begin(), item.structure.end());
    if (!Noted(NET_DVR_SetDeviceConfig(m_login, command.set, Bytes(items.size()), groups.data(),
                                       Bytes(groups.size() * sizeof(groups[0])), status.data(),
                                       structures.data(), Bytes(structures.size()))))
        return false;
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i].failure = {status[i], 0, 0, ""};
    return true;
}

/// A device that went away is not waited for again: the items that follow have the same failure.
template<typename Work>
bool CDevice::OneByOne(std::vector<Item>& items, Work work)
{
    bool isAway = false;
    for (Item& item : items) {
        const bool success = !isAway && work(item);
        item.failure = success ? Failure() : m_failure;
        isAway |=
            !success && m_failure.error >= QXNET_ERROR_RESOLVE && m_failure.error < QXNET_ERROR_NOT_A_DEVICE;
    }
    return true;
}

bool CDevice::GetMany(const devices::ConfigCommand& command, std::vector<Item>& items)
{
    if (command.scope == devices::Scope::Item)
        return GetBatch(command, items);
    return OneByOne(items, [&](Item& item) {
        return Get(command, static_cast<std::int32_t>(item.channel), item.structure);
    });
}

bool CDevice::SetMany(const devices::ConfigCommand& command, std::vector<Item>& items)
{
    if (command.scope == devices::Scope::Item)
        return SetBatch(command, items);
    return OneByOne(items, [&](Item& item) {
        return Set(command, static_cast<std::int32_t>(item.channel), item.structure);
    });
}

bool CDevice::Ability(std::uint32_t kind, std::int32_t channel, std::string& document)
{
    document.resize(1024 * 1024 + 1);
    std::uint32_t length = 0;
    const bool success =
        Noted(QxNet_GetAbility(m_login, kind, channel, document.data(), Bytes(document.size()), &length));
    document.resize(success ? length : 0);
    return success;
}

} // namespace devicetool
