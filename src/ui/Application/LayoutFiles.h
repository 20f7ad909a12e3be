#pragma once

#include <QString>

namespace video {

/// Makes sure that both layout files in the component's data folder can be read: a broken
/// "CustomWidgetLayout.xml" is emptied, a missing or broken "WidgetLayout.xml" replaced by the one beside the
/// program. Failures are logged only.
///
/// dataDir and exeDir end in "/".
void CheckAndGenerateCustomWidgetLayoutConfig(const QString& dataDir, const QString& exeDir);

} // namespace video
