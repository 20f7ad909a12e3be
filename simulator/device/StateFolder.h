#pragma once

#include "simulator/server/Http.h"

#include <functional>

namespace simulator {

/// Which parameter of which channel a device keeps.
struct ParameterKey
{
    unsigned command = 0; ///< that which gets it
    unsigned channel = 0;

    bool operator==(const ParameterKey& other) const
    {
        return command == other.command && channel == other.channel;
    }
};

/// The files of one device: one for each parameter that was ever changed, named by command and channel, with
/// a check of its content. Without a folder nothing is kept. Writes of one file must not overlap.
class CStateFolder
{
public:
    using Reader = std::function<void(const ParameterKey&, Octets)>;
    using Complain = std::function<void(const std::string& line)>;

    /// folder: empty, or a path ending in "/" that exists or can be made.
    CStateFolder(std::string folder, Complain complain);

    /// Makes the folder and gives all that is kept to the reader. A damaged file is set aside under
    /// "<name>.damaged", with one line. False with the reason in error when the folder cannot be used.
    [[nodiscard]] bool Open(const Reader& reader, std::string& error);

    /// On the disk when it returns true.
    [[nodiscard]] bool Keep(const ParameterKey& key, const std::string& octets);
    /// Not on the disk before BringToDisk.
    [[nodiscard]] bool Remove(const ParameterKey& key);
    [[nodiscard]] bool BringToDisk();

    /// Empty, or ending in "/".
    const std::string& Path() const { return m_folder; }

private:
    void ReadFile(const std::string& name, const Reader& reader);

    const std::string m_folder;
    const Complain m_complain;
};

} // namespace simulator
