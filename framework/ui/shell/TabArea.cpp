#include "framework/ui/shell/TabArea.h"

#include "VantorGUIToolkit/Icons.h"
#include "framework/ui/parts/Report.h"
#include "framework/ui/parts/WindowTable.h"
#include "framework/ui/shell/TabStrip.h"

#include <QApplication>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

namespace framework {

namespace {

const QString kHome = QStringLiteral("Home");

} // namespace

CTabArea::CTabArea(PageFactory factory, QWidget* parent)
    : QWidget(parent), m_factory(std::move(factory)), m_strip(new CTabStrip(this)), m_bar(&m_strip->Bar()),
      m_stack(new QStackedWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_strip);
    layout->addWidget(m_stack, 1);
    setFocusProxy(m_stack);
    m_stack->setObjectName("content");
    m_stack->setProperty("surface", "page");
    connect(m_bar, &QTabBar::currentChanged, this, &CTabArea::ShowCurrent);
    connect(m_bar, &QTabBar::tabMoved, this, &CTabArea::Moved);
    connect(m_strip, &CTabStrip::CloseRequested, this, [this](int index) { Close(NameAt(index)); });
}

bool CTabArea::Open(const QString& name)
{
    if (!Add(name))
        return false;
    m_bar->setCurrentIndex(IndexOf(name));
    ShowCurrent();
    return true;
}

bool CTabArea::Add(const QString& name)
{
    const WindowRow* row = FindWindow(name);
    if (row && IndexOf(name) < 0)
        AddTab(*row);
    return row != nullptr;
}

void CTabArea::AddTab(const WindowRow& row)
{
    const QString name = row.name;
    QWidget* page = m_factory(row, m_stack);
    m_pages.insert(name, page);
    m_stack->addWidget(page);
    // The bar makes a first tab the current one before it can have a name.
    const QSignalBlocker blocker(m_bar);
    const int index = m_bar->addTab(VantorGUIToolkit::icon(row.icon), row.Title());
    m_bar->setTabData(index, name);
    m_bar->setTabToolTip(index, row.Title());
    if (name == kHome)
        m_strip->MakePermanent(index);
    emit Opened(name);
}

void CTabArea::Close(const QString& name)
{
    const int index = IndexOf(name);
    if (index < 0 || name == kHome)
        return;
    QWidget* page = m_pages.take(name);
    m_bar->removeTab(index);
    m_stack->removeWidget(page);
    delete page;
    emit Closed(name);
}

void CTabArea::Step(int places)
{
    const int count = m_bar->count();
    m_bar->setCurrentIndex((m_bar->currentIndex() + places + count) % count);
}

QStringList CTabArea::Names() const
{
    QStringList names;
    for (int index = 0; index < m_bar->count(); ++index)
        names << NameAt(index);
    return names;
}

QString CTabArea::Current() const
{
    return NameAt(m_bar->currentIndex());
}

QWidget* CTabArea::Page(const QString& name) const
{
    return m_pages.value(name);
}

const QWidget& CTabArea::Content() const
{
    return *m_stack;
}

QRect CTabArea::TabRect(const QString& name) const
{
    const int index = IndexOf(name);
    return index < 0 ? QRect() : ScreenRect(*m_bar, m_bar->tabRect(index));
}

QRect CTabArea::CloseRect(const QString& name) const
{
    const int index = IndexOf(name);
    if (index < 0)
        return {};
    const QWidget* cross = m_strip->Cross(index);
    return cross ? ScreenRect(*cross) : QRect();
}

int CTabArea::IndexOf(const QString& name) const
{
    for (int index = 0; index < m_bar->count(); ++index)
        if (NameAt(index) == name)
            return index;
    return -1;
}

QString CTabArea::NameAt(int index) const
{
    return m_bar->tabData(index).toString();
}

void CTabArea::ShowCurrent()
{
    QWidget* page = m_pages.value(Current());
    if (!page || Current() == m_shown)
        return;
    m_shown = Current();
    // The focus must not wander from a page that is hidden to some button elsewhere.
    if (const QWidget* focus = QApplication::focusWidget(); !focus || m_stack->isAncestorOf(focus))
        m_stack->setFocus();
    m_stack->setCurrentWidget(page);
    emit CurrentChanged(m_shown);
}

} // namespace framework
