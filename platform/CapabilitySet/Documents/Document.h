#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Reading the XML documents of abilities, which come from devices and are not trusted.
namespace CapabilitySet {

/// Limits of a document; docs/device-abilities.md states them too.
constexpr std::size_t kMostDocumentBytes = 1024 * 1024;
constexpr std::size_t kMostDepth = 16; ///< the outermost element has 1
constexpr std::size_t kMostElements = 20'000;
/// From one "<" to the next. Keeps an element from having so many attributes that comparing them all takes
/// long.
constexpr std::size_t kMostTagBytes = 4096;

/// One element. All texts are UTF-8.
struct DocumentElement
{
    std::string name;
    std::string text; ///< the characters directly inside, joined, without blanks at both ends
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<DocumentElement> children;

    /// nullptr when there is none.
    const std::string* Attribute(std::string_view key) const;
};

/// Reads a whole document. Refused are what is not well-formed UTF-8, a document type (and with it every
/// entity but the five built in), and what is over a limit: then false, problem says why, and root is as it
/// was. Nothing else is opened or asked. Any thread.
[[nodiscard]] bool ReadDocument(std::string_view document, DocumentElement& root, std::string& problem);

} // namespace CapabilitySet
