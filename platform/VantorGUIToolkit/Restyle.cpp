#include "VantorGUIToolkit/Restyle.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace VantorGUIToolkit {

void repolish(QWidget* widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

void markInvalid(QWidget* input, bool invalid)
{
    if (input->property("invalid").toBool() == invalid)
        return;
    input->setProperty("invalid", invalid);
    repolish(input);
}

} // namespace VantorGUIToolkit
