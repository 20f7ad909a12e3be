#include "framework/ui/shell/TabArea.h"

#include "VantorGUIToolkit/Icons.h"
#include "framework/ui/parts/Report.h"
#include "framework/ui/parts/WindowTable.h"

#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>
#include <QVBoxLayout>

namespace framework {

namespace {

const QString kHome = QStringLiteral("Home");
constexpr int kIconSize = 16;

QTabBar* MakeBar(QWidget* parent)
{
    auto* bar = new QTabBar(parent);
    bar->setObjectName("tabBar");
    bar->setMovable(true);
    bar->setTabsClosable(true);
    bar->setDrawBase(false);
    bar->setExpanding(false);
    bar->setElideMode(Qt::ElideNone);
    bar->setUsesScrollButtons(true);
    bar->setIconSize({kIconSize, kIconSize});
    return bar;
}

} // namespace

CTabArea::CTabArea(PageFactory factory, QWidget* parent)
    : QWidget(parent), m_factory(std::move(factory)), m_bar(MakeBar(this)), m_stack(new QStackedWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_bar);
    layout->addWidget(m_stack, 1);
    m_stack->setObjectName("content");
    m_stack->setProperty("surface", "page");
    connect(m_bar, &QTabBar::currentChanged, this, &CTabArea::ShowCurrent);
    connect(m_bar, &QTabBar::tabCloseRequested, this, [this](int index) { Close(NameAt(index)); });
}

bool CTabArea::Open(const QString& name)
{
    const WindowRow* row = FindWindow(name);
    if (!row)
        return false;
    if (IndexOf(name) < 0)
        AddTab(*row);
    m_bar->setCurrentIndex(IndexOf(name));
    return true;
}

void CTabArea::AddTab(const WindowRow& row)
{
    const QString name = row.name;
    QWidget* page = m_factory(row, m_stack);
    m_pages.insert(name, page);
    m_stack->addWidget(page);
    // The page has to be known before the bar makes a first tab the current one.
    const QSignalBlocker blocker(m_bar);
    const int index = m_bar->addTab(VantorGUIToolkit::icon(row.icon), row.Title());
    m_bar->setTabData(index, name);
    m_bar->setTabToolTip(index, row.Title());
    if (name == kHome)
        for (const auto side : {QTabBar::LeftSide, QTabBar::RightSide})
            m_bar->setTabButton(index, side, nullptr);
    m_bar->setCurrentIndex(index);
    emit Opened(name);
    ShowCurrent();
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
    for (const auto side : {QTabBar::LeftSide, QTabBar::RightSide})
        if (const QWidget* cross = m_bar->tabButton(index, side))
            return ScreenRect(*cross);
    return {};
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
    if (!page)
        return;
    m_stack->setCurrentWidget(page);
    emit CurrentChanged(Current());
}

} // namespace framework
