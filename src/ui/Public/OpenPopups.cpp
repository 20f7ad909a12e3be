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

bool BelongsTo(const QWidget* window, const QWidget& page)
{
    while (window && window != &page)
        window = window->parentWidget();
    return window != nullptr;
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

void CloseModalDialogsOf(const QWidget& page)
{
    CloseOpenPopups();
    DismissAll([&page] {
        QWidget* const window = QApplication::activeModalWidget();
        return BelongsTo(window, page) ? window : nullptr;
    });
}

} // namespace video
