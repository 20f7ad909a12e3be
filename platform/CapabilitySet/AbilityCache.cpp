#include "CapabilitySet/AbilityCache.h"

#include "Base/Log.h"
#include "CapabilitySet/Documents/Parse.h"

#include <limits>
#include <tuple>

namespace CapabilitySet {

namespace {

/// An entry's own size beside what the document's length stands for.
constexpr std::size_t kEntryBytes = 512;

} // namespace

bool CAbilityCache::Key::operator<(const Key& other) const
{
    return std::tie(login, channel, kind) < std::tie(other.login, other.channel, other.kind);
}

CAbilityCache::CAbilityCache(Ask ask, std::size_t mostBytes) : m_ask(std::move(ask)), m_mostBytes(mostBytes)
{}

template<typename Ability>
bool CAbilityCache::Get(std::int32_t login, std::int32_t channel, Ability& ability, AbilityError& error)
{
    const Key key{login, channel, Ability::kKind};
    if (login < 0 || channel < 0) {
        BASE_ERROR("The %s of login %d, channel %d cannot be asked for.", Ability::kRoot, login, channel);
        error = {QXNET_ERROR_ARGUMENT, 0};
        return false;
    }
    if (const auto known = Find(key)) {
        ability = std::get<Ability>(*known);
        return true;
    }
    return Question(key, ability, error);
}

template<typename Ability>
bool CAbilityCache::Question(const Key& key, Ability& ability, AbilityError& error)
{
    const std::uint64_t forgotten = Forgotten();
    std::string document;
    std::string problem;
    Ability fresh;
    if (!m_ask(key.login, key.kind, key.channel, document, error))
        return false;
    if (!ParseAbility(document, fresh, problem)) {
        BASE_ERROR("The %s of login %d, channel %d cannot be read: %s.", Ability::kRoot, key.login,
                   key.channel, problem.c_str());
        error = {QXNET_ERROR_UNREADABLE, 0};
        return false;
    }
    Keep(key, std::make_shared<AnyAbility>(fresh), document.size(), forgotten);
    ability = std::move(fresh);
    return true;
}

template bool CAbilityCache::Get(std::int32_t, std::int32_t, ChannelInput&, AbilityError&);
template bool CAbilityCache::Get(std::int32_t, std::int32_t, BasicFeatures&, AbilityError&);
template bool CAbilityCache::Get(std::int32_t, std::int32_t, RecordOptions&, AbilityError&);
template bool CAbilityCache::Get(std::int32_t, std::int32_t, CaptureOptions&, AbilityError&);
template bool CAbilityCache::Get(std::int32_t, std::int32_t, DetectionOptions&, AbilityError&);

std::shared_ptr<const AnyAbility> CAbilityCache::Find(const Key& key)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_index.find(key);
    if (found == m_index.end())
        return nullptr;
    m_entries.splice(m_entries.begin(), m_entries, found->second);
    return found->second->ability;
}

std::uint64_t CAbilityCache::Forgotten() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_forgotten;
}

void CAbilityCache::Keep(const Key& key, std::shared_ptr<const AnyAbility> ability, std::size_t documentBytes,
                         std::uint64_t forgotten)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (forgotten != m_forgotten)
        return;
    if (const auto known = m_index.find(key); known != m_index.end())
        Drop(known->second);
    m_entries.push_front({key, std::move(ability), documentBytes + kEntryBytes});
    m_index[key] = m_entries.begin();
    m_bytes += m_entries.front().bytes;
    while (m_bytes > m_mostBytes)
        Drop(std::prev(m_entries.end()));
}

void CAbilityCache::Drop(Entries::iterator entry)
{
    m_bytes -= entry->bytes;
    m_index.erase(entry->key);
    m_entries.erase(entry);
}

void CAbilityCache::Forget(std::int32_t login)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_forgotten;
    auto next = m_index.lower_bound({login, std::numeric_limits<std::int32_t>::min(), 0});
    while (next != m_index.end() && next->first.login == login)
        Drop((next++)->second);
}

} // namespace CapabilitySet
