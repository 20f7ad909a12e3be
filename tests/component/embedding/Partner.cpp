#include "Base/Log.h"
#include "UiDataController/HighDPIMgr.h"
#include "WindowEmbedding/GuestContainer.h"
#include "WindowEmbedding/GuestWindow.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSocketNotifier>
#include <QTabWidget>
#include <QVBoxLayout>

#include <cstdio>
#include <iostream>

// One of the two programs that the embedding tests drive: "host" or "guest". It reads commands from its
// input, a line each, and prints what happens.

namespace {

void Say(const QString& line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

class Line : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

protected:
    bool event(QEvent* event) override
    {
        const bool pressed =
            event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
        const bool taken = QLineEdit::event(event);
        if (pressed)
            Say("pressed");
        return taken;
    }
};

void AddEdit(QBoxLayout* layout)
{
    auto* edit = new Line;
    edit->setObjectName("edit");
    layout->addWidget(edit);
    QObject::connect(edit, &QLineEdit::textChanged, [](const QString& text) { Say("text " + text); });
}

/// The part of the screen that a widget covers by Qt's knowledge, in device pixels.
void SayPlace(const QWidget& top, const QString& name)
{
    const QWidget* widget = name == "page" ? &top : top.findChild<QWidget*>(name);
    const double scale = top.devicePixelRatioF();
    const QPoint place = widget->mapToGlobal(QPoint(0, 0));
    Say(QString("place %1 %2 %3 %4")
            .arg(qRound(place.x() * scale))
            .arg(qRound(place.y() * scale))
            .arg(qRound(widget->width() * scale))
            .arg(qRound(widget->height() * scale)));
}

void SayFocus()
{
    const QWidget* widget = QApplication::focusWidget();
    Say("focus " + (widget && widget->isActiveWindow() ? widget->objectName() : QString()));
}

class Guest
{
public:
    Guest() : m_watch(&m_page)
    {
        auto* layout = new QVBoxLayout(&m_page);
        AddEdit(layout);
        auto* button = new QPushButton("Press");
        button->setObjectName("button");
        auto* combo = new QComboBox;
        combo->setObjectName("combo");
        combo->addItems({"one", "two", "three"});
        auto* menu = new QPushButton("Menu");
        menu->setObjectName("menu");
        menu->setMenu(new QMenu(menu));
        menu->menu()->addAction("Entry");
        layout->addWidget(button);
        layout->addWidget(combo);
        layout->addWidget(menu);
        layout->addStretch();
        QObject::connect(button, &QPushButton::clicked, [] { Say("clicked"); });
        QObject::connect(&m_watch, &embedding::CGuestWindow::WindowLost, [] { Say("lost"); });
        SayWindow();
    }

    void Do(const QStringList& command)
    {
        if (command[0] == "show")
            m_page.show();
        else if (command[0] == "hide")
            m_page.hide();
        else if (command[0] == "window")
            SayWindow();
        else if (command[0] == "dialog")
            OpenDialog(command[1]);
        else if (command[0] == "close")
            QApplication::activeModalWidget()->close();
        else if (command[0] == "place")
            SayPlace(m_page, command[1]);
        else if (command[0] == "focus")
            SayFocus();
    }

private:
    void OpenDialog(const QString& parent)
    {
        auto* dialog = new QMessageBox(parent == "page" ? &m_page : nullptr);
        dialog->setText("Dialog");
        dialog->addButton(QMessageBox::Ok)->setObjectName("answer");
        dialog->setModal(true);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->show();
        Say(QString("window %1").arg(dialog->winId()));
    }

    void SayWindow() { Say(QString("window %1").arg(m_page.winId())); }

    QWidget m_page;
    embedding::CGuestWindow m_watch;
};

class Host
{
public:
    Host()
    {
        auto* layout = new QVBoxLayout(&m_window);
        AddEdit(layout);
        m_tabs.addTab(new QWidget, "First");
        auto* inner = new QVBoxLayout(m_tabs.widget(0));
        inner->setContentsMargins(8, 8, 8, 8);
        MakeContainer();
        m_tabs.addTab(new QWidget, "Second");
        layout->addWidget(&m_tabs, 1);
        m_window.setGeometry(60, 80, 500, 380);
        m_window.show();
        Say(QString("window %1").arg(m_window.winId()));
    }

    void Do(const QStringList& command)
    {
        if (command[0] == "embed")
            Say(QString("embedded %1").arg(m_container->Embed(command[1].toULongLong())));
        else if (command[0] == "release")
            m_container->Release();
        else if (command[0] == "recreate")
            Recreate();
        else if (command[0] == "away")
            TakeContainerAway();
        else if (command[0] == "move")
            m_window.move(command[1].toInt(), command[2].toInt());
        else if (command[0] == "resize")
            m_window.resize(command[1].toInt(), command[2].toInt());
        else if (command[0] == "tab")
            m_tabs.setCurrentIndex(command[1].toInt());
        else if (command[0] == "place")
            SayPlace(m_window, command[1]);
        else if (command[0] == "focus")
            SayFocus();
    }

private:
    void MakeContainer()
    {
        m_container = new embedding::CGuestContainer;
        m_container->setObjectName("container");
        QObject::connect(m_container, &embedding::CGuestContainer::GuestLost, [] { Say("guest lost"); });
        m_tabs.widget(0)->layout()->addWidget(m_container);
    }

    void Recreate()
    {
        delete m_container;
        MakeContainer();
        Say("recreated");
    }

    /// Gives the container another native window.
    void TakeContainerAway()
    {
        m_container->setParent(nullptr);
        m_tabs.widget(0)->layout()->addWidget(m_container);
        m_container->show();
        Say("back");
    }

    QWidget m_window;
    QTabWidget m_tabs;
    embedding::CGuestContainer* m_container = nullptr;
};

template<typename Side>
int Run()
{
    Side side;
    QSocketNotifier input(0, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        std::string line;
        do {
            if (!std::getline(std::cin, line))
                return QApplication::quit();
            side.Do(QString::fromStdString(line).split(' '));
        } while (std::cin.rdbuf()->in_avail() > 0);
    });
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    Base::SetLogObserver([](Base::LogLevel, const char*, const std::string& message) {
        Say("log " + QString::fromStdString(message));
    });
    UiDataController::CHighDPIMgr::doHighDPI(argc, argv);
    QApplication application(argc, argv);
    embedding::FollowMouseWithFocus();
    return argc > 1 && std::string(argv[1]) == "host" ? Run<Host>() : Run<Guest>();
}
