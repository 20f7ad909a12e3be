#include "LPC_Wire/Hello.h"

#include "LPC_Wire/FrameSet.h"
#include "LPC_Wire/Limits.h"

#include <algorithm>

namespace lpc {
namespace {

constexpr const char* kVersionHeader = "version";
constexpr const char* kNameHeader = "name";

std::string Value(const HeaderMap& headers, const char* key)
{
    const auto found = headers.find(key);
    return found == headers.end() ? std::string() : found->second;
}

bool IsThisVersion(const HeaderMap& headers)
{
    return Value(headers, kVersionHeader) == std::to_string(kProtocolVersion);
}

} // namespace

HeaderMap HelloHeaders(const std::string& clientName)
{
    return {{kNameHeader, clientName}, {kVersionHeader, std::to_string(kProtocolVersion)}};
}

HeaderMap HelloAnswerHeaders()
{
    return {{kVersionHeader, std::to_string(kProtocolVersion)}};
}

bool IsClientName(const std::string& name)
{
    return !name.empty() && name.size() <= kMaxClientName &&
           std::none_of(name.begin(), name.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; });
}

int CheckHello(const HeaderMap& headers)
{
    return IsThisVersion(headers) && IsClientName(HelloName(headers)) ? kNoError : kRefused;
}

std::string HelloName(const HeaderMap& headers)
{
    return Value(headers, kNameHeader);
}

int CheckHelloAnswer(const WireMessage& message)
{
    if (message.kind == Kind::Refusal)
        return RefusalError(message.headers);
    return message.kind == Kind::HelloAnswer && IsThisVersion(message.headers) ? kNoError : kRefused;
}

} // namespace lpc
