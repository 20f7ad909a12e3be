#include "ui/Public/ComponentPage.h"

#include "WindowEmbedding/GuestWindow.h"
#include "ui/Public/OpenPopups.h"

#include <QCloseEvent>

namespace video {

namespace {

/// Until the framework's tab gives the page its size.
constexpr int kPageWidth = 960;
constexpr int kPageHeight = 600;

} // namespace

CComponentPage::CComponentPage(const QString& title) : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint)
{
    setWindowTitle(title);
    setProperty("surface", "page");
    setAttribute(Qt::WA_StyledBackground);
    resize(kPageWidth, kPageHeight);
    new embedding::CGuestWindow(this);
}

void CComponentPage::UpdateUser(const User&) {}

void CComponentPage::closeEvent(QCloseEvent* event)
{
    event->ignore();
}

/// A dialog without its page would stay over other tabs and block them.
void CComponentPage::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        CloseModalDialogsOf(*this);
}

} // namespace video
