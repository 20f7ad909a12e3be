#include "QxNetSDK/library/http/Headers.h"

#include "QxNetSDK/library/http/Digest.h"
#include "QxNetSDK/library/http/Limits.h"

#include <algorithm>
#include <charconv>

namespace sdk {

namespace {

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsSame(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return Lower(a) == Lower(b); });
}

bool IsHexadecimal(char c)
{
    return (c >= '0' && c <= '9') || (Lower(c) >= 'a' && Lower(c) <= 'f');
}

bool IsSession(std::string_view value)
{
    return value == "ended" || (value.size() == 32 && std::all_of(value.begin(), value.end(), IsHexadecimal));
}

/// Those whose module is the HTTP status, as it is the user that is refused.
bool IsUserError(std::uint32_t error)
{
    return error >= QXNET_ERROR_LOCKED && error <= QXNET_ERROR_DEVICE_FULL;
}

} // namespace

std::optional<std::uint32_t> DecimalNumber(std::string_view text)
{
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

bool IsDeviceError(std::uint32_t error)
{
    return IsUserError(error) || error == QXNET_ERROR_VERSION ||
           (error >= QXNET_ERROR_NOT_SUPPORTED && error <= QXNET_ERROR_STORAGE);
}

Failure CHeaders::Add(std::string_view name, std::string_view value)
{
    if (++m_count > kMostHeaders || name.size() + value.size() + 4 > kMostLineBytes)
        return {QXNET_ERROR_TOO_LONG};
    if (IsSame(name, "Vantor-Protocol"))
        return Number(m_version, value);
    if (IsSame(name, "Vantor-Error"))
        return Number(m_error, value);
    if (IsSame(name, "Vantor-Module-Error"))
        return Number(m_moduleError, value);
    if (IsSame(name, "Vantor-Own-Error"))
        return Number(m_ownError, value);
    if (IsSame(name, "Vantor-Session"))
        return Session(value);
    if (IsSame(name, "WWW-Authenticate"))
        Challenge(value);
    if (IsSame(name, "Transfer-Encoding") || (IsSame(name, "Content-Encoding") && !IsSame(value, "identity")))
        return {QXNET_ERROR_NOT_A_DEVICE, m_status};
    return {};
}

Failure CHeaders::Number(std::optional<std::uint32_t>& member, std::string_view value) const
{
    const auto number = DecimalNumber(value);
    if (!number || member)
        return {QXNET_ERROR_UNREADABLE};
    member = number;
    return {};
}

Failure CHeaders::Session(std::string_view value)
{
    if (!IsSession(value) || !m_session.empty())
        return {QXNET_ERROR_UNREADABLE};
    m_session = value;
    return {};
}

void CHeaders::Challenge(std::string_view value)
{
    // A device may offer other schemes and algorithms beside ours, each in a header of its own.
    DigestChallenge ignored;
    if (m_challenge.empty() && IsSame(value.substr(0, 7), "Digest ") && ReadChallenge(value, ignored))
        m_challenge = value;
}

Failure CHeaders::Read(Answer& answer) const
{
    if (!m_version)
        return {QXNET_ERROR_NOT_A_DEVICE, m_status};
    if (*m_version != kProtocolVersion)
        return {QXNET_ERROR_VERSION, *m_version};
    answer.session = m_session;
    answer.challenge = m_challenge;
    return m_status >= 400 && m_status != 401 ? Refusal(answer.refusal) : Failure{};
}

Failure CHeaders::Refusal(Failure& refusal) const
{
    if (!m_error)
        return {QXNET_ERROR_NOT_A_DEVICE, m_status};
    const std::uint32_t module = IsUserError(*m_error) ? m_status : m_moduleError.value_or(0);
    refusal = IsDeviceError(*m_error) ? Failure{*m_error, module, m_ownError.value_or(0)}
                                      : Failure{QXNET_ERROR_DEVICE, module, m_ownError.value_or(*m_error)};
    if (*m_error == QXNET_ERROR_VERSION)
        refusal.module = *m_version;
    return {};
}

} // namespace sdk
