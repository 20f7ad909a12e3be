#pragma once

#include "device/ErrorTexts.h"
#include "device/Invocation.h"

#include "DeviceStructures/Commands.h"
#include "DeviceStructures/Values.h"

#include <string>
#include <vector>

namespace devicetool {

/// One session with a device, ended with the object. What fails gives false, and LastFailure tells why.
/// Structures that a device sends are checked against their layouts.
class CDevice
{
public:
    CDevice() = default;
    ~CDevice();
    CDevice(const CDevice&) = delete;
    CDevice& operator=(const CDevice&) = delete;

    struct Way
    {
        bool tls = false;
        std::uint32_t timeoutMs = 0; ///< of connecting, and of each exchange; 0: the library's
        std::string trustFile;
    };

    [[nodiscard]] bool Login(const Target& target, const std::string& password, const Way& way);

    /// Batch items are read and written as a batch of one.
    [[nodiscard]] bool Get(const devices::ConfigCommand& command, std::int32_t channel,
                           devices::Octets& structure);
    [[nodiscard]] bool Set(const devices::ConfigCommand& command, std::int32_t channel,
                           const devices::Octets& structure);

    struct Item
    {
        std::uint32_t channel;
        Failure failure; ///< error 0: it went well
        devices::Octets structure;
    };

    /// Many channels: batch items in one exchange, of at most 256; others one after the other. False when
    /// nothing was answered at all; what failed by itself has its failure.
    [[nodiscard]] bool GetMany(const devices::ConfigCommand& command, std::vector<Item>& items);
    [[nodiscard]] bool SetMany(const devices::ConfigCommand& command, std::vector<Item>& items);

    [[nodiscard]] bool Ability(std::uint32_t kind, std::int32_t channel, std::string& document);

    const Failure& LastFailure() const { return m_failure; }

private:
    bool Noted(bool success);
    bool Fits(const devices::Layout& layout, const devices::Octets& structure);
    template<typename Work>
    bool OneByOne(std::vector<Item>& items, Work work);
    bool GetBatch(const devices::ConfigCommand& command, std::vector<Item>& items);
    bool SetBatch(const devices::ConfigCommand& command, std::vector<Item>& items);

    std::int32_t m_login = -1;
    bool m_initialised = false;
    Failure m_failure;
};

} // namespace devicetool
