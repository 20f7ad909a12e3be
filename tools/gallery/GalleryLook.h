#pragma once

#include <QString>

namespace gallery {

/// Gives the application this skin and language, in the place of what it had. Pages made before keep their
/// texts. GUI thread.
void TakeLook(const QString& skin, int language);

} // namespace gallery
