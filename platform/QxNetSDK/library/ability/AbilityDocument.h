#pragma once

#include <string>

namespace sdk {

/// Whether a text from a device is a document that may be handed out: XML in UTF-8, well formed, without
/// document type or entities of its own, within the limits of docs/device-abilities.md. Nothing
/// else is looked at, and nothing is fetched. For any thread, after xmlInitParser.
[[nodiscard]] bool IsAbilityDocument(const std::string& text);

} // namespace sdk
