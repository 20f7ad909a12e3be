#include "LPC_Forward/Answer.h"

#include "Base/Encrypt.h"
#include "Base/StringUtil.h"

#include <optional>

namespace lpcforward {

namespace {

std::optional<std::string> PercentDecoded(const std::string& segment)
{
    std::string text;
    for (std::size_t at = 0; at < segment.size(); ++at) {
        if (segment[at] != '%') {
            text += segment[at];
            continue;
        }
        const auto byte = Base::Encrypt::FromHex(segment.substr(at + 1, 2));
        if (!byte || byte->size() != 1)
            return std::nullopt;
        text += *byte;
        at += 2;
    }
    return text;
}

} // namespace

lpc::Message MakeAnswer(int status, int errorCode, const std::string& body)
{
    lpc::Message message{{{lpc::kStatusHeader, std::to_string(status)}}, body};
    if (errorCode != 0)
        message.headers[lpc::kErrorCodeHeader] = std::to_string(errorCode);
    if (!body.empty())
        message.headers["Content-Type"] = kJsonContentType;
    return message;
}

bool UrlMatches(const std::string& pattern, const std::string& url, std::vector<std::string>* stars)
{
    const auto wanted = Base::StringUtil::Split(pattern, '/');
    const auto got = Base::StringUtil::Split(url, '/');
    if (wanted.size() != got.size())
        return false;
    std::vector<std::string> found;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (wanted[i] != "*" && wanted[i] != got[i])
            return false;
        if (wanted[i] != "*")
            continue;
        const auto decoded = stars ? PercentDecoded(got[i]) : std::optional<std::string>(got[i]);
        if (!decoded || decoded->empty())
            return false;
        found.push_back(*decoded);
    }
    if (stars)
        *stars = std::move(found);
    return true;
}

} // namespace lpcforward
