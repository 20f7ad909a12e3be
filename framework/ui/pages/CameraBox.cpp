#include "framework/ui/pages/CameraBox.h"

#include "VantorGUIToolkit/Icons.h"
#include "framework/core/Resources.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFocusEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>

namespace framework {

using protocol::LocalFileCondition;

namespace {

constexpr int kGuidRole = Qt::UserRole;
constexpr int kConditionRole = Qt::UserRole + 1;
constexpr int kShownEntries = 16;

} // namespace

CCameraBox::CCameraBox(QWidget* parent) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setMaxVisibleItems(kShownEntries);
    lineEdit()->setPlaceholderText(tr("Camera, group or identifier"));
    completer()->setCompletionMode(QCompleter::PopupCompletion);
    completer()->setFilterMode(Qt::MatchContains);
    completer()->setCaseSensitivity(Qt::CaseInsensitive);
    completer()->setMaxVisibleItems(kShownEntries);
    completer()->popup()->setProperty("completions", true);
    completer()->popup()->setItemDelegate(
        new QStyledItemDelegate(this)); // that of completers knows no sheets
    connect(this, qOverload<int>(&QComboBox::activated), this, &CCameraBox::Take);
    connect(lineEdit(), &QLineEdit::textChanged, this, &CCameraBox::AlignText);
    connect(lineEdit(), &QLineEdit::returnPressed, this, &CCameraBox::Take);
}

void CCameraBox::AddEntry(const QString& iconName, const QString& text, const std::string& guid,
                          LocalFileCondition condition)
{
    addItem(VantorGUIToolkit::icon(iconName), text, QString::fromStdString(guid));
    setItemData(count() - 1, int(condition), kConditionRole);
}

void CCameraBox::Fill(const CResources& resources)
{
    const QString before = QString::fromStdString(Chosen().guid);
    const QSignalBlocker blocker(this);
    clear();
    const auto channels = resources.Channels({});
    for (const auto& group : resources.Groups()) {
        const QString name = QString::fromStdString(group.name);
        AddEntry("folder", name, group.guid, LocalFileCondition::Group);
        for (const auto& channel : channels)
            if (channel.groupGuid == group.guid)
                AddEntry("camera", name + QStringLiteral(" – ") + QString::fromStdString(channel.name),
                         channel.guid, LocalFileCondition::Camera);
    }
    m_taken = before.isEmpty() ? -1 : findData(before, kGuidRole);
    if (m_taken < 0 && m_identifier.isEmpty() && count() > 0)
        m_taken = 0;
    setCurrentIndex(m_taken);
    if (m_taken < 0)
        setEditText(m_identifier);
    AlignText();
}

CCameraBox::Choice CCameraBox::Chosen() const
{
    if (m_taken < 0)
        return {LocalFileCondition::Camera, m_identifier.toStdString()};
    return {static_cast<LocalFileCondition>(itemData(m_taken, kConditionRole).toInt()),
            itemData(m_taken, kGuidRole).toString().toStdString()};
}

// A line edit aligns by the language of its text, which would part a Latin name from its icon.
void CCameraBox::AlignText()
{
    const bool isForeign = isRightToLeft() && !currentText().isRightToLeft();
    lineEdit()->setAlignment((isForeign ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

// Two groups may have one name: the entry that the user chose, then, not the first of its name.
void CCameraBox::Take()
{
    const QString text = currentText().trimmed();
    if (text.isEmpty())
        return;
    const bool isCurrent = currentIndex() >= 0 && itemText(currentIndex()) == text;
    const int entry = isCurrent ? currentIndex() : findText(text, Qt::MatchFixedString);
    if (entry == m_taken && (entry >= 0 || text == m_identifier))
        return;
    m_taken = entry;
    m_identifier = entry < 0 ? text : QString();
    setCurrentIndex(entry);
    if (entry < 0)
        setEditText(text);
    emit ChoiceChanged();
}

// What was typed and not confirmed gives way to what is shown.
void CCameraBox::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        return;
    setEditText(m_taken < 0 ? m_identifier : itemText(m_taken));
}

} // namespace framework
