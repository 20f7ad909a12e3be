#include "QxNetSDK/library/ability/AbilityDocument.h"

#include "CapabilitySet/Documents/Document.h"

namespace sdk {

bool IsAbilityDocument(const std::string& text)
{
    XmlTree::Element root;
    std::string problem;
    return CapabilitySet::ReadDocument(text, root, problem);
}

} // namespace sdk
