#pragma once

#include <QLineEdit>

class QToolButton;

namespace VantorGUIToolkit {

/// A line edit with a button inside it at its end side, and if wanted an icon at its start side; the base of
/// the toolkit's special line edits. The text keeps clear of both, in either direction.
class CInlineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// The button in the edit: an icon of the skin, and its accessible name.
    CInlineEdit(const QString& iconName, const QString& buttonName, QWidget* parent);

protected:
    QToolButton* InlineButton() const { return m_button; }
    void ShowLeadingIcon(const QString& iconName);

    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Arrange();

    QToolButton* m_button;
};

} // namespace VantorGUIToolkit
