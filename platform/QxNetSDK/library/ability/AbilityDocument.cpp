#include "QxNetSDK/library/ability/AbilityDocument.h"

#include "QxNetSDK/library/session/DeviceChecks.h"

#include <algorithm>
#include <libxml/xmlreader.h>
#include <memory>

namespace sdk {

namespace {

// The limits of docs/device-abilities.md.
constexpr int kMostDepth = 16;
constexpr std::size_t kMostTagBytes = 4096;
constexpr int kMostElements = 20000;

bool IsAllowed(xmlTextReader* reader, int& elements)
{
    const int type = xmlTextReaderNodeType(reader);
    if (type == XML_READER_TYPE_ELEMENT)
        return ++elements <= kMostElements && xmlTextReaderDepth(reader) < kMostDepth;
    return type != XML_READER_TYPE_DOCUMENT_TYPE && type != XML_READER_TYPE_ENTITY_REFERENCE;
}

bool IsDeclaredUtf8(xmlTextReader* reader)
{
    const xmlChar* encoding = xmlTextReaderConstEncoding(reader);
    return !encoding || xmlStrcasecmp(encoding, BAD_CAST "UTF-8") == 0;
}

/// Whether no tag, with the text behind it, is longer than it may be.
bool HasShortTags(const std::string& text)
{
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('<', begin + 1), text.size());
        if (end - begin > kMostTagBytes)
            return false;
        begin = end;
    }
    return true;
}

} // namespace

bool IsAbilityDocument(const std::string& text)
{
    // Behind a document type anything could be declared; the parser is not to see any of it.
    const bool isPlain = text.find('\0') == std::string::npos && text.find("<!DOCTYPE") == std::string::npos;
    if (!isPlain || !HasShortTags(text) || !IsUtf8(text.data(), text.size()))
        return false;
    const int options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
    const std::unique_ptr<xmlTextReader, decltype(&xmlFreeTextReader)> reader(
        xmlReaderForMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, options),
        xmlFreeTextReader);
    if (!reader)
        return false;
    int elements = 0;
    int result = 0;
    while ((result = xmlTextReaderRead(reader.get())) == 1) {
        if (!IsAllowed(reader.get(), elements) || !IsDeclaredUtf8(reader.get()))
            return false;
    }
    return result == 0 && elements > 0;
}

} // namespace sdk
