#include "ui/Public/OpenPopups.h"

#include <QApplication>
#include <QDialog>

namespace video {

namespace {

void Dismiss(QWidget* window)
{
    if (auto* dialog = qobject_cast<QDialog*>(window))
        dialog->reject();
    else
        window->close();
}

/// Dismisses the window that active() names until there is none, or one refuses.
template<typename Active>
void DismissAll(Active active)
{
    for (QWidget* window = active(); window;) {
        Dismiss(window);
        QWidget* const next = active();
        if (next == window)
            return;
        window = next;
    }
}

} // namespace

void CloseOpenPopups()
{
    DismissAll([] { return QApplication::activePopupWidget(); });
}

void CloseModalDialogs()
{
    CloseOpenPopups();
    DismissAll([] { return QApplication::activeModalWidget(); });
}

} // namespace video
