#include "QxNetSDK/library/transport/Resolver.h"

#include <condition_variable>
#include <map>
#include <memory>
#include <system_error>
#include <thread>

namespace sdk {

namespace {

constexpr std::size_t kMostLookUps = 16;

using Name = std::pair<std::string, std::uint16_t>;

struct LookUp
{
    bool isDone = false;
    int error = 0;
    std::vector<system::Endpoint> endpoints;
};

/// The look-ups under way. Never destroyed: threads that hang in one may outlive everything else.
struct LookUps : IWaiting
{
    std::mutex mutex;
    std::condition_variable changed;
    std::map<Name, std::shared_ptr<LookUp>> all;

    void Wake() override
    {
        // Without the lock a waiting thread could be between its look and its sleep.
        const std::lock_guard lock(mutex);
        changed.notify_all();
    }
};

LookUps& TheLookUps()
{
    static LookUps& lookUps = *new LookUps;
    return lookUps;
}

void RunLookUp(const Name& name)
{
    LookUp result;
    result.error = system::LookUp(name.first, name.second, false, result.endpoints);
    result.isDone = true;
    LookUps& lookUps = TheLookUps();
    const std::lock_guard lock(lookUps.mutex);
    const auto found = lookUps.all.find(name);
    *found->second = std::move(result);
    lookUps.all.erase(found);
    lookUps.changed.notify_all();
}

/// The look-up of a name, begun if need be; null when there are too many already.
std::shared_ptr<LookUp> Join(LookUps& lookUps, const Name& name)
{
    const auto found = lookUps.all.find(name);
    if (found != lookUps.all.end())
        return found->second;
    if (lookUps.all.size() >= kMostLookUps)
        return nullptr;
    const auto begun = lookUps.all.emplace(name, std::make_shared<LookUp>()).first;
    try {
        std::thread(RunLookUp, name).detach();
    } catch (const std::system_error&) {
        lookUps.all.erase(begun);
        return nullptr;
    }
    return begun->second;
}

} // namespace

Failure Resolve(const std::string& host, std::uint16_t port, Deadline deadline, CInterrupt& interrupt,
                std::vector<system::Endpoint>& endpoints)
{
    endpoints.clear();
    if (system::LookUp(host, port, true, endpoints) == 0 && !endpoints.empty())
        return {};
    LookUps& lookUps = TheLookUps();
    const CInterrupt::CGuard guard(interrupt, lookUps);
    std::unique_lock lock(lookUps.mutex);
    std::shared_ptr<LookUp> lookUp;
    while (!interrupt.IsSet()) {
        if (!lookUp)
            lookUp = Join(lookUps, {host, port});
        if (lookUp && lookUp->isDone)
            break;
        if (lookUps.changed.wait_until(lock, deadline) == std::cv_status::timeout)
            return {QXNET_ERROR_RESOLVE};
    }
    if (!lookUp || !lookUp->isDone || lookUp->error != 0 || lookUp->endpoints.empty())
        return {QXNET_ERROR_RESOLVE, lookUp ? static_cast<std::uint32_t>(lookUp->error) : 0};
    endpoints = lookUp->endpoints;
    return {};
}

} // namespace sdk
