#include "framework/ui/tour/Tour.h"

#include "framework/core/FrameworkCore.h"
#include "framework/ui/parts/WindowTable.h"
#include "framework/ui/shell/ComponentTab.h"
#include "framework/ui/shell/MainWindow.h"

#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

#include <cstdio>

namespace framework {

namespace {

constexpr int kPollMs = 50;
constexpr int kSettleMs = 400; ///< animations and the other process's last strokes
constexpr int kStepMs = 30000;

} // namespace

CTour::CTour(TourStage stage, QString folder)
    : m_stage(std::move(stage)), m_folder(std::move(folder)), m_steps(AllTourSteps(m_stage))
{
    connect(&m_poll, &QTimer::timeout, this, &CTour::Look);
}

void CTour::Start()
{
    if (!QDir().mkpath(m_folder)) {
        std::printf("FAILED  the folder %s cannot be made\n", qPrintable(m_folder));
        emit Finished(false);
        return;
    }
    m_at = 0;
    NextStep();
}

void CTour::NextStep()
{
    if (m_at == m_steps.size())
        return Summarise();
    m_sinceReady.invalidate();
    m_sinceBegin.start();
    m_poll.start(kPollMs);
    m_steps[m_at].begin();
}

// The step is ready when it says so and then stays so for the time of settling, with something to see.
void CTour::Look()
{
    const QString pending = m_steps[m_at].pending();
    if (!pending.isEmpty()) {
        m_sinceReady.invalidate();
        if (m_stage.core.State() == ComponentState::GivenUp)
            EndEarly(pending);
        else if (m_sinceBegin.elapsed() > kStepMs)
            EndStep(pending);
        return;
    }
    if (!m_sinceReady.isValid())
        m_sinceReady.start();
    if (m_sinceReady.elapsed() >= kSettleMs)
        TakePicture();
}

// Nothing more can be seen of a component that is not started any more.
void CTour::EndEarly(const QString& problem)
{
    const int left = static_cast<int>(m_steps.size() - m_at) - 1;
    m_steps.erase(m_steps.begin() + static_cast<std::ptrdiff_t>(m_at) + 1, m_steps.end());
    EndStep(problem);
    std::printf("The component does not run: %d steps were left out.\n", left);
}

void CTour::TakePicture()
{
    const QImage screen = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    const bool blank = IsBlank(screen);
    if (blank && m_sinceBegin.elapsed() < kStepMs)
        return;
    m_picture = screen;
    EndStep(blank ? QStringLiteral("the page is empty") : QString());
}

bool CTour::IsBlank(const QImage& screen) const
{
    const QRect area = m_steps[m_at].area().intersected(screen.rect());
    if (area.isEmpty())
        return true;
    const QRgb first = screen.pixel(area.topLeft());
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (screen.pixel(x, y) != first)
                return false;
    return true;
}

void CTour::EndStep(const QString& problem)
{
    m_poll.stop();
    const TourStep& step = m_steps[m_at];
    QString why = problem;
    const QString path =
        QString("%1/%2-%3.png").arg(m_folder).arg(m_at + 1, 2, 10, QChar('0')).arg(step.name);
    if (m_picture.isNull())
        m_picture = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    if (!m_picture.save(path) && why.isEmpty())
        why = "the picture could not be written";
    m_picture = {};
    if (why.isEmpty())
        std::printf("ok  %s  %s\n", qPrintable(step.name), qPrintable(path));
    else
        std::printf("FAILED  %s: %s  %s\n", qPrintable(step.name), qPrintable(why), qPrintable(path));
    std::fflush(stdout);
    m_failed += why.isEmpty() ? 0 : 1;
    CountPages();
    if (step.end)
        step.end();
    ++m_at;
    QTimer::singleShot(kPollMs, this, &CTour::NextStep);
}

void CTour::CountPages()
{
    CTabArea& tabs = m_stage.window().Tabs();
    const QString name = tabs.Current();
    auto* tab = qobject_cast<CComponentTab*>(tabs.Page(name));
    if (!tab || tab->Session().State() != TabState::Embedded || m_seen.contains(name))
        return;
    m_seen << name;
    if (!tab->Session().IsAvailable())
        m_notAvailable << name;
}

void CTour::Summarise()
{
    std::printf("%zu steps, %d failed.\n", m_steps.size(), m_failed);
    std::printf("%d of %d pages of the component are not available yet%s%s\n", m_notAvailable.size(),
                m_seen.size(), m_notAvailable.isEmpty() ? "." : ": ", qPrintable(m_notAvailable.join(", ")));
    std::fflush(stdout);
    emit Finished(m_failed == 0);
}

} // namespace framework
