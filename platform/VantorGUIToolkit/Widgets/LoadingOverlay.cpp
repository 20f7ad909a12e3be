#include "VantorGUIToolkit/Widgets/LoadingOverlay.h"

#include "Base/Log.h"
#include "Base/ThreadPool.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QMovie>
#include <QPointer>
#include <QVBoxLayout>

#include <mutex>

namespace VantorGUIToolkit {

namespace {

/// A job that ends sooner is not worth a flicker.
constexpr int kRevealAfterMs = 150;

/// Of the panel, so that it keeps its form around one short word.
constexpr int kLeastWidth = 160;

const QString kMovie = QStringLiteral(":/VantorGUIToolkit/Dialog/Images/Dialog/Loading.gif");

void RunCaught(const std::function<void()>& job)
{
    try {
        job();
    } catch (const std::exception& error) {
        BASE_ERROR("A background job failed: %s.", error.what());
    } catch (...) {
        BASE_ERROR("A background job failed for an unknown reason.");
    }
}

/// The threads of the jobs of all overlays. They go with the application, which waits for running jobs.
struct JobThreads : QObject
{
    using QObject::QObject;
    Base::CThreadPool pool{"page-job", 8};
};

Base::CThreadPool& JobPool()
{
    static QPointer<JobThreads> threads;
    if (!threads)
        threads = new JobThreads(qApp);
    return threads->pool;
}

bool IsInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

} // namespace

/// What the job's thread knows of the overlay, which may be gone before the job ends.
struct CLoadingOverlay::Running
{
    std::mutex mutex;
    CLoadingOverlay* overlay;

    void TellEnd()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (overlay)
            QMetaObject::invokeMethod(overlay, &CLoadingOverlay::End, Qt::QueuedConnection);
    }
};

CLoadingOverlay::CLoadingOverlay(QWidget* parent)
    : QWidget(parent), m_panel(new QWidget(this)), m_text(makeLabel({}, TextRole::Plain, m_panel)),
      m_movie(new QMovie(kMovie, {}, this))
{
    hide();
    setFocusPolicy(Qt::StrongFocus);
    setSurface(m_panel, Surface::Card);
    m_panel->setObjectName("loadingPanel");
    m_panel->setMinimumWidth(kLeastWidth);
    auto* picture = new QLabel(m_panel);
    picture->setMovie(m_movie);
    picture->setAlignment(Qt::AlignCenter);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setObjectName("loadingText");
    auto* column = new QVBoxLayout(m_panel);
    column->setContentsMargins(Grid::Huge, Grid::Wide, Grid::Huge, Grid::Wide);
    column->setSpacing(Grid::Medium);
    column->addWidget(picture);
    column->addWidget(m_text);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(m_panel, 0, Qt::AlignCenter);
    m_reveal.setSingleShot(true);
    connect(&m_reveal, &QTimer::timeout, this, &CLoadingOverlay::Reveal);
}

CLoadingOverlay::~CLoadingOverlay()
{
    if (!m_running)
        return;
    const std::lock_guard<std::mutex> lock(m_running->mutex);
    m_running->overlay = nullptr;
}

bool CLoadingOverlay::Run(const QString& text, std::function<void()> job)
{
    if (m_running) {
        BASE_WARN("A background job is refused, since another one runs.");
        return false;
    }
    m_running = std::make_shared<Running>();
    m_running->overlay = this;
    m_text->setText(text);
    setAccessibleName(text);
    Cover();
    auto work = [running = m_running, job = std::move(job)]() mutable {
        RunCaught(job);
        job = nullptr;
        running->TellEnd();
    };
    JobPool().PostTask(std::move(work)); // the pool ends with the application, after every overlay
    return true;
}

void CLoadingOverlay::Cover()
{
    for (QWidget* popup = QApplication::activePopupWidget(); popup && popup->close();)
        popup = QApplication::activePopupWidget();
    QWidget* focus = window()->focusWidget(); // also of a window that is not active now
    m_focusBefore = focus && parentWidget()->isAncestorOf(focus) ? focus : nullptr;
    setAttribute(Qt::WA_StyledBackground, false); // not dimmed until Reveal
    m_panel->hide();
    setGeometry(parentWidget()->rect());
    raise();
    show();
    if (m_focusBefore)
        setFocus();
    qApp->installEventFilter(this);
    m_reveal.start(kRevealAfterMs);
}

void CLoadingOverlay::Reveal()
{
    setSurface(this, Surface::Overlay);
    update();
    m_movie->start();
    m_panel->show();
}

void CLoadingOverlay::End()
{
    m_running.reset();
    m_reveal.stop();
    m_movie->stop();
    qApp->removeEventFilter(this);
    const bool giveFocusBack = m_focusBefore && window()->focusWidget() == this;
    hide();
    if (giveFocusBack)
        m_focusBefore->setFocus();
    emit SignalLoadingEnd();
}

bool CLoadingOverlay::event(QEvent* event)
{
    if (!IsInput(event->type()))
        return QWidget::event(event);
    event->accept();
    return true;
}

bool CLoadingOverlay::focusNextPrevChild(bool)
{
    return true;
}

// What the parent's own windows (dialogs) get is not held back.
bool CLoadingOverlay::Covers(const QObject* receiver) const
{
    while (receiver && !receiver->isWidgetType())
        receiver = receiver->parent();
    const auto* widget = static_cast<const QWidget*>(receiver);
    if (!widget || widget == this || isAncestorOf(widget))
        return false;
    return widget == parentWidget() || parentWidget()->isAncestorOf(widget);
}

bool CLoadingOverlay::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    if (IsInput(event->type()) && Covers(watched))
        return true;
    return QWidget::eventFilter(watched, event);
}

} // namespace VantorGUIToolkit
