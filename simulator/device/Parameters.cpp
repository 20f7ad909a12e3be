#include "simulator/device/Parameters.h"

#include <algorithm>

namespace simulator {

bool CParameters::Load(std::string& error)
{
    return m_folder.Open(
        [this](const ParameterKey& key, Octets octets) { m_values[key] = std::move(octets); }, error);
}

Octets CParameters::Find(const ParameterKey& key) const
{
    std::shared_lock<std::shared_mutex> lock(m_mutex);
    const auto value = m_values.find(key);
    return value == m_values.end() ? nullptr : value->second;
}

bool CParameters::Set(const ParameterKey& key, Octets octets)
{
    std::lock_guard<std::mutex> writing(m_writing);
    if (!m_folder.Keep(key, *octets))
        return false;
    std::lock_guard<std::shared_mutex> lock(m_mutex);
    m_values[key] = std::move(octets);
    return true;
}

bool CParameters::Forget(const std::function<bool(const ParameterKey&)>& means)
{
    std::lock_guard<std::mutex> writing(m_writing);
    std::lock_guard<std::shared_mutex> lock(m_mutex);
    for (auto value = m_values.begin(); value != m_values.end();) {
        const bool isForgotten = means(value->first) && m_folder.Remove(value->first);
        value = isForgotten ? m_values.erase(value) : std::next(value);
    }
    const bool isGone =
        std::none_of(m_values.begin(), m_values.end(), [&](const auto& value) { return means(value.first); });
    return m_folder.BringToDisk() && isGone;
}

} // namespace simulator
