#pragma once

#include "Base/Noncopyable.h"
#include "CapabilitySet/Documents/Abilities.h"

#include <functional>
#include <list>
#include <map>
#include <memory>
#include <mutex>

namespace CapabilitySet {

/// Why an ability was not got: the SDK's error pair. A document that came but could not be read is
/// QXNET_ERROR_UNREADABLE, a negative login or channel QXNET_ERROR_ARGUMENT, both with module 0.
struct AbilityError
{
    std::uint32_t error = 0;
    std::uint32_t moduleError = 0;
};

/// Asks devices for their abilities and keeps the answers, so that a second question asks no device. What
/// was used longest ago goes first when the documents kept come to more than the limit. Failures are not
/// kept.
///
/// Threads: any. No lock is held while a device is asked; threads that have the same question at the same
/// time may each ask.
class CAbilityCache : Base::CNoncopyable
{
public:
    /// Gets the document of a channel, or else the reason, which it has logged.
    using Ask = std::function<bool(std::int32_t login, std::uint32_t kind, std::int32_t channel,
                                   std::string& document, AbilityError& error)>;

    static constexpr std::size_t kMostBytes = 16 * 1024 * 1024;

    explicit CAbilityCache(Ask ask, std::size_t mostBytes = kMostBytes);

    /// Ability is one of AnyAbility. login: a handle of the SDK; channel: from 1, 0 for the device itself.
    /// On failure there was one log line, and ability is as it was.
    template<typename Ability>
    [[nodiscard]] bool Get(std::int32_t login, std::int32_t channel, Ability& ability, AbilityError& error);

    /// Forgets what the session's device answered, also to questions that are under way.
    void Forget(std::int32_t login);

private:
    struct Key
    {
        std::int32_t login;
        std::int32_t channel;
        std::uint32_t kind;

        bool operator<(const Key& other) const;
    };
    struct Entry
    {
        Key key;
        std::shared_ptr<const AnyAbility> ability;
        std::size_t bytes;
    };
    using Entries = std::list<Entry>;

    /// nullptr when it is not known.
    std::shared_ptr<const AnyAbility> Find(const Key& key);
    /// How often something was forgotten; what was asked before the last time is not kept.
    std::uint64_t Forgotten() const;
    void Keep(const Key& key, std::shared_ptr<const AnyAbility> ability, std::size_t documentBytes,
              std::uint64_t forgotten);
    void Drop(Entries::iterator entry);

    template<typename Ability>
    bool Question(const Key& key, Ability& ability, AbilityError& error);

    const Ask m_ask;
    const std::size_t m_mostBytes;

    mutable std::mutex m_mutex;
    Entries m_entries; ///< the one used last in front
    std::map<Key, Entries::iterator> m_index;
    std::size_t m_bytes = 0;
    std::uint64_t m_forgotten = 0;
};

} // namespace CapabilitySet
