#include "VantorGUIToolkit/WidgetManners.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>
#include <QTextBlock>
#include <QTextLayout>
#include <QVBoxLayout>
#include <QWheelEvent>

using VantorGUIToolkit::CWidgetManners;

namespace {

/// A page that scrolls, with a widget at its top.
class TheManners : public testing::Test
{
protected:
    TheManners()
    {
        CWidgetManners::Install();
        area.setWidget(page);
        area.setWidgetResizable(true);
        area.resize(300, 200);
    }
    ~TheManners() override { QApplication::setLayoutDirection(Qt::LeftToRight); }

    template<typename W>
    W* Show(W* widget)
    {
        column->addWidget(widget);
        column->addSpacing(1000);
        area.show();
        QApplication::setActiveWindow(&area);
        QApplication::processEvents();
        return widget;
    }

    /// True when the widget took the event; Qt asks its parent otherwise.
    static bool TurnWheelOver(QWidget* widget)
    {
        const QPointF at = widget->rect().center();
        QWheelEvent event(at, widget->mapToGlobal(at.toPoint()), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &event);
        return event.isAccepted();
    }

    QScrollArea area;
    QWidget* page = new QWidget;
    QVBoxLayout* column = new QVBoxLayout(page);
};

} // namespace

TEST_F(TheManners, TheWheelChangesAValueOnlyWhereTheFocusIs)
{
    auto* combo = new QComboBox;
    combo->addItems({"one", "two", "three"});
    auto* spin = new QDoubleSpinBox;
    auto* slider = new QSlider(Qt::Horizontal);
    spin->setValue(50);
    slider->setValue(50);
    const std::pair<QWidget*, const char*> rows[] = {
        {combo, "currentIndex"}, {spin, "value"}, {slider, "value"}};
    for (const auto& [widget, property] : rows) {
        Show(widget);
        area.setFocus();
        const QVariant before = widget->property(property);
        EXPECT_NE(widget->focusPolicy(), Qt::WheelFocus); // else the wheel would give it the focus first
        EXPECT_FALSE(TurnWheelOver(widget)) << widget->metaObject()->className();
        EXPECT_EQ(widget->property(property), before) << widget->metaObject()->className();
        widget->setFocus();
        EXPECT_TRUE(TurnWheelOver(widget));
        EXPECT_NE(widget->property(property), before) << widget->metaObject()->className();
    }
}

TEST_F(TheManners, AButtonShowsTheFocusThatCameByKeysAndNotThatOfThePress)
{
    auto* button = Show(new QPushButton("Save"));
    auto* edit = Show(new QLineEdit);
    const auto press = [button] {
        QMouseEvent event(QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(button, &event);
    };
    button->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(CWidgetManners::ShowsFocus(button));
    press();
    EXPECT_FALSE(CWidgetManners::ShowsFocus(button));
    edit->setFocus();
    button->setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(CWidgetManners::ShowsFocus(button));
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    QApplication::sendEvent(button, &key);
    button->setFocus();
    EXPECT_TRUE(button->property("keyboardFocus").toBool());
}

TEST_F(TheManners, DatesAndTimesReadFromTheLeftInEveryLayout)
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QApplication::setLayoutDirection(direction);
        auto* edit = new QDateTimeEdit(QDateTime(QDate(2030, 5, 17), QTime(9, 41)));
        edit->setDisplayFormat("dd.MM.yyyy HH:mm");
        Show(edit);
        EXPECT_EQ(edit->text(), "17.05.2030 09:41");
        edit->setDisplayFormat("HH:mm");
        EXPECT_EQ(edit->text(), "09:41");
    }
}

TEST_F(TheManners, PlainTextsBeginWhereReadingBegins)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    auto* text = Show(new QPlainTextEdit(QString::fromUtf8("نص")));
    const QTextLine line = text->document()->firstBlock().layout()->lineAt(0);
    EXPECT_GT(line.naturalTextRect().left(), line.width() / 2);
}
