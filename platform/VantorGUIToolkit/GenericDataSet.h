#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <string>
#include <vector>

namespace VantorGUIToolkit {

/// One element of a data set. All texts are UTF-8.
struct DataElement
{
    std::string name;
    std::string text; ///< the character data directly inside, joined, without blanks at both ends
    std::map<std::string, std::string> attributes;
    std::vector<DataElement> children;

    /// The first child of this name; nullptr when there is none.
    const DataElement* Child(const std::string& childName) const;

    /// The element at a path of child names, such as "Page/Splitter", the first one at each step; nullptr for
    /// none.
    const DataElement* Find(const std::string& path) const;

    std::string Attribute(const std::string& key, const std::string& fallback = {}) const;
    /// The attribute as a decimal integer; the fallback when it is missing or anything else.
    int IntAttribute(const std::string& key, int fallback) const;
};

/// Reads small XML files, such as the layout files: well-formed documents without a document type, of bounded
/// size, depth and number of elements. No network, no entities but the five built in, no other files. An
/// object belongs to one thread.
class CGenericDataSet
{
public:
    static constexpr std::size_t kMaxBytes = 4 * 1024 * 1024;
    static constexpr int kMaxDepth = 64;
    static constexpr int kMaxElements = 100'000;

    /// Reads a file. False, with one log line and an empty data set, when it is missing, too large or not
    /// acceptable.
    [[nodiscard]] bool load(const QString& path);

    /// The same from memory; name stands for the document in the log line.
    [[nodiscard]] bool loadContent(const QByteArray& content, const QString& name);

    /// The outermost element; an element without name before a successful load.
    const DataElement& root() const { return m_root; }

private:
    DataElement m_root;
};

} // namespace VantorGUIToolkit
