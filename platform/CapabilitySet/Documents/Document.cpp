#include "CapabilitySet/Documents/Document.h"

#include <libxml/xmlreader.h>

#include <algorithm>
#include <memory>

namespace CapabilitySet {

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

bool HasLongTag(std::string_view document)
{
    std::size_t begin = 0;
    while (begin < document.size()) {
        const std::size_t end = std::min(document.find('<', begin + 1), document.size());
        if (end - begin > kMostTagBytes)
            return true;
        begin = end;
    }
    return false;
}

/// Builds the elements while the reader walks the document, and stops it at the first thing that is refused.
class CBuilder
{
public:
    explicit CBuilder(std::string& problem) : m_problem(problem) { m_problem.clear(); }

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

    DocumentElement root;

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
        if (m_open.size() >= kMostDepth)
            m_problem = "nested deeper than " + std::to_string(kMostDepth);
        else if (++m_elements > kMostElements)
            m_problem = "more than " + std::to_string(kMostElements) + " elements";
        if (!m_problem.empty())
            return;
        const bool empty = xmlTextReaderIsEmptyElement(reader) == 1;
        // Only the last child of an element is ever open, so that adding to the innermost one moves none of
        // the others.
        DocumentElement& element = m_open.empty() ? root : m_open.back()->children.emplace_back();
        m_open.push_back(&element);
        element.name = Text(xmlTextReaderConstName(reader));
        while (xmlTextReaderMoveToNextAttribute(reader) == 1)
            element.attributes.emplace_back(Text(xmlTextReaderConstName(reader)),
                                            Text(xmlTextReaderConstValue(reader)));
        if (empty)
            End();
    }

    void End()
    {
        Trim(m_open.back()->text);
        m_open.pop_back();
    }

    std::string& m_problem;
    std::vector<DocumentElement*> m_open;
    std::size_t m_elements = 0;
};

bool Refuse(std::string& problem, const char* reason)
{
    problem = reason;
    return false;
}

} // namespace

const std::string* DocumentElement::Attribute(std::string_view key) const
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const auto& attribute) { return attribute.first == key; });
    return found == attributes.end() ? nullptr : &found->second;
}

bool ReadDocument(std::string_view document, DocumentElement& root, std::string& problem)
{
    if (document.empty())
        return Refuse(problem, "empty");
    if (document.size() > kMostDocumentBytes)
        return Refuse(problem, "longer than 1 MiB");
    if (HasLongTag(document))
        return Refuse(problem, "a tag and the text behind it are longer than 4096 bytes");
    // A reader alone would set the library up without its lock, while another thread may be doing the same.
    xmlInitParser();
    const Reader reader(
        xmlReaderForMemory(document.data(), static_cast<int>(document.size()), nullptr, "UTF-8", kOptions));
    if (!reader)
        return Refuse(problem, "no memory");
    CBuilder builder(problem);
    if (!builder.Build(reader.get()))
        return false;
    root = std::move(builder.root);
    return true;
}

} // namespace CapabilitySet
