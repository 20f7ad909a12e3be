#pragma once

#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QLabel>

namespace VantorGUIToolkit {

/// A state in one or two words. The words say everything; the tone only helps the eye.
class CBadge : public QLabel
{
    Q_OBJECT

public:
    CBadge(const QString& text, Tone tone, QWidget* parent = nullptr);

    void Set(const QString& text, Tone tone);
};

} // namespace VantorGUIToolkit
