#pragma once

#include <cstddef>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// Reading small XML documents that are not trusted, whole, with limits.
namespace XmlTree {

/// One element. All texts are UTF-8.
struct Element
{
    std::string name;
    std::string text; ///< the characters directly inside, joined, without blanks at both ends
    std::map<std::string, std::string> attributes;
    std::vector<Element> children;

    /// The first child of this name; nullptr when there is none.
    const Element* Child(const std::string& childName) const;

    /// The element at a path of child names, such as "Page/Splitter", the first one at each step; nullptr for
    /// none.
    const Element* Find(const std::string& path) const;

    std::string Attribute(const std::string& key, const std::string& fallback = {}) const;
    /// The attribute as a decimal integer; the fallback when it is missing or anything else.
    int IntAttribute(const std::string& key, int fallback) const;
};

/// What a document may have at most.
struct Limits
{
    std::size_t bytes;
    std::size_t depth; ///< the outermost element has 1
    std::size_t elements;
    /// From one "<" to the next. Keeps an element from having so many attributes that comparing them all
    /// takes long.
    std::size_t tagBytes = std::numeric_limits<std::size_t>::max();
};

enum class Encoding {
    Declared, ///< what the document says of itself; UTF-8 when it says nothing
    Utf8,     ///< whatever it says
};

/// Refused are what is not well-formed, a document type (and with it every entity but the five built in), and
/// what is over a limit: then false, problem says why, and root is as it was. Nothing else is opened or
/// asked. Any thread.
[[nodiscard]] bool Read(std::string_view document, const Limits& limits, Encoding encoding, Element& root,
                        std::string& problem);

} // namespace XmlTree
