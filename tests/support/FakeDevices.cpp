#include "support/FakeDevices.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <map>
#include <mutex>

namespace {

struct Entry
{
    fakedevices::Device device;
    int logins = 0;
    int pages = 0;
    std::map<std::pair<std::uint32_t, std::int32_t>, std::string> written;
};

struct Session
{
    std::string host;
    std::uint32_t timeoutMs;
};

struct World
{
    std::mutex mutex;
    std::map<std::string, Entry> devices;
    std::map<std::int32_t, Session> sessions;
    std::int32_t next = 0;
    int inits = 0;
    int cleanups = 0; ///< that were the last ones
    int hanging = 0;  ///< calls that wait for an answer
    std::condition_variable ended;
};

World& TheWorld()
{
    static World world;
    return world;
}

thread_local std::uint32_t t_error = 0;

int Fail(std::uint32_t error)
{
    t_error = error;
    return 0;
}

/// A device that does not answer takes the time that the login gave, unless the library ends meanwhile.
int FailInTime(std::uint32_t error, std::uint32_t timeoutMs, std::unique_lock<std::mutex>& lock)
{
    World& world = TheWorld();
    if (error != QXNET_ERROR_ANSWER_TIMEOUT)
        return Fail(error);
    const int before = world.cleanups;
    ++world.hanging;
    const bool isEnded = world.ended.wait_for(lock, std::chrono::milliseconds(timeoutMs),
                                              [&] { return world.cleanups != before; });
    --world.hanging;
    return Fail(isEnded ? std::uint32_t{QXNET_ERROR_CLOSED} : error);
}

void FillPage(const fakedevices::Device& device, std::uint32_t from, QxNetChannelPage& page)
{
    page = {};
    page.size = sizeof page;
    page.total = static_cast<std::uint32_t>(device.channels.size());
    page.changes = device.changes;
    for (std::uint32_t at = from - 1; at < page.total && page.count < QXNET_CHANNELS_PER_PAGE; ++at)
        page.channels[page.count++] = device.channels[at];
}

} // namespace

namespace fakedevices {

Device Make(std::uint32_t channels)
{
    Device device;
    device.info.size = sizeof device.info;
    device.info.typeCode = QXNET_DEVICE_RECORDER;
    device.info.channels = channels;
    device.info.alarmInputs = device.info.alarmOutputs = 2;
    for (std::uint32_t number = 1; number <= channels; ++number) {
        QxNetChannelState& channel = device.channels.emplace_back();
        channel.channel = number;
        channel.state = QXNET_CHANNEL_ONLINE;
        std::strcpy(channel.name, ("Camera " + std::to_string(number)).c_str());
    }
    return device;
}

void Set(const std::string& host, const Device& device)
{
    std::lock_guard<std::mutex> lock(TheWorld().mutex);
    TheWorld().devices[host].device = device;
}

void Clear()
{
    std::lock_guard<std::mutex> lock(TheWorld().mutex);
    TheWorld().devices.clear();
    TheWorld().sessions.clear();
}

int Sessions(const std::string& host)
{
    std::lock_guard<std::mutex> lock(TheWorld().mutex);
    const auto& all = TheWorld().sessions;
    return static_cast<int>(
        std::count_if(all.begin(), all.end(), [&](const auto& entry) { return entry.second.host == host; }));
}

int Hanging()
{
    std::lock_guard<std::mutex> lock(TheWorld().mutex);
    return TheWorld().hanging;
}

int Logins(const std::string& host)
{
    std::lock_guard<std::mutex> lock(TheWorld().mutex);
    return TheWorld().devices[host].logins;
}

int Pages(const std::string& host)
{
    std::lock_guard<std::mutex> lock(TheWorld().mutex);
    return TheWorld().devices[host].pages;
}

std::string Written(const std::string& host, std::uint32_t command, int channel)
{
    std::lock_guard<std::mutex> lock(TheWorld().mutex);
    return TheWorld().devices[host].written[{command, channel}];
}

} // namespace fakedevices

