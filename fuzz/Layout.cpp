// Layout files: the toolkit's reader of small XML documents.
//
// Input: the document.

#include "Fuzz.h"
#include "VantorGUIToolkit/GenericDataSet.h"

namespace {

using VantorGUIToolkit::CGenericDataSet;
using VantorGUIToolkit::DataElement;

bool operator==(const DataElement& left, const DataElement& right)
{
    return left.name == right.name && left.text == right.text && left.attributes == right.attributes &&
           std::equal(left.children.begin(), left.children.end(), right.children.begin(),
                      right.children.end(),
                      [](const DataElement& a, const DataElement& b) { return a == b; });
}

/// Characters that a reader would change or take for mark-up, as references.
std::string Escaped(const std::string& text)
{
    std::string escaped;
    for (const char c : text) {
        if (std::string_view("<>&\"'\r\n\t").find(c) == std::string_view::npos)
            escaped += c;
        else
            escaped += "&#" + std::to_string(static_cast<int>(c)) + ";";
    }
    return escaped;
}

std::string Written(const DataElement& element)
{
    std::string xml = "<" + element.name;
    for (const auto& [name, value] : element.attributes)
        xml += " " + name + "=\"" + Escaped(value) + "\"";
    xml += ">" + Escaped(element.text);
    for (const DataElement& child : element.children)
        xml += Written(child);
    return xml + "</" + element.name + ">";
}

/// The number of elements; the check of depth on the way.
std::size_t Count(const DataElement& element, std::size_t depth)
{
    FUZZ_CHECK(depth <= CGenericDataSet::kMaxDepth && !element.name.empty());
    std::size_t count = 1;
    for (const DataElement& child : element.children) {
        FUZZ_CHECK(element.Child(child.name)->name == child.name);
        count += Count(child, depth + 1);
    }
    for (const auto& [name, value] : element.attributes)
        FUZZ_CHECK(element.IntAttribute(name, 1) == element.IntAttribute(name, 2) || value != "0");
    return count;
}

bool Load(CGenericDataSet& set, const QByteArray& document)
{
    const fuzz::CLogWatch log;
    const bool loaded = set.loadContent(document, "input");
    FUZZ_CHECK(log.Count() == (loaded ? 0 : 1));
    FUZZ_CHECK(loaded != set.root().name.empty());
    return loaded;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    CGenericDataSet set;
    const QByteArray document(reinterpret_cast<const char*>(data), static_cast<int>(size));
    if (!Load(set, document))
        return 0;
    FUZZ_CHECK(Count(set.root(), 1) <= CGenericDataSet::kMaxElements);
    // libxml2 gives the addresses of name spaces with their references unresolved, so these do not come back.
    if (document.contains("xmlns"))
        return 0;
    const DataElement first = set.root();
    FUZZ_CHECK(Load(set, QByteArray::fromStdString(Written(first))));
    FUZZ_CHECK(set.root() == first);
    return 0;
}
