#include "VantorGUIToolkit/GenericDataSet.h"

#include "Base/Log.h"

#include <libxml/xmlreader.h>

#include <QFile>

#include <algorithm>
#include <charconv>
#include <memory>

namespace VantorGUIToolkit {

namespace {

struct ReaderDeleter
{
    void operator()(xmlTextReader* reader) const { xmlFreeTextReader(reader); }
};
using Reader = std::unique_ptr<xmlTextReader, ReaderDeleter>;

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

/// Builds the elements while the reader walks the document, and stops it at the first thing that is not
/// acceptable.
class Builder
{
public:
    explicit Builder(DataElement& root) : m_root(root) {}

    bool Build(xmlTextReader* reader)
    {
        xmlTextReaderSetStructuredErrorHandler(reader, &Builder::OnError, this);
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

    const std::string& Problem() const { return m_problem; }

private:
    static void OnError(void* self, xmlErrorPtr error)
    {
        auto* builder = static_cast<Builder*>(self);
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
        if (m_open.size() >= CGenericDataSet::kMaxDepth)
            m_problem = "nested deeper than " + std::to_string(CGenericDataSet::kMaxDepth);
        else if (++m_elements > CGenericDataSet::kMaxElements)
            m_problem = "more than " + std::to_string(CGenericDataSet::kMaxElements) + " elements";
        if (!m_problem.empty())
            return;
        const bool empty = xmlTextReaderIsEmptyElement(reader) == 1;
        // Only the last child of an element is ever open, so that adding to the innermost one moves none of
        // the others.
        DataElement& element = m_open.empty() ? m_root : m_open.back()->children.emplace_back();
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

    DataElement& m_root;
    std::vector<DataElement*> m_open;
    int m_elements = 0;
    std::string m_problem;
};

bool Refuse(const QString& name, const std::string& problem)
{
    BASE_WARN("Failed to load the data set [%s]: %s.", name.toUtf8().constData(), problem.c_str());
    return false;
}

} // namespace

const DataElement* DataElement::Child(const std::string& childName) const
{
    const auto child = std::find_if(children.begin(), children.end(),
                                    [&](const DataElement& element) { return element.name == childName; });
    return child == children.end() ? nullptr : &*child;
}

const DataElement* DataElement::Find(const std::string& path) const
{
    const auto slash = path.find('/');
    const DataElement* child = Child(path.substr(0, slash));
    return child && slash != std::string::npos ? child->Find(path.substr(slash + 1)) : child;
}

std::string DataElement::Attribute(const std::string& key, const std::string& fallback) const
{
    const auto found = attributes.find(key);
    return found == attributes.end() ? fallback : found->second;
}

int DataElement::IntAttribute(const std::string& key, int fallback) const
{
    const std::string text = Attribute(key);
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? value : fallback;
}

bool CGenericDataSet::load(const QString& path)
{
    m_root = {};
    if (path.isEmpty())
        return Refuse(path, "no name");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Refuse(path, file.errorString().toStdString());
    return loadContent(file.read(static_cast<qint64>(kMaxBytes) + 1), path);
}

bool CGenericDataSet::loadContent(const QByteArray& content, const QString& name)
{
    m_root = {};
    if (content.isEmpty())
        return Refuse(name, "empty");
    if (static_cast<std::size_t>(content.size()) > kMaxBytes)
        return Refuse(name, "larger than " + std::to_string(kMaxBytes) + " bytes");
    // A reader alone would set the library up without its lock, while another thread may be doing the same.
    xmlInitParser();
    const Reader reader(
        xmlReaderForMemory(content.constData(), content.size(), nullptr, nullptr, XML_PARSE_NONET));
    if (!reader)
        return Refuse(name, "no memory");
    Builder builder(m_root);
    if (builder.Build(reader.get()))
        return true;
    m_root = {};
    return Refuse(name, builder.Problem());
}

} // namespace VantorGUIToolkit
