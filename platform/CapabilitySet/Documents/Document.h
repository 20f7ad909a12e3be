#pragma once

#include "XmlTree/XmlTree.h"

/// Reading the XML documents of abilities, which come from devices and are not trusted.
namespace CapabilitySet {

/// Limits of a document; docs/device-abilities.md states them too.
constexpr std::size_t kMostDocumentBytes = 1024 * 1024;
constexpr std::size_t kMostDepth = 16;
constexpr std::size_t kMostElements = 20'000;
constexpr std::size_t kMostTagBytes = 4096;

/// As XmlTree::Read, in UTF-8 and with these limits.
[[nodiscard]] bool ReadDocument(std::string_view document, XmlTree::Element& root, std::string& problem);

} // namespace CapabilitySet
