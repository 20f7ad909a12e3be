#include "framework/ui/pages/JournalPage.h"

#include "VantorGUIToolkit/Toolkit.h"
#include "VantorGUIToolkit/Widgets/TableView.h"
#include "framework/core/Journal.h"
#include "framework/ui/parts/Sentences.h"

#include <QCoreApplication>
#include <QDateTime>

#include <algorithm>

namespace framework {

using namespace VantorGUIToolkit;

namespace {

constexpr int kWidths[] = {200, 160, 140};

struct KindLook
{
    const char* kind;
    const char* text;
    const char* icon;
};

constexpr KindLook kKinds[] = {
    {"alarm", QT_TRANSLATE_NOOP("Journal", "Alarm"), "alarm"},
    {"device", QT_TRANSLATE_NOOP("Journal", "Device"), "device"},
    {"user", QT_TRANSLATE_NOOP("Journal", "User"), "user"},
    {"component", QT_TRANSLATE_NOOP("Journal", "Component"), "power"},
    {"window", QT_TRANSLATE_NOOP("Journal", "Window"), "screen"},
    {"system", QT_TRANSLATE_NOOP("Journal", "System"), "settings"},
};

const KindLook* LookOf(const std::string& kind)
{
    const auto look = std::find_if(std::begin(kKinds), std::end(kKinds),
                                   [&](const auto& each) { return kind == each.kind; });
    return look == std::end(kKinds) ? nullptr : look;
}

QStringList AllKindTexts()
{
    QStringList texts;
    for (const KindLook& look : kKinds)
        texts << QCoreApplication::translate("Journal", look.text);
    return texts;
}

} // namespace

QString JournalKindText(const std::string& kind)
{
    const KindLook* look = LookOf(kind);
    return look ? QCoreApplication::translate("Journal", look->text) : QString::fromStdString(kind);
}

QString JournalKindIcon(const std::string& kind)
{
    const KindLook* look = LookOf(kind);
    return look ? look->icon : "info";
}

QString JournalTimeText(const JournalEntry& entry)
{
    return toolkit().dateTimeText(QDateTime::fromSecsSinceEpoch(entry.time));
}

CJournalPage::CJournalPage(const CJournal& journal, const QString& title, const QString& sentence,
                           QWidget* parent)
    : CListPage(title, sentence, {tr("Time"), tr("Kind"), tr("User"), tr("Event")}, parent),
      m_journal(journal)
{
    setObjectName("journalPage");
    AddFilter(KindColumn, tr("All kinds"), AllKindTexts());
    for (int column = 0; column < int(std::size(kWidths)); ++column)
        Table().setColumnWidth(column, kWidths[column]);
    Table().SetEmptyState("log", tr("Nothing has happened yet"),
                          tr("What happens is listed here, the newest first."));
    Table().sortByColumn(TimeColumn, Qt::DescendingOrder);
    Reload();
}

void CJournalPage::Reload()
{
    const std::vector<JournalEntry> entries = m_journal.Entries();
    m_count = static_cast<int>(entries.size());
    std::vector<ListRow> rows;
    for (int index = 0; index < m_count; ++index) {
        const JournalEntry& entry = entries[static_cast<std::size_t>(index)];
        rows.push_back({QString::number(index),
                        {{JournalTimeText(entry), index, {}},
                         {JournalKindText(entry.kind), {}, JournalKindIcon(entry.kind)},
                         {QString::fromStdString(entry.user), {}, {}},
                         {InUserLanguage(entry.text), {}, {}}},
                        IsUnread(m_count - 1 - index)});
    }
    SetRows(std::move(rows));
}

bool CJournalPage::IsUnread(int) const
{
    return false;
}

int CJournalPage::SelectedPosition() const
{
    const QString id = SelectedId();
    return id.isEmpty() ? -1 : m_count - 1 - id.toInt();
}

} // namespace framework
