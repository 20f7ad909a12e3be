#include "CapabilitySet/Documents/Document.h"

namespace CapabilitySet {

bool ReadDocument(std::string_view document, XmlTree::Element& root, std::string& problem)
{
    constexpr XmlTree::Limits kLimits{kMostDocumentBytes, kMostDepth, kMostElements, kMostTagBytes};
    return XmlTree::Read(document, kLimits, XmlTree::Encoding::Utf8, root, problem);
}

} // namespace CapabilitySet
