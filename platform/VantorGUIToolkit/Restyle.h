#pragma once

class QWidget;

namespace VantorGUIToolkit {

/// Lets style sheets look again at a widget whose dynamic properties ("invalid", "tone") changed. GUI thread.
void repolish(QWidget* widget);

/// Marks an input as holding a value that cannot be taken, or takes the mark away.
void markInvalid(QWidget* input, bool invalid);

} // namespace VantorGUIToolkit
