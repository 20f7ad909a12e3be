#include "VantorGUIToolkit/Widgets/Badge.h"

namespace VantorGUIToolkit {

CBadge::CBadge(const QString& text, Tone tone, QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setProperty("role", "badge");
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    Set(text, tone);
}

void CBadge::Set(const QString& text, Tone tone)
{
    setText(text);
    setTone(this, tone);
}

} // namespace VantorGUIToolkit
