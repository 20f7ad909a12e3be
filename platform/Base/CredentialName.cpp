#include "Base/CredentialName.h"

#include <algorithm>
#include <array>
#include <string>

namespace Base {

namespace {

constexpr std::array<std::string_view, 10> kParts = {"password", "passwd",     "pwd",           "token",
                                                     "secret",   "credential", "authorization", "cookie",
                                                     "session",  "username"};
constexpr std::array<std::string_view, 3> kWords = {"pass", "pin", "auth"};
constexpr std::string_view kEnd = "key";

std::string LowerLetters(std::string_view name)
{
    std::string letters;
    for (char c : name)
        if (c != '-' && c != '_')
            letters += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return letters;
}

} // namespace

bool IsCredentialName(std::string_view name)
{
    const std::string letters = LowerLetters(name);
    const auto contains = [&](std::string_view part) { return letters.find(part) != std::string::npos; };
    const bool endsInKey = letters.size() >= kEnd.size() &&
                           letters.compare(letters.size() - kEnd.size(), kEnd.size(), kEnd) == 0;
    return endsInKey || std::any_of(kParts.begin(), kParts.end(), contains) ||
           std::find(kWords.begin(), kWords.end(), letters) != kWords.end();
}

} // namespace Base
