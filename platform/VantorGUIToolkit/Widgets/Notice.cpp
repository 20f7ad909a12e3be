#include "VantorGUIToolkit/Widgets/Notice.h"

#include "VantorGUIToolkit/Widgets/NoticeStack.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

namespace VantorGUIToolkit {

namespace {

constexpr int kWidth = 352;
constexpr int kShortestMs = 4000;
constexpr int kLongestMs = 20000;
constexpr int kMsPerLetter = 60;
constexpr int kAfterMouseMs = 2000;

QString Shortened(const QString& text)
{
    return text.size() <= CNotice::kMaxText ? text : text.left(CNotice::kMaxText - 1) + QChar(0x2026);
}

QScreen* ScreenOf(const QWidget* anchor)
{
    if (!anchor)
        return QGuiApplication::primaryScreen();
    // A window embedded in another process's has no place of its own that its QWindow would know.
    if (QScreen* screen = QGuiApplication::screenAt(anchor->mapToGlobal(anchor->rect().center())))
        return screen;
    const QWindow* window = anchor->window()->windowHandle();
    return window && window->screen() ? window->screen() : QGuiApplication::primaryScreen();
}

} // namespace

CNotice::CNotice(const QString& text, NoticeTone tone)
    : QFrame(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus),
      m_lifetime(new QTimer(this)), m_remaining(LifetimeOf(text))
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::NoFocus);
    setSurface(this, Surface::Card);
    setTone(this, tone);
    setAccessibleName(text);
    setFixedWidth(kWidth);
    auto* row = new QHBoxLayout(this);
    setReadingMargins(row, this, Grid::Large, Grid::Medium, Grid::Small, Grid::Medium);
    row->setSpacing(Grid::Medium);
    row->addWidget(makeIconLabel(toneIconName(tone), Grid::Wide, this), 0, Qt::AlignTop);
    QLabel* label = makeLabel(breakable(text), TextRole::Plain, this);
    label->setWordWrap(true);
    label->setMinimumHeight(Grid::Wide);
    row->addWidget(label, 1);
    QToolButton* close = makeIconButton("close", tr("Close"), this);
    close->setObjectName("noticeClose");
    close->setFocusPolicy(Qt::NoFocus);
    connect(close, &QToolButton::clicked, this, &QWidget::close);
    row->addWidget(close, 0, Qt::AlignTop);
    m_lifetime->setObjectName("lifetime");
    m_lifetime->setSingleShot(true);
    connect(m_lifetime, &QTimer::timeout, this, &QWidget::close);
    m_lifetime->start(m_remaining);
}

void CNotice::Show(const QString& text, NoticeTone tone, QWidget* anchor)
{
    CNoticeStack::Instance().Add(new CNotice(Shortened(text), tone), ScreenOf(anchor));
}

int CNotice::LifetimeOf(const QString& text)
{
    return qMin(kLongestMs, kShortestMs + kMsPerLetter * text.size());
}

void CNotice::enterEvent(QEvent* event)
{
    QFrame::enterEvent(event);
    m_remaining = qMax(m_lifetime->remainingTime(), kAfterMouseMs);
    m_lifetime->stop();
}

void CNotice::leaveEvent(QEvent* event)
{
    QFrame::leaveEvent(event);
    m_lifetime->start(m_remaining);
}

} // namespace VantorGUIToolkit
