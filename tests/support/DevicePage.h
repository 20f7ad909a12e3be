#pragma once

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

/// A message that docs/device-protocol.md shows, as the bytes that travel.
struct PageMessage
{
    bool isRequest = false;
    std::string bytes;
};

/// Bytes from words of two hexadecimal digits, "00*28" meaning 28 of them.
inline std::string BytesOfHex(const std::string& line)
{
    std::string bytes;
    std::istringstream words(line);
    for (std::string word; words >> word;)
        bytes.append(word.size() > 2 ? std::stoul(word.substr(3)) : 1,
                     static_cast<char>(std::stoul(word.substr(0, 2), nullptr, 16)));
    return bytes;
}

/// All messages of the page, in its order.
inline std::vector<PageMessage> PageMessages(const std::string& path)
{
    std::ifstream page(path);
    std::vector<PageMessage> messages;
    bool isInside = false;
    bool isBody = false;
    for (std::string line; std::getline(page, line);) {
        if (line == "```device-request" || line == "```device-answer") {
            messages.push_back({line == "```device-request", {}});
            isInside = true;
            isBody = false;
        } else if (isInside && (line == "```" || line.empty())) {
            messages.back().bytes += isBody ? "" : "\r\n";
            isBody = true;
            isInside = line.empty();
        } else if (isInside) {
            messages.back().bytes += isBody ? BytesOfHex(line) : line + "\r\n";
        }
    }
    return messages;
}
