#pragma once

#include "XmlTree/XmlTree.h"

#include <QByteArray>
#include <QString>

namespace VantorGUIToolkit {

using DataElement = XmlTree::Element;

/// Reads small XML files, such as the layout files: well-formed documents without a document type, of bounded
/// size, depth and number of elements. No network, no entities but the five built in, no other files. An
/// object belongs to one thread.
class CGenericDataSet
{
public:
    static constexpr std::size_t kMaxBytes = 4 * 1024 * 1024;
    static constexpr std::size_t kMaxDepth = 64;
    static constexpr std::size_t kMaxElements = 100'000;

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
