#include "VantorGUIToolkit/Gallery/Sections.h"
#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/Dress.h"
#include "VantorGUIToolkit/Widgets/Switch.h"

#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

namespace VantorGUIToolkit {

namespace {

// The shortcut is shown, and not taken from the page's other widgets.
void AddEntry(QMenu* menu, const QString& iconName, const QString& text, int shortcut)
{
    QAction* action = menu->addAction(icon(iconName), text);
    action->setShortcut(QKeySequence(shortcut));
    action->setShortcutContext(Qt::WidgetShortcut);
}

} // namespace

CButtonSection::CButtonSection(QWidget* parent) : CGallerySection(tr("Buttons and choices"), parent)
{
    AddCounter();
    AddPushButtons();
    AddToolButtons();
    AddMenu();
    AddChecks();
}

void CButtonSection::AddCounter()
{
    QPushButton* button = makeButton(tr("&Click"), ButtonKind::Primary, this);
    button->setObjectName("galleryButton");
    QLabel* clicks = makeLabel(tr("Clicks: %1").arg(0), TextRole::Plain, this);
    clicks->setObjectName("galleryClicks");
    connect(button, &QPushButton::clicked, clicks,
            [this, clicks] { clicks->setText(tr("Clicks: %1").arg(++m_clicks)); });
    QPushButton* giveFocus = makeButton(tr("Show the focus"), ButtonKind::Normal, this);
    giveFocus->setObjectName("galleryFocusButton");
    giveFocus->setToolTip(tr("Moves the focus to the first button, as Tab would."));
    connect(giveFocus, &QPushButton::clicked, button, [button] { button->setFocus(Qt::TabFocusReason); });
    AddRow({button, clicks, giveFocus});
}

void CButtonSection::AddPushButtons()
{
    const std::pair<ButtonKind, QString> kinds[] = {{ButtonKind::Primary, tr("Primary")},
                                                    {ButtonKind::Normal, tr("Normal")},
                                                    {ButtonKind::Quiet, tr("Quiet")},
                                                    {ButtonKind::Danger, tr("Danger")}};
    QList<QWidget*> enabled;
    QList<QWidget*> disabled;
    for (const auto& [kind, text] : kinds) {
        enabled.append(makeButton(text, kind, this));
        disabled.append(makeButton(text, kind, this));
        disabled.last()->setEnabled(false);
    }
    QPushButton* withIcon = makeButton(tr("With icon"), ButtonKind::Normal, this);
    withIcon->setIcon(icon("add"));
    QPushButton* checked = makeButton(tr("Checked"), ButtonKind::Normal, this);
    checked->setCheckable(true);
    checked->setChecked(true);
    enabled << withIcon << checked;
    QPushButton* disabledIcon = makeButton(tr("With icon"), ButtonKind::Normal, this);
    disabledIcon->setIcon(icon("add"));
    disabledIcon->setEnabled(false);
    disabled << disabledIcon;
    AddCaption(tr("Push buttons, enabled and disabled"));
    AddRow(enabled);
    AddRow(disabled);
    QPushButton* wide = makeButton(tr("With icon"), ButtonKind::Normal, this);
    wide->setIcon(icon("add"));
    AddWide(wide);
}

void CButtonSection::AddToolButtons()
{
    QToolButton* checked = makeIconButton("live", tr("Checked"), this);
    checked->setCheckable(true);
    checked->setChecked(true);
    QToolButton* disabled = makeIconButton("edit", tr("Disabled"), this);
    disabled->setEnabled(false);
    QToolButton* withText = makeIconButton("refresh", tr("With text"), this);
    withText->setText(tr("With text"));
    withText->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    AddCaption(tr("Tool buttons"));
    AddRow({makeIconButton("settings", tr("Settings"), this), checked, disabled, withText});
}

void CButtonSection::AddMenu()
{
    QLabel* choice = makeLabel(tr("Nothing chosen"), TextRole::Hint, this);
    choice->setObjectName("galleryChoice");
    auto* menu = new QMenu(this);
    AddEntry(menu, "add", tr("&Add"), Qt::CTRL + Qt::Key_N);
    AddEntry(menu, "edit", tr("&Edit"), Qt::Key_F2);
    QAction* disabled = menu->addAction(icon("lock"), tr("Not available"));
    disabled->setEnabled(false);
    menu->addSeparator();
    QAction* checked = menu->addAction(tr("Show details"));
    checked->setCheckable(true);
    checked->setChecked(true);
    QMenu* more = menu->addMenu(icon("screen"), tr("Move to screen"));
    for (int screen = 1; screen <= 4; ++screen)
        more->addAction(tr("Screen %1").arg(screen));
    menu->addSeparator();
    AddEntry(menu, "remove", tr("Remove"), Qt::Key_Delete);
    connect(menu, &QMenu::triggered, choice,
            [choice](const QAction* action) { choice->setText(action->text().remove('&')); });
    QPushButton* button = makeButton(tr("Menu"), ButtonKind::Normal, this);
    button->setObjectName("galleryMenuButton");
    button->setMenu(menu);
    auto* bar = new QMenuBar(this);
    bar->setNativeMenuBar(false);
    bar->addMenu(menu)->setText(tr("Menu"));
    bar->addAction(tr("Settings"));
    AddCaption(tr("A menu with icons, shortcuts and a sub-menu"));
    AddRow({button, choice});
    AddWide(bar);
}

void CButtonSection::AddChecks()
{
    AddCaption(tr("Check boxes, radio buttons and switches"));
    QList<QWidget*> boxes;
    for (const Qt::CheckState state : {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked}) {
        const QString texts[] = {tr("Unchecked"), tr("Partly checked"), tr("Checked")};
        auto* box = new QCheckBox(texts[state], this);
        box->setTristate(state == Qt::PartiallyChecked);
        box->setCheckState(state);
        boxes.append(box);
    }
    for (const bool checked : {false, true}) {
        auto* box = new QCheckBox(tr("Disabled"), this);
        box->setChecked(checked);
        box->setEnabled(false);
        boxes.append(box);
    }
    AddRow(boxes);
    auto* first = new QRadioButton(tr("First"), this);
    first->setChecked(true);
    auto* disabled = new QRadioButton(tr("Disabled"), this);
    disabled->setEnabled(false);
    AddRow({first, new QRadioButton(tr("Second"), this), disabled});
    auto* on = new CSwitch(tr("On"), this);
    on->setObjectName("gallerySwitch");
    on->setChecked(true);
    auto* disabledOff = new CSwitch(tr("Disabled"), this);
    disabledOff->setEnabled(false);
    auto* disabledOn = new CSwitch(tr("Disabled"), this);
    disabledOn->setChecked(true);
    disabledOn->setEnabled(false);
    AddRow({on, new CSwitch(tr("Off"), this), disabledOn, disabledOff});
}

} // namespace VantorGUIToolkit
