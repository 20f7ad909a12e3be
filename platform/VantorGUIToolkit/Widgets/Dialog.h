#pragma once

#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QDialog>

class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace VantorGUIToolkit {

/// What every dialog has: a bar with its title, the content, and a row of buttons at the end side with the
/// primary one last. Return presses the primary button, Escape and the bar's button reject. The focus starts
/// in the first input of the content, or on the primary button where there is none. It draws its own frame,
/// so that it looks the same under every window manager and under none.
class CDialog : public QDialog
{
    Q_OBJECT

public:
    CDialog(const QString& title, QWidget* parent);

    /// Where the content goes. It comes with the dialog's margins.
    QVBoxLayout* ContentLayout() const { return m_content; }

    /// Adds a button that ends the dialog with this result (QDialog::Accepted, QDialog::Rejected or one of
    /// the caller's). Add them in reading order, the primary one last.
    QPushButton* AddButton(const QString& text, ButtonKind kind, int result);

    /// Adds a button that does not end the dialog by itself, such as one that checks the input first.
    QPushButton* AddButton(const QString& text, ButtonKind kind);

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* MakeTitleBar(const QString& title);
    QWidget* FirstInput() const;
    void DragWith(QEvent* event);

    QWidget* m_bar;
    QVBoxLayout* m_content;
    QHBoxLayout* m_buttons;
    QPushButton* m_primary = nullptr;
    QPoint m_grip; ///< where the bar was taken, from the dialog's corner
    bool m_dragged = false;
};

} // namespace VantorGUIToolkit
