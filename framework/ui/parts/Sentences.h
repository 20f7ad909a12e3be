#pragma once

#include <QString>

namespace framework {

/// A sentence of the core, which are kept and reported in English, in the language of the user; one that is
/// not known stays as it is. GUI thread.
QString InUserLanguage(const std::string& sentence);

} // namespace framework
