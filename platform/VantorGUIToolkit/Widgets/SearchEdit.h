#pragma once

#include "VantorGUIToolkit/Widgets/InlineEdit.h"

namespace VantorGUIToolkit {

/// A line edit that filters what is beside it. Its button and Escape clear it.
class CSearchEdit : public CInlineEdit
{
    Q_OBJECT

public:
    explicit CSearchEdit(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace VantorGUIToolkit
