#include "framework/ui/pages/HomePage.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Toolkit.h"
#include "VantorGUIToolkit/Widgets/Badge.h"
#include "VantorGUIToolkit/Widgets/PageHeader.h"
#include "framework/core/Journal.h"
#include "framework/core/Resources.h"
#include "framework/ui/pages/JournalPage.h"
#include "framework/ui/parts/Sentences.h"
#include "framework/ui/parts/StartAlignedButton.h"
#include "framework/ui/parts/StateText.h"
#include "framework/ui/parts/WindowTable.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace framework {

using namespace VantorGUIToolkit;

namespace {

constexpr int kShortcutWidth = 192; ///< at least; decides how many stand in a row
constexpr int kMostColumns = 4;
constexpr int kEvents = 8;
constexpr int kIconSize = 20;
constexpr int kHeadHeight = 30; ///< of a card, with a button or without
const char* const kShortcuts[] = {"MainView",  "RemotePlayback", "RecordSchedule", "Devices",
                                  "VideoFile", "SnapshotFile",   "BroadcastWID",   "AlarmOutput"};

/// A card with a heading; returns the layout below it.
QVBoxLayout* FillCard(QFrame* card, const QString& heading, QWidget* beside = nullptr)
{
    setSurface(card, Surface::Card);
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(Grid::Wide, Grid::Large, Grid::Wide, Grid::Wide);
    layout->setSpacing(Grid::Medium);
    auto* top = new QHBoxLayout;
    top->addWidget(makeLabel(heading, TextRole::Heading, card), 1);
    if (beside)
        top->addWidget(beside);
    else
        top->addSpacerItem(new QSpacerItem(0, kHeadHeight));
    layout->addLayout(top);
    return layout;
}

QString Number(long number)
{
    return toolkit().locale().toString(static_cast<qlonglong>(number));
}

void Clear(QLayout& layout)
{
    while (QLayoutItem* item = layout.takeAt(0)) {
        delete item->widget();
        delete item;
    }
}

} // namespace

CHomePage::CHomePage(const CResources& resources, const CJournal& operations, QWidget* parent)
    : QWidget(parent), m_resources(resources), m_operations(operations)
{
    setObjectName("homePage");
    setSurface(this, Surface::Page);
    auto* grid = new QGridLayout;
    grid->setSpacing(Grid::Large);
    grid->addWidget(MakeDevicesCard(), 0, 0);
    grid->addWidget(MakeComponentCard(), 0, 1);
    grid->addWidget(MakeShortcutsCard(), 1, 0, 1, 2);
    grid->addWidget(MakeEventsCard(), 2, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Grid::Wide, Grid::Wide, Grid::Wide, Grid::Wide);
    layout->setSpacing(Grid::Large);
    layout->addWidget(new CPageHeader(TitleOf("Home"), tr("Your devices and the client at a glance."), this));
    layout->addLayout(grid, 1);
    ShowDevices();
    ShowEvents();
}

QWidget* CHomePage::MakeDevicesCard()
{
    auto* card = new QFrame(this);
    QPushButton* manage = makeButton(TitleOf("Devices"), ButtonKind::Normal, card);
    manage->setObjectName("homeDevices");
    connect(manage, &QPushButton::clicked, this, [this] { emit OpenRequested("Devices"); });
    m_devicesButton = manage;
    QVBoxLayout* layout = FillCard(card, tr("Devices"), manage);
    m_deviceCount = makeLabel({}, TextRole::Title, card);
    m_deviceCount->setObjectName("deviceCount");
    m_deviceText = makeLabel({}, TextRole::Hint, card);
    layout->addWidget(m_deviceCount);
    layout->addWidget(m_deviceText);
    layout->addStretch();
    return card;
}

QWidget* CHomePage::MakeComponentCard()
{
    auto* card = new QFrame(this);
    QPushButton* restart = makeButton(tr("Restart"), ButtonKind::Normal, card);
    restart->setObjectName("homeRestart");
    restart->setIcon(icon("refresh"));
    m_restartButton = restart;
    connect(restart, &QPushButton::clicked, this, &CHomePage::RestartRequested);
    QVBoxLayout* layout = FillCard(card, tr("Video component"), restart);
    m_state = new CBadge({}, Tone::Idle, card);
    m_state->setObjectName("homeComponentState");
    m_stateText = makeLabel({}, TextRole::Hint, card);
    layout->addWidget(m_state, 0, Qt::AlignLeading);
    layout->addWidget(m_stateText);
    layout->addStretch();
    return card;
}

