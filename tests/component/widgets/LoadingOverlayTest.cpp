#include "VantorGUIToolkit/Widgets/LoadingOverlay.h"
#include "component/widgets/GuiDriving.h"
#include "support/CapturedLog.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

#include <future>
#include <memory>
#include <stdexcept>

using namespace VantorGUIToolkit;

namespace {

/// A page with an edit and a button, and a job that ends when the test lets it.
struct LoadingOverlay : testing::Test
{
    LoadingOverlay()
    {
        page = std::make_unique<QWidget>();
        auto* column = new QVBoxLayout(page.get());
        edit = new QLineEdit(page.get());
        button = new QPushButton("Save", page.get());
        column->addWidget(edit);
        column->addWidget(button);
        overlay = new CLoadingOverlay(page.get());
        QObject::connect(overlay, &CLoadingOverlay::SignalLoadingEnd, page.get(), [this] {
            ++ends;
            endThread = QThread::currentThread();
        });
        QObject::connect(button, &QPushButton::clicked, page.get(), [this] { ++clicks; });
        page->resize(400, 300);
        page->show();
        page->activateWindow();
        edit->setFocus();
    }

    ~LoadingOverlay() override { Release(); }

    void Release()
    {
        if (!released)
            gate.set_value();
        released = true;
    }

    std::function<void()> HeldJob()
    {
        return [open = gate.get_future().share(), ended = jobEnded] {
            open.wait_for(std::chrono::seconds(30));
            ended->set_value();
        };
    }

    void ClickAt(QWidget* widget)
    {
        const QPoint middle = widget->rect().center();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, middle, widget->mapToGlobal(middle), Qt::LeftButton, Qt::LeftButton, {});
            QApplication::sendEvent(widget, &event);
        }
    }

    std::unique_ptr<QWidget> page;
    QLineEdit* edit;
    QPushButton* button;
    CLoadingOverlay* overlay;
    std::promise<void> gate;
    std::shared_ptr<std::promise<void>> jobEnded = std::make_shared<std::promise<void>>();
    bool released = false;
    int ends = 0;
    int clicks = 0;
    QThread* endThread = nullptr;
};

} // namespace

TEST_F(LoadingOverlay, TellsTheEndOnTheGuiThreadAfterAJobOnAnother)
{
    QThread* jobThread = nullptr;
    ASSERT_TRUE(overlay->Run("Processing", [&] { jobThread = QThread::currentThread(); }));
    ASSERT_TRUE(WaitFor([&] { return ends == 1; }));
    EXPECT_NE(jobThread, QThread::currentThread());
    EXPECT_EQ(endThread, QThread::currentThread());
    EXPECT_FALSE(overlay->isVisible());
    EXPECT_FALSE(overlay->IsRunning());
}

TEST_F(LoadingOverlay, HoldsMouseAndKeysBackOnlyWhileTheJobRuns)
{
    ASSERT_TRUE(overlay->Run("Processing", HeldJob()));
    EXPECT_TRUE(overlay->isVisible());
    EXPECT_EQ(page->childAt(button->geometry().center()), overlay);
    ClickAt(button);
    Press(button, Qt::Key_Space);
    Press(edit, Qt::Key_A, "a");
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(edit->text(), "");
    EXPECT_NE(page->focusWidget(), edit);
    page->resize(700, 500);
    EXPECT_EQ(overlay->geometry(), page->rect());
    Release();
    ASSERT_TRUE(WaitFor([&] { return ends == 1; }));
    ClickAt(button);
    Press(edit, Qt::Key_A, "a");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(edit->text(), "a");
}

TEST_F(LoadingOverlay, RefusesASecondJobAndTakesTheNextFromTheEndSignal)
{
    ASSERT_TRUE(overlay->Run("Processing", HeldJob()));
    bool refusedRan = false;
    EXPECT_FALSE(overlay->Run("Processing", [&] { refusedRan = true; }));
    std::atomic<bool> nextRan{false};
    QObject::connect(overlay, &CLoadingOverlay::SignalLoadingEnd, page.get(), [&] {
        if (ends > 1)
            return;
        EXPECT_TRUE(overlay->Run("Processing", [&] { nextRan = true; }));
    });
    Release();
    ASSERT_TRUE(WaitFor([&] { return ends == 2; }));
    EXPECT_TRUE(nextRan);
    EXPECT_FALSE(refusedRan);
}

TEST_F(LoadingOverlay, AnExceptionEndsTheJobAndIsLogged)
{
    const CapturedLog log;
    ASSERT_TRUE(overlay->Run("Processing", [] { throw std::runtime_error("no answer"); }));
    EXPECT_TRUE(WaitFor([&] { return ends == 1; }));
    EXPECT_TRUE(log.Has("A background job failed: no answer."));
    ASSERT_TRUE(overlay->Run("Processing", [] { throw 7; }));
    EXPECT_TRUE(WaitFor([&] { return ends == 2; }));
}

TEST_F(LoadingOverlay, ItsParentMayGoWhileTheJobRuns)
{
    std::future<void> ended = jobEnded->get_future();
    ASSERT_TRUE(overlay->Run("Processing", HeldJob()));
    page.reset();
    Release();
    EXPECT_EQ(ended.wait_for(std::chrono::seconds(10)), std::future_status::ready);
    QApplication::processEvents();
    EXPECT_EQ(ends, 0);
}
