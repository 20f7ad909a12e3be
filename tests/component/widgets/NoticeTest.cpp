#include "VantorGUIToolkit/Widgets/Notice.h"
#include "VantorGUIToolkit/Widgets/NoticeStack.h"
#include "component/widgets/GuiDriving.h"

#include <QScreen>
#include <QToolButton>

using namespace VantorGUIToolkit;

namespace {

struct Notices : testing::TestWithParam<Qt::LayoutDirection>
{
    void SetUp() override
    {
        QApplication::setLayoutDirection(GetParam());
        anchor.show();
    }
    void TearDown() override
    {
        CNoticeStack::Instance().CloseAll();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    static std::vector<QWidget*> Shown() { return CNoticeStack::Instance().Notices(); }
    static QString TextOf(QWidget* notice) { return static_cast<CNotice*>(notice)->Text(); }

    QWidget anchor;
};

const QString kLong = QString("word ").repeated(80) + QString(300, 'x');

} // namespace

TEST_P(Notices, StandAboveEachOtherAtTheBottomRightInsideTheScreen)
{
    const QRect area = anchor.screen()->availableGeometry();
    for (const QString& text : {QString("first"), QString("second, longer"), kLong})
        CNotice::Show(text, NoticeTone::Error, &anchor);
    const std::vector<QWidget*> shown = Shown();
    ASSERT_FALSE(shown.empty());
    int below = area.bottom();
    for (auto notice = shown.rbegin(); notice != shown.rend(); ++notice) {
        const QRect place = (*notice)->geometry();
        EXPECT_TRUE((*notice)->isVisible());
        EXPECT_TRUE(area.contains(place)) << place.top() << " " << place.bottom();
        EXPECT_LT(place.bottom(), below);
        EXPECT_LE(area.right() - place.right(), 2 * Grid::Large);
        below = place.top();
    }
}

TEST_P(Notices, TheOldestGoesWhenThereAreTooMany)
{
    for (int i = 0; i < CNoticeStack::kMost + 3; ++i)
        CNotice::Show(QString::number(i), NoticeTone::Info, &anchor);
    const std::vector<QWidget*> shown = Shown();
    ASSERT_EQ(shown.size(), static_cast<std::size_t>(CNoticeStack::kMost));
    EXPECT_EQ(TextOf(shown.front()), "3");
    EXPECT_EQ(TextOf(shown.back()), QString::number(CNoticeStack::kMost + 2));
}

TEST_P(Notices, AClosedOneLetsThoseAboveItMoveDown)
{
    CNotice::Show("upper", NoticeTone::Ok, &anchor);
    CNotice::Show("lower", NoticeTone::Ok, &anchor);
    const QRect bottom = Shown().back()->geometry();
    Shown().back()->findChild<QToolButton*>("noticeClose")->click();
    ASSERT_TRUE(WaitFor([] { return Shown().size() == 1; }));
    EXPECT_EQ(TextOf(Shown().front()), "upper");
    EXPECT_EQ(Shown().front()->geometry().bottom(), bottom.bottom());
}

TEST_P(Notices, TakeNoFocusAndStayUnderTheMouse)
{
    anchor.activateWindow();
    CNotice::Show("here", NoticeTone::Ok, &anchor);
    QWidget* notice = Shown().front();
    EXPECT_FALSE(notice->isActiveWindow());
    EXPECT_TRUE(notice->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(notice->windowFlags() & Qt::WindowDoesNotAcceptFocus);
    auto* lifetime = notice->findChild<QTimer*>("lifetime");
    ASSERT_TRUE(lifetime);
    EXPECT_TRUE(lifetime->isActive());
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(notice, &enter);
    EXPECT_FALSE(lifetime->isActive());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(notice, &leave);
    EXPECT_TRUE(lifetime->isActive());
    lifetime->start(1);
    EXPECT_TRUE(WaitFor([] { return Shown().empty(); }));
}

INSTANTIATE_TEST_SUITE_P(EitherDirection, Notices, testing::Values(Qt::LeftToRight, Qt::RightToLeft));

TEST(Notice, LongerTextsStayLongerUpToABound)
{
    EXPECT_LT(CNotice::LifetimeOf("Saved."), CNotice::LifetimeOf(QString("word ").repeated(20)));
    EXPECT_EQ(CNotice::LifetimeOf(QString(1'000, 'x')), CNotice::LifetimeOf(QString(100'000, 'x')));
}