int QxNet_Init(void)
{
    std::lock_guard<std::mutex> lock(TheWorld().mutex);
    ++TheWorld().inits;
    return 1;
}

int QxNet_Cleanup(void)
{
    World& world = TheWorld();
    std::lock_guard<std::mutex> lock(world.mutex);
    if (world.inits == 0)
        return Fail(QXNET_ERROR_NOT_INITIALISED);
    if (--world.inits > 0)
        return 1;
    world.sessions.clear();
    ++world.cleanups;
    world.ended.notify_all();
    return 1;
}

int QxNet_SetTrustFile(const char*)
{
    return 1;
}

int32_t QxNet_Login(const QxNetLogin* login, QxNetDeviceInfo* info)
{
    World& world = TheWorld();
    std::unique_lock<std::mutex> lock(world.mutex);
    const auto found = world.devices.find(login->address);
    if (world.inits == 0 || found == world.devices.end())
        return Fail(world.inits == 0 ? QXNET_ERROR_NOT_INITIALISED : QXNET_ERROR_UNREACHABLE) - 1;
    Entry& entry = found->second;
    ++entry.logins;
    std::uint32_t error = entry.device.error;
    if (error == 0 && entry.device.password != login->password)
        error = QXNET_ERROR_PASSWORD;
    if (error == 0) {
        *info = entry.device.info;
        world.sessions[world.next] = {login->address, login->exchangeTimeoutMs};
        return world.next++;
    }
    return FailInTime(error, login->connectTimeoutMs, lock) - 1;
}

int QxNet_Logout(int32_t login)
{
    std::lock_guard<std::mutex> lock(TheWorld().mutex);
    return TheWorld().sessions.erase(login) > 0 ? 1 : 0;
}

int NET_DVR_SetDVRConfig(int32_t login, uint32_t command, int32_t channel, const void* structure,
                         uint32_t size)
{
    World& world = TheWorld();
    std::lock_guard<std::mutex> lock(world.mutex);
    const auto session = world.sessions.find(login);
    if (session == world.sessions.end())
        return Fail(QXNET_ERROR_HANDLE);
    world.devices[session->second.host].written[{command, channel}].assign(
        static_cast<const char*>(structure), size);
    return 1;
}

/// Structures that are none of watching are zero but for their size.
int NET_DVR_GetDVRConfig(int32_t login, uint32_t command, int32_t channel, void* structure, uint32_t size)
{
    World& world = TheWorld();
    std::unique_lock<std::mutex> lock(world.mutex);
    const auto session = world.sessions.find(login);
    if (session == world.sessions.end())
        return Fail(QXNET_ERROR_HANDLE);
    Entry& entry = world.devices[session->second.host];
    if (entry.device.error != 0) {
        const std::uint32_t timeoutMs = session->second.timeoutMs;
        return FailInTime(entry.device.error, timeoutMs, lock);
    }
    if (command == QXNET_GET_DEVICE_INFO) {
        std::memcpy(structure, &entry.device.info, sizeof entry.device.info);
    } else if (command != QXNET_GET_CHANNEL_PAGE) {
        std::memset(structure, 0, size);
        std::memcpy(structure, &size, sizeof size);
    } else {
        ++entry.pages;
        FillPage(entry.device, static_cast<std::uint32_t>(channel),
                 *static_cast<QxNetChannelPage*>(structure));
    }
    return 1;
}

int QxNet_GetAbility(int32_t, uint32_t, int32_t, char*, uint32_t, uint32_t*)
{
    return Fail(QXNET_ERROR_NOT_SUPPORTED);
}

uint32_t NET_DVR_GetLastError(void)
{
    return t_error;
}

uint32_t NET_DVR_GetLastErrorModelCode(uint32_t*)
{
    return 0;
}
