#pragma once

#include "simulator/device/StateFolder.h"

#include <mutex>
#include <shared_mutex>
#include <unordered_map>

namespace simulator {

/// The parameters of one device that were ever changed, in memory and in its folder. Any thread.
class CParameters
{
public:
    explicit CParameters(CStateFolder& folder) : m_folder(folder) {}

    /// Reads what the folder has. False with the reason in error when it cannot be used.
    [[nodiscard]] bool Load(std::string& error);

    /// Null when it was never set.
    Octets Find(const ParameterKey& key) const;

    /// Kept when it returns true; otherwise everything is as it was.
    [[nodiscard]] bool Set(const ParameterKey& key, Octets octets);

    /// Forgets those that the function names, also in the folder when it returns true; otherwise some stayed.
    [[nodiscard]] bool Forget(const std::function<bool(const ParameterKey&)>& means);

private:
    struct Hash
    {
        std::size_t operator()(const ParameterKey& key) const
        {
            return std::hash<unsigned long long>()((static_cast<unsigned long long>(key.command) << 32) |
                                                   key.channel);
        }
    };

    CStateFolder& m_folder;
    std::mutex m_writing; ///< held while files change, so that files and memory see the same order
    mutable std::shared_mutex m_mutex;
    std::unordered_map<ParameterKey, Octets, Hash> m_values;
};

} // namespace simulator
