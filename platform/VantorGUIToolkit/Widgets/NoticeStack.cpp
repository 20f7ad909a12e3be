#include "VantorGUIToolkit/Widgets/NoticeStack.h"

#include "VantorGUIToolkit/UiSingleton.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>

#include <algorithm>

namespace VantorGUIToolkit {

CNoticeStack& CNoticeStack::Instance()
{
    CNoticeStack& stack = CUiSingleton<CNoticeStack>::Instance();
    connect(qApp, &QCoreApplication::aboutToQuit, &stack, &CNoticeStack::CloseAll, Qt::UniqueConnection);
    // Later: the screen is still there when it is told that it goes.
    connect(qApp, &QGuiApplication::screenRemoved, &stack, &CNoticeStack::Arrange,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    return stack;
}

std::vector<QWidget*> CNoticeStack::Notices() const
{
    std::vector<QWidget*> notices;
    for (const Entry& entry : m_entries)
        notices.push_back(entry.notice);
    return notices;
}

void CNoticeStack::Add(QWidget* notice, QScreen* screen)
{
    while (m_entries.size() >= kMost)
        Close(0);
    m_entries.push_back({notice, screen});
    Follow(screen);
    notice->installEventFilter(this);
    notice->ensurePolished();
    Arrange();
    notice->show();
}

// Resolutions and task bars change while notices are shown.
void CNoticeStack::Follow(QScreen* screen)
{
    if (screen)
        connect(screen, &QScreen::availableGeometryChanged, this, &CNoticeStack::Arrange,
                Qt::UniqueConnection);
}

void CNoticeStack::CloseAll()
{
    while (!m_entries.empty())
        Close(0);
}

// Out of the list first: what closes may be deleted at once or later.
void CNoticeStack::Close(std::size_t index)
{
    const QPointer<QWidget> notice = m_entries[index].notice;
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(index));
    if (!notice)
        return;
    notice->removeEventFilter(this);
    notice->close();
}

void CNoticeStack::Forget(const QObject* notice)
{
    const auto gone = [notice](const Entry& entry) { return !entry.notice || entry.notice == notice; };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), gone), m_entries.end());
}

// A notice that closes is hidden at once and deleted later.
bool CNoticeStack::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        Forget(watched);
        Arrange();
    }
    return QObject::eventFilter(watched, event);
}

void CNoticeStack::Arrange()
{
    Forget(nullptr);
    for (Entry& entry : m_entries)
        if (!entry.screen) {
            entry.screen = QGuiApplication::primaryScreen();
            Follow(entry.screen);
        }
    for (QScreen* screen : QGuiApplication::screens())
        while (!ArrangeOn(screen)) {
        }
}

// False when it closed the screen's oldest notice, for which there was no room.
bool CNoticeStack::ArrangeOn(QScreen* screen)
{
    const QRect area =
        screen->availableGeometry().adjusted(Grid::Large, Grid::Large, -Grid::Large, -Grid::Large);
    int bottom = area.bottom() + 1;
    int placed = 0;
    for (auto entry = m_entries.rbegin(); entry != m_entries.rend(); ++entry) {
        if (entry->screen != screen)
            continue;
        QWidget* notice = entry->notice;
        const int height = qMin(notice->heightForWidth(notice->width()), area.height());
        if (placed > 0 && bottom - height < area.top()) {
            Close(static_cast<std::size_t>(std::distance(entry, m_entries.rend()) - 1));
            return false;
        }
        notice->setFixedHeight(height);
        notice->move(area.right() + 1 - notice->width(), bottom - height);
        bottom -= height + Grid::Small;
        ++placed;
    }
    return true;
}

} // namespace VantorGUIToolkit
