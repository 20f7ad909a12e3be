#include "ui/Public/ComponentPage.h"

#include "WindowEmbedding/GuestWindow.h"

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

} // namespace video
