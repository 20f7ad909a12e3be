#include "simulator/server/Http.h"

namespace simulator {

namespace {

const char* Reason(unsigned status)
{
    switch (status) {
    case 200:
        return "OK";
    case 204:
        return "No Content";
    case 401:
        return "Unauthorized";
    default:
        return status < 500 ? "Refused" : "Failed";
    }
}

/// None for an answer of which HTTP says itself that it has no body.
std::optional<std::uint64_t> LengthToTell(const HttpAnswer& answer)
{
    if (answer.delivery.claimedLength)
        return answer.delivery.claimedLength;
    if (answer.status == 204 && !answer.body)
        return std::nullopt;
    return answer.body ? answer.body->size() : 0;
}

} // namespace

HttpAnswer Refusal(unsigned status, unsigned error, unsigned module, std::optional<unsigned> own)
{
    HttpAnswer answer;
    answer.status = status;
    answer.headers = {{"Vantor-Error", std::to_string(error)},
                      {"Vantor-Module-Error", std::to_string(module)}};
    if (own)
        answer.headers.emplace_back("Vantor-Own-Error", std::to_string(*own));
    return answer;
}

std::string WireHead(const HttpAnswer& answer)
{
    std::string head = "HTTP/1.1 " + std::to_string(answer.status) + ' ' + Reason(answer.status) +
                       "\r\nVantor-Protocol: " + answer.delivery.version + "\r\n";
    if (const auto length = LengthToTell(answer))
        head += "Content-Length: " + std::to_string(*length) + "\r\n";
    for (const auto& [name, value] : answer.headers)
        head.append(name).append(": ").append(value).append("\r\n");
    for (const std::string& line : answer.delivery.moreHeaders)
        head.append(line).append("\r\n");
    if (answer.delivery.closes)
        head += "Connection: close\r\n";
    return head + "\r\n";
}

} // namespace simulator