QWidget* CHomePage::MakeShortcutsCard()
{
    auto* card = new QFrame(this);
    QVBoxLayout* layout = FillCard(card, tr("Shortcuts"));
    m_shortcuts = new QGridLayout;
    m_shortcuts->setSpacing(Grid::Medium);
    layout->addLayout(m_shortcuts);
    return card;
}

QWidget* CHomePage::MakeEventsCard()
{
    auto* card = new QFrame(this);
    QPushButton* all = makeButton(TitleOf("Operations"), ButtonKind::Normal, card);
    all->setObjectName("homeOperations");
    connect(all, &QPushButton::clicked, this, [this] { emit OpenRequested("Operations"); });
    m_eventsCard = card;
    QVBoxLayout* layout = FillCard(card, tr("Last events"), all);
    m_events = new QGridLayout;
    m_events->setHorizontalSpacing(Grid::Medium);
    m_events->setVerticalSpacing(Grid::Small);
    m_events->setColumnStretch(2, 1);
    layout->addLayout(m_events);
    layout->addStretch();
    return card;
}

void CHomePage::ShowDevices()
{
    const auto devices = m_resources.Devices();
    const auto online =
        std::count_if(devices.begin(), devices.end(), [](const auto& each) { return each.online; });
    m_deviceCount->setText(
        devices.empty()
            ? tr("No devices")
            : tr("%1 of %2 online").arg(Number(online), Number(static_cast<long>(devices.size()))));
    m_deviceText->setText(devices.empty() ? tr("Add the first one in the device list.")
                          : online == static_cast<long>(devices.size())
                              ? tr("All devices are reached.")
                              : tr("Some devices are not reached."));
}

void CHomePage::ShowComponent(ComponentState state, const QString& detail)
{
    m_state->Set(TextOf(state), ToneOf(state));
    m_stateText->setText(SentenceOf(state));
    m_stateText->setToolTip(InUserLanguage(detail.toStdString()));
}

void CHomePage::ShowUser(const User& user)
{
    m_user = user;
    ShowShortcuts();
    m_devicesButton->setVisible(FindWindow("Devices")->MayOpen(user));
    m_eventsCard->setVisible(FindWindow("Operations")->MayOpen(user));
    m_restartButton->setVisible(user.May(permission::kSystemConfig));
}

void CHomePage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int columns = width() >= kMostColumns * kShortcutWidth ? kMostColumns : kMostColumns / 2;
    if (columns == m_columns)
        return;
    m_columns = columns;
    for (int column = 0; column < kMostColumns; ++column)
        m_shortcuts->setColumnStretch(column, column < columns ? 1 : 0);
    ShowShortcuts();
}

void CHomePage::ShowShortcuts()
{
    Clear(*m_shortcuts);
    int index = 0;
    for (const char* name : kShortcuts) {
        const WindowRow* row = FindWindow(name);
        if (m_columns == 0 || !row->MayOpen(m_user))
            continue;
        auto* button = new CStartAlignedButton(this);
        button->setText(row->Title());
        button->SetIndent(Grid::Large);
        button->setObjectName(QString("shortcut") + name);
        button->setProperty("kind", "shortcut");
        button->setIcon(icon(row->icon));
        button->setIconSize({kIconSize, kIconSize});
        connect(button, &QPushButton::clicked, this, [this, name] { emit OpenRequested(name); });
        m_shortcuts->addWidget(button, index / m_columns, index % m_columns);
        ++index;
    }
}

void CHomePage::ShowEvents()
{
    Clear(*m_events);
    const std::vector<JournalEntry> entries = m_operations.Entries();
    const int count = std::min(kEvents, static_cast<int>(entries.size()));
    for (int row = 0; row < count; ++row) {
        const JournalEntry& entry = entries[entries.size() - 1 - static_cast<std::size_t>(row)];
        QLabel* text = makeLabel(InUserLanguage(entry.text), TextRole::Plain, this);
        text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        alignToReading(text);
        m_events->addWidget(makeIconLabel(JournalKindIcon(entry.kind), Grid::Large, this), row, 0);
        m_events->addWidget(makeLabel(JournalTimeText(entry), TextRole::Hint, this), row, 1);
        m_events->addWidget(text, row, 2);
    }
    if (count == 0)
        m_events->addWidget(makeLabel(tr("Nothing has happened yet."), TextRole::Hint, this), 0, 2);
}

} // namespace framework
