#pragma once

#include "QxNetSDK/library/http/Answer.h"

#include <optional>
#include <string_view>

namespace sdk {

/// The headers of an answer that mean something, checked one by one and then together.
class CHeaders
{
public:
    explicit CHeaders(unsigned status) : m_status(status) {}

    /// TOO_LONG or UNREADABLE; NOT_A_DEVICE for bodies that are encoded in any way.
    Failure Add(std::string_view name, std::string_view value);
    /// NOT_A_DEVICE without the protocol's header, and for a refusal without a reason; VERSION for another
    /// one.
    Failure Read(Answer& answer) const;

private:
    Failure Number(std::optional<std::uint32_t>& member, std::string_view value) const;
    Failure Session(std::string_view value);
    void Challenge(std::string_view value);
    Failure Refusal(Failure& refusal) const;

    const unsigned m_status;
    unsigned m_count = 0;
    std::optional<std::uint32_t> m_version;
    std::optional<std::uint32_t> m_error;
    std::optional<std::uint32_t> m_moduleError;
    std::optional<std::uint32_t> m_ownError;
    std::string m_session;
    std::string m_challenge;
};

/// The whole text as a decimal number without sign; nothing for anything else.
std::optional<std::uint32_t> DecimalNumber(std::string_view text);

/// Whether a device may refuse with this error, of a request or of an item of a batch.
bool IsDeviceError(std::uint32_t error);

} // namespace sdk
