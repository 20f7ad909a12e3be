#include "WindowEmbedding/GuestContainer.h"
#include "WindowEmbedding/GuestWindow.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

#include <QApplication>

TEST(WithoutWindowSystem, EmbeddingIsRefusedWithOneLineAndNothingElseHappens)
{
    CapturedLog log;
    QWidget page;
    embedding::CGuestWindow guest(&page);
    embedding::CGuestContainer container;
    embedding::FollowMouseWithFocus();
    container.show();
    page.show();

    EXPECT_FALSE(container.Embed(page.winId()));

    EXPECT_EQ(container.Guest(), 0U);
    container.resize(300, 200);
    container.TellPosition();
    container.Release();
    QApplication::processEvents();
    EXPECT_TRUE(page.isVisible());
    EXPECT_EQ(embedding::CGuestWindow::Of(&page), &guest);
    EXPECT_EQ(log.Errors(), std::vector<std::string>{
                                "Windows of other processes cannot be embedded without a window system."});
}
