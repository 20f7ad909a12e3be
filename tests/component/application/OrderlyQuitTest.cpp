#include "ui/Application/OrderlyQuit.h"

#include "support/CapturedLog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QTimer>

#include <functional>
#include <string>
#include <vector>

namespace {

/// Runs the main loop with something in it, asks twice for the end there, and says what happened in order.
std::vector<std::string> RunAndQuit(const std::function<void()>& inTheLoop)
{
    std::vector<std::string> seen;
    QApplication::setQuitOnLastWindowClosed(false);
    video::COrderlyQuit quit([&] { seen.push_back("taken down"); }, std::chrono::milliseconds(100));
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [&] { quit.Ask(); });
        QTimer::singleShot(0, [&] { quit.Ask(); });
        inTheLoop();
        seen.push_back("page done");
    });
    EXPECT_EQ(QApplication::exec(), 0);
    seen.push_back("main loop done");
    return seen;
}

const std::vector<std::string> kInOrder = {"page done", "taken down", "main loop done"};

TEST(AnOrderlyQuit, ClosesDialogsAndMenusBeforeItTakesThingsDown)
{
    CapturedLog log;
    EXPECT_EQ(RunAndQuit([] {}), kInOrder);
    EXPECT_EQ(RunAndQuit([] { QDialog().exec(); }), kInOrder);
    EXPECT_EQ(RunAndQuit([] {
                  QMenu menu;
                  menu.addAction("entry");
                  menu.exec();
              }),
              kInOrder);
    EXPECT_TRUE(log.Lines().empty());
}

TEST(AnOrderlyQuit, EndsLoopsThatDoNotEndByThemselves)
{
    CapturedLog log;
    EXPECT_EQ(RunAndQuit([] {
                  QEventLoop ofAJob;
                  ofAJob.exec();
                  QEventLoop ofTheNext;
                  ofTheNext.exec();
              }),
              kInOrder);
    EXPECT_TRUE(log.Has("A dialog did not close. All event loops are ended."));
}

} // namespace
