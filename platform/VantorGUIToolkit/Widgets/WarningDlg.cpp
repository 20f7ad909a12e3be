#include "VantorGUIToolkit/Widgets/WarningDlg.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace VantorGUIToolkit {

namespace {

constexpr int kTextWidth = 288;
constexpr int kMostTextHeight = 320;

} // namespace

CWarningDlg::CWarningDlg(const QString& text, const QString& title, const QString& iconName, QWidget* parent)
    : CDialog(title, parent ? parent->window() : nullptr)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(Grid::Large);
    row->addWidget(makeIconLabel(iconName, Grid::Huge, this), 0, Qt::AlignTop);
    row->addWidget(MakeText(text), 1);
    ContentLayout()->addLayout(row);
    setAccessibleDescription(text);
}

// A list of what failed on every device can be longer than the screen is high.
QWidget* CWarningDlg::MakeText(const QString& text)
{
    QLabel* label = makeLabel(breakable(text), TextRole::Plain, this);
    label->setObjectName("warningText");
    label->setWordWrap(true);
    label->setMinimumWidth(kTextWidth);
    if (label->heightForWidth(kTextWidth) <= kMostTextHeight)
        return label;
    label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    auto* scroll = new QScrollArea(this);
    scroll->setObjectName("warningScroll");
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidgetResizable(true);
    scroll->setWidget(label);
    scroll->setMinimumWidth(kTextWidth + Grid::Large);
    scroll->setFixedHeight(kMostTextHeight);
    return scroll;
}

int CWarningDlg::Ask(CWarningDlg* dialog)
{
    const QPointer<CWarningDlg> asked(dialog);
    const int answer = dialog->exec();
    if (!asked) // destroyed with its parent while it was open
        return 0;
    delete dialog;
    return answer == Accepted ? 1 : 0;
}

int CWarningDlg::CheckMessageInfo(const QString& text, const QString& title, QWidget* parent)
{
    auto* dialog = new CWarningDlg(text, title, "question", parent);
    dialog->AddButton(tr("No"), ButtonKind::Normal, Rejected)->setObjectName("noButton");
    dialog->AddButton(tr("Yes"), ButtonKind::Primary, Accepted)->setObjectName("yesButton");
    return Ask(dialog);
}

int CWarningDlg::CheckDangerousAction(const QString& text, const QString& title, const QString& action,
                                      QWidget* parent)
{
    auto* dialog = new CWarningDlg(text, title, "warning", parent);
    QPushButton* cancel = dialog->AddButton(tr("Cancel"), ButtonKind::Normal, Rejected);
    cancel->setObjectName("noButton");
    dialog->AddButton(action, ButtonKind::Danger, Accepted)->setObjectName("yesButton");
    cancel->setDefault(true);
    cancel->setFocus();
    return Ask(dialog);
}

void CWarningDlg::ShowInformation(const QString& text, const QString& title, QWidget* parent)
{
    auto* dialog = new CWarningDlg(text, title, "info", parent);
    dialog->AddButton(tr("OK"), ButtonKind::Primary, Accepted)->setObjectName("yesButton");
    Ask(dialog);
}

void CWarningDlg::ShowError(const QString& text, const QString& title, QWidget* parent)
{
    auto* dialog = new CWarningDlg(text, title, "error", parent);
    dialog->AddButton(tr("OK"), ButtonKind::Primary, Accepted)->setObjectName("yesButton");
    Ask(dialog);
}

} // namespace VantorGUIToolkit
