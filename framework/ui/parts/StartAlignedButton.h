#pragma once

#include <QPushButton>

namespace framework {

/// A push button whose icon and text stand at its start side, in either direction; as an entry of a list of
/// places. Dressed by style sheets like any other; "padding" is its own. GUI thread.
class CStartAlignedButton : public QPushButton
{
    Q_OBJECT

public:
    explicit CStartAlignedButton(QWidget* parent = nullptr);

    /// From the edge to the icon, in device-independent pixels.
    void SetIndent(int indent) { m_indent = indent; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_indent = 12;
};

} // namespace framework
