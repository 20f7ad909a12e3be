#include "XmlTree/XmlTree.h"

#include <libxml/xmlreader.h>

#include <algorithm>
#include <charconv>
#include <memory>

namespace XmlTree {

namespace {

struct FreeReader
{
    void operator()(xmlTextReader* reader) const { xmlFreeTextReader(reader); }
};
using Reader = std::unique_ptr<xmlTextReader, FreeReader>;

constexpr int kOptions = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;

std::string Text(const xmlChar* text)
{
    return text ? reinterpret_cast<const char*>(text) : "";
}

void Trim(std::string& text)
{
    constexpr const char* kBlanks = " \t\r\n";
    text.erase(0, std::min(text.find_first_not_of(kBlanks), text.size()));
    text.erase(text.find_last_not_of(kBlanks) + 1);
}

bool HasLongTag(std::string_view document, std::size_t most)
{
    std::size_t begin = 0;
    while (begin < document.size()) {
        const std::size_t end = std::min(document.find('<', begin + 1), document.size());
        if (end - begin > most)
            return true;
        begin = end;
    }
    return false;
}

/// Builds the elements while the reader walks the document, and stops it at the first thing that is refused.
class CBuilder
{
public:
    CBuilder(const Limits& limits, std::string& problem) : m_limits(limits), m_problem(problem)
    {
        m_problem.clear();
    }

    bool Build(xmlTextReader* reader)
    {
        xmlTextReaderSetStructuredErrorHandler(reader, &CBuilder::OnError, this);
        int result = xmlTextReaderRead(reader);
        while (result == 1 && m_problem.empty()) {
            Take(reader);
            if (m_problem.empty())
                result = xmlTextReaderRead(reader);
        }
        if (m_problem.empty() && result != 0)
            m_problem = "not well-formed";
        return m_problem.empty();
    }

    Element root;

private:
    static void OnError(void* self, xmlErrorPtr error)
    {
        auto* builder = static_cast<CBuilder*>(self);
        if (!builder->m_problem.empty() || error->level < XML_ERR_ERROR)
            return;
        std::string message = error->message ? error->message : "not well-formed";
        Trim(message);
        builder->m_problem = "line " + std::to_string(error->line) + ": " + message;
    }

    void Take(xmlTextReader* reader)
    {
        switch (xmlTextReaderNodeType(reader)) {
        case XML_READER_TYPE_DOCUMENT_TYPE:
            m_problem = "a document type is not allowed";
            break;
        case XML_READER_TYPE_ELEMENT:
            Begin(reader);
            break;
        case XML_READER_TYPE_TEXT:
        case XML_READER_TYPE_CDATA:
            m_open.back()->text += Text(xmlTextReaderConstValue(reader));
            break;
        case XML_READER_TYPE_END_ELEMENT:
            End();
            break;
        default:
            break;
        }
    }

    void Begin(xmlTextReader* reader)
    {
        if (m_open.size() >= m_limits.depth)
            m_problem = "nested deeper than " + std::to_string(m_limits.depth);
        else if (++m_elements > m_limits.elements)
            m_problem = "more than " + std::to_string(m_limits.elements) + " elements";
        if (!m_problem.empty())
            return;
        const bool empty = xmlTextReaderIsEmptyElement(reader) == 1;
        // Only the last child of an element is ever open, so that adding to the innermost one moves none of
        // the others.
        Element& element = m_open.empty() ? root : m_open.back()->children.emplace_back();
        m_open.push_back(&element);
        element.name = Text(xmlTextReaderConstName(reader));
        while (xmlTextReaderMoveToNextAttribute(reader) == 1)
            element.attributes[Text(xmlTextReaderConstName(reader))] = Text(xmlTextReaderConstValue(reader));
        if (empty)
            End();
    }

    void End()
    {
        Trim(m_open.back()->text);
        m_open.pop_back();
    }

    const Limits& m_limits;
    std::string& m_problem;
    std::vector<Element*> m_open;
    std::size_t m_elements = 0;
};

bool Refuse(std::string& problem, std::string reason)
{
    problem = std::move(reason);
    return false;
}

} // namespace

const Element* Element::Child(const std::string& childName) const
{
    const auto child = std::find_if(children.begin(), children.end(),
                                    [&](const Element& element) { return element.name == childName; });
    return child == children.end() ? nullptr : &*child;
}

const Element* Element::Find(const std::string& path) const
{
    const auto slash = path.find('/');
    const Element* child = Child(path.substr(0, slash));
    return child && slash != std::string::npos ? child->Find(path.substr(slash + 1)) : child;
}

std::string Element::Attribute(const std::string& key, const std::string& fallback) const
{
    const auto found = attributes.find(key);
    return found == attributes.end() ? fallback : found->second;
}

int Element::IntAttribute(const std::string& key, int fallback) const
{
    const std::string text = Attribute(key);
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? value : fallback;
}

bool Read(std::string_view document, const Limits& limits, Encoding encoding, Element& root,
          std::string& problem)
{
    if (document.empty())
        return Refuse(problem, "empty");
    if (document.size() > limits.bytes)
        return Refuse(problem, "larger than " + std::to_string(limits.bytes) + " bytes");
    if (HasLongTag(document, limits.tagBytes))
        return Refuse(problem, "a tag and the text behind it are longer than " +
                                   std::to_string(limits.tagBytes) + " bytes");
    // libxml2 stops reading at the first one, as if the document ended there.
    if (encoding == Encoding::Utf8 && document.find('\0') != std::string_view::npos)
        return Refuse(problem, "a zero byte");
    // A reader alone would set the library up without its lock, while another thread may be doing the same.
    xmlInitParser();
    const char* name = encoding == Encoding::Utf8 ? "UTF-8" : nullptr;
    const int options = encoding == Encoding::Utf8 ? kOptions | XML_PARSE_IGNORE_ENC : kOptions;
    const Reader reader(
        xmlReaderForMemory(document.data(), static_cast<int>(document.size()), nullptr, name, options));
    if (!reader)
        return Refuse(problem, "no memory");
    CBuilder builder(limits, problem);
    if (!builder.Build(reader.get()))
        return false;
    root = std::move(builder.root);
    return true;
}

} // namespace XmlTree
