#include "ui/Public/ComponentPage.h"

#include "WindowEmbedding/GuestWindow.h"

#include <QCloseEvent>

namespace video {

CComponentPage::CComponentPage(const QString& title) : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint)
{
    setWindowTitle(title);
    setProperty("surface", "page");
    setAttribute(Qt::WA_StyledBackground);
    auto* guest = new embedding::CGuestWindow(this);
    // The new window must not appear before the framework has embedded it.
    connect(guest, &embedding::CGuestWindow::WindowLost, this, &QWidget::hide);
}

void CComponentPage::UpdateUser(const User&) {}

void CComponentPage::closeEvent(QCloseEvent* event)
{
    event->ignore();
}

} // namespace video
