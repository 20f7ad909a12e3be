#pragma once

#include "VantorGUIToolkit/Widgets/InlineEdit.h"

namespace VantorGUIToolkit {

/// A line edit for passwords. The button in it, which Tab reaches, shows the letters; they are hidden again
/// when the edit is disabled or hidden.
class CPasswordEdit : public CInlineEdit
{
    Q_OBJECT

public:
    explicit CPasswordEdit(QWidget* parent = nullptr);

    bool IsRevealed() const { return echoMode() == Normal; }
    void SetRevealed(bool revealed);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
};

} // namespace VantorGUIToolkit
