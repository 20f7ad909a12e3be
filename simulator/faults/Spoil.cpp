#include "simulator/faults/Faults.h"

#include <algorithm>

namespace simulator {

namespace {

/// The body, made shorter or longer.
Octets Resized(const Octets& body, std::size_t size)
{
    std::string octets = body ? *body : std::string();
    octets.resize(size, '\x55');
    return std::make_shared<const std::string>(std::move(octets));
}

std::size_t SizeOf(const Octets& body)
{
    return body ? body->size() : 0;
}

std::string Garbage(std::size_t length)
{
    std::string octets(length, '\0');
    unsigned seed = 0x9e3779b9U;
    for (char& octet : octets) {
        seed = seed * 1664525U + 1013904223U;
        octet = static_cast<char>(seed >> 24);
    }
    return octets;
}

std::vector<std::string> Headers(std::size_t count)
{
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < count; ++i)
        lines.push_back("Vantor-Filler-" + std::to_string(i) + ": 0");
    return lines;
}

} // namespace

void Spoil(const FaultRule& rule, HttpAnswer& answer)
{
    Delivery& delivery = answer.delivery;
    const auto amount = static_cast<std::size_t>(rule.amount);
    switch (rule.kind) {
    case FaultKind::Delay:
        delivery.delay = std::chrono::milliseconds(rule.amount);
        break;
    case FaultKind::Cut:
        delivery.cutAfter = amount;
        break;
    case FaultKind::Truncate:
        answer.body = Resized(answer.body, SizeOf(answer.body) - std::min(SizeOf(answer.body), amount));
        break;
    case FaultKind::Oversize:
        answer.body = Resized(answer.body, SizeOf(answer.body) + amount);
        break;
    case FaultKind::Drip:
        delivery.dripEvery = std::chrono::milliseconds(std::max<unsigned long long>(1, rule.amount));
        break;
    case FaultKind::Silent:
        delivery.silent = true;
        break;
    case FaultKind::Headers:
        delivery.moreHeaders = Headers(amount);
        break;
    case FaultKind::Length:
        delivery.claimedLength = rule.amount;
        break;
    case FaultKind::Version:
        delivery.version = std::to_string(rule.amount);
        break;
    case FaultKind::NoKeepAlive:
        delivery.closes = true;
        break;
    case FaultKind::Garbage:
        delivery.insteadOfAnswer = Garbage(std::min<std::size_t>(amount, 1024 * 1024));
        break;
    case FaultKind::Refuse:
    case FaultKind::Error:
        break;
    }
}

} // namespace simulator
