#include "VantorStyle/VantorStyle.h"

#include "VantorSkin/SkinIcon.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QListView>
#include <QPainter>
#include <QStyleOption>
#include <QStyledItemDelegate>
#include <QTextCharFormat>
#include <QTimer>
#include <QTreeView>
#include <QVariant>
#include <QWindow>

#include <map>

using VantorGUIToolkit::skinIcon;
using VantorGUIToolkit::SkinPalette;

namespace {

constexpr int kToolTipDelayMs = 500;

/// Device-independent pixels.
const std::map<QStyle::PixelMetric, int> kMetrics = {
    {QStyle::PM_LayoutLeftMargin, 16},
    {QStyle::PM_LayoutTopMargin, 16},
    {QStyle::PM_LayoutRightMargin, 16},
    {QStyle::PM_LayoutBottomMargin, 16},
    {QStyle::PM_LayoutHorizontalSpacing, 8},
    {QStyle::PM_LayoutVerticalSpacing, 8},
    {QStyle::PM_SmallIconSize, 16},
    {QStyle::PM_ButtonIconSize, 16},
    {QStyle::PM_ToolBarIconSize, 20},
    {QStyle::PM_TabBarIconSize, 16},
    {QStyle::PM_TabCloseIndicatorWidth, 16},
    {QStyle::PM_TabCloseIndicatorHeight, 16},
    {QStyle::PM_ListViewIconSize, 16},
    {QStyle::PM_LargeIconSize, 32},
    {QStyle::PM_MessageBoxIconSize, 32},
    {QStyle::PM_IndicatorWidth, 16},
    {QStyle::PM_IndicatorHeight, 16},
    {QStyle::PM_ExclusiveIndicatorWidth, 16},
    {QStyle::PM_ExclusiveIndicatorHeight, 16},
    {QStyle::PM_ScrollBarExtent, 12},
    {QStyle::PM_SplitterWidth, 5},
    {QStyle::PM_TreeViewIndentation, 20},
    {QStyle::PM_HeaderMargin, 8},
    {QStyle::PM_MenuPanelWidth, 1},
    {QStyle::PM_MenuHMargin, 4},
    {QStyle::PM_MenuVMargin, 4},
    {QStyle::PM_ButtonShiftHorizontal, 0},
    {QStyle::PM_ButtonShiftVertical, 0},
};

const std::map<QStyle::StyleHint, int> kHints = {
    {QStyle::SH_DialogButtonLayout, QDialogButtonBox::WinLayout},
    {QStyle::SH_DialogButtonBox_ButtonsHaveIcons, 0},
    {QStyle::SH_ToolTip_WakeUpDelay, kToolTipDelayMs},
    {QStyle::SH_EtchDisabledText, 0},
    {QStyle::SH_ItemView_ShowDecorationSelected, 1},
    {QStyle::SH_ComboBox_Popup, 0},
    {QStyle::SH_ComboBox_ListMouseTracking, 1},
    {QStyle::SH_Menu_MouseTracking, 1},
    {QStyle::SH_Menu_SloppySubMenus, 1},
    {QStyle::SH_MessageBox_CenterButtons, 0},
    {QStyle::SH_Slider_AbsoluteSetButtons, Qt::LeftButton},
    {QStyle::SH_TabBar_ElideMode, Qt::ElideRight},
    {QStyle::SH_TabBar_PreferNoArrows, 0},
};

const std::map<QStyle::StandardPixmap, const char*> kIcons = {
    {QStyle::SP_MessageBoxInformation, "info"},
    {QStyle::SP_MessageBoxWarning, "warning"},
    {QStyle::SP_MessageBoxCritical, "error"},
    {QStyle::SP_MessageBoxQuestion, "question"},
    {QStyle::SP_LineEditClearButton, "close"},
    {QStyle::SP_TitleBarCloseButton, "close"},
    {QStyle::SP_DockWidgetCloseButton, "close"},
    {QStyle::SP_DialogCloseButton, "close"},
    {QStyle::SP_DialogOkButton, "check"},
    {QStyle::SP_DialogApplyButton, "check"},
    {QStyle::SP_DialogHelpButton, "question"},
    {QStyle::SP_DirIcon, "folder"},
    {QStyle::SP_DirOpenIcon, "folder"},
    {QStyle::SP_DirClosedIcon, "folder"},
    {QStyle::SP_DirHomeIcon, "home"},
    {QStyle::SP_FileIcon, "log"},
    {QStyle::SP_FileDialogNewFolder, "add"},
    {QStyle::SP_FileDialogToParent, "chevron-up"},
    {QStyle::SP_FileDialogListView, "menu"},
    {QStyle::SP_FileDialogDetailedView, "log"},
    {QStyle::SP_DriveHDIcon, "storage"},
    {QStyle::SP_ComputerIcon, "screen"},
    {QStyle::SP_TrashIcon, "remove"},
    {QStyle::SP_BrowserReload, "refresh"},
    {QStyle::SP_MediaPlay, "playback"},
    {QStyle::SP_ArrowUp, "chevron-up"},
    {QStyle::SP_ArrowDown, "chevron-down"},
    {QStyle::SP_ArrowLeft, "chevron-left"},
    {QStyle::SP_ArrowRight, "chevron-right"},
    {QStyle::SP_ToolBarVerticalExtensionButton, "chevron-down"},
};

/// Icons that point along the line of reading, from left to right and from right to left.
const std::map<QStyle::StandardPixmap, std::pair<const char*, const char*>> kMirroredIcons = {
    {QStyle::SP_ArrowBack, {"chevron-left", "chevron-right"}},
    {QStyle::SP_ArrowForward, {"chevron-right", "chevron-left"}},
    {QStyle::SP_FileDialogBack, {"chevron-left", "chevron-right"}},
    {QStyle::SP_ToolBarHorizontalExtensionButton, {"chevron-right", "chevron-left"}},
};

bool IsMirrored(const QStyleOption* option, const QWidget* widget)
{
    if (option)
        return option->direction == Qt::RightToLeft;
    return widget ? widget->isRightToLeft() : QGuiApplication::isRightToLeft();
}

QIcon IconOf(QStyle::StandardPixmap standard, bool mirrored)
{
    if (const auto pair = kMirroredIcons.find(standard); pair != kMirroredIcons.end())
        return skinIcon(mirrored ? pair->second.second : pair->second.first);
    const auto icon = kIcons.find(standard);
    return icon == kIcons.end() ? QIcon() : skinIcon(icon->second);
}

int PictureSize(QStyle::StandardPixmap standard)
{
    switch (standard) {
    case QStyle::SP_MessageBoxInformation:
    case QStyle::SP_MessageBoxWarning:
    case QStyle::SP_MessageBoxCritical:
    case QStyle::SP_MessageBoxQuestion:
        return 32;
    default:
        return 16;
    }
}

void DrawRing(QPainter* painter, const QRect& around, const QColor& color)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, 1.5));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(around).adjusted(1, 1, -1, -1), 3, 3);
    painter->restore();
}

// Days off are told by a quieter colour; Qt's own bright red can't be read on dark surfaces. Short names of
// days have more than one word in some languages.
void DressCalendar(QCalendarWidget* calendar, const SkinPalette& colors)
{
    const QList<Qt::DayOfWeek> workdays = calendar->locale().weekdays();
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        const auto weekday = static_cast<Qt::DayOfWeek>(day);
        QTextCharFormat format;
        format.setForeground(colors.Color(workdays.contains(weekday) ? "text" : "text-secondary"));
        calendar->setWeekdayTextFormat(weekday, format);
    }
    calendar->setHorizontalHeaderFormat(QCalendarWidget::SingleLetterDayNames);
    calendar->setAttribute(Qt::WA_StyledBackground);
    calendar->setContentsMargins(1, 1, 1, 1); // the frame that the style sheet draws
}

// The delegate that Qt gives the list of a combo box leaves style sheets aside; one that a page has set
// stays. The list is measured before it is polished, so this can't wait for it.
void DressComboList(QComboBox* box)
{
    if (box->itemDelegate()->inherits("QComboBoxDelegate"))
        box->setItemDelegate(new QStyledItemDelegate(box));
}

// Views keep the heights that rows had before the sheet was known.
void MeasureRowsAgain(QAbstractItemView* view)
{
    QTimer::singleShot(0, view, [view] { view->doItemsLayout(); });
}

} // namespace

CVantorStyle::CVantorStyle() : QProxyStyle("Fusion")
{
    QString why;
    m_colors = SkinPalette::Load(SkinPalette::kResource, why);
}

int CVantorStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const auto own = kMetrics.find(metric);
    return own == kMetrics.end() ? QProxyStyle::pixelMetric(metric, option, widget) : own->second;
}

int CVantorStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const
{
    if (hint == SH_UnderlineShortcut)
        return QGuiApplication::keyboardModifiers().testFlag(Qt::AltModifier);
    if (hint == SH_Table_GridLineColor && m_colors)
        return static_cast<int>(m_colors->Color("border").rgba());
    const auto own = kHints.find(hint);
    return own == kHints.end() ? QProxyStyle::styleHint(hint, option, widget, returned) : own->second;
}

QIcon CVantorStyle::standardIcon(StandardPixmap standard, const QStyleOption* option,
                                 const QWidget* widget) const
{
    const QIcon icon = IconOf(standard, IsMirrored(option, widget));
    return icon.isNull() ? QProxyStyle::standardIcon(standard, option, widget) : icon;
}

QPixmap CVantorStyle::standardPixmap(StandardPixmap standard, const QStyleOption* option,
                                     const QWidget* widget) const
{
    const QIcon icon = IconOf(standard, IsMirrored(option, widget));
    if (icon.isNull())
        return QProxyStyle::standardPixmap(standard, option, widget);
    const int size = PictureSize(standard);
    return icon.pixmap(widget && widget->window() ? widget->window()->windowHandle() : nullptr, {size, size});
}

QPalette CVantorStyle::standardPalette() const
{
    return m_colors ? m_colors->ToQPalette() : QProxyStyle::standardPalette();
}

void CVantorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const
{
    if (element == PE_FrameFocusRect && m_colors)
        DrawRing(painter, option->rect, m_colors->Color("focus"));
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

// Sheets put the text of a button with an icon to the icon's side by themselves where the layout runs from
// right to left, and the painter would turn it around once more.
void CVantorStyle::drawItemText(QPainter* painter, const QRect& place, int flags, const QPalette& palette,
                                bool enabled, const QString& text, QPalette::ColorRole role) const
{
    const bool besideIcon = painter->layoutDirection() == Qt::RightToLeft &&
                            (flags & Qt::TextShowMnemonic) != 0 && (flags & Qt::AlignRight) != 0;
    QProxyStyle::drawItemText(painter, place, besideIcon ? flags | Qt::AlignAbsolute : flags, palette,
                              enabled, text, role);
}

void CVantorStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (widget->property("surface").isValid())
        widget->setAttribute(Qt::WA_StyledBackground);
    if (auto* header = qobject_cast<QHeaderView*>(widget); header && header->orientation() == Qt::Horizontal)
        header->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    if (qobject_cast<QTreeView*>(widget) || qobject_cast<QListView*>(widget))
        MeasureRowsAgain(static_cast<QAbstractItemView*>(widget));
    if (auto* box = qobject_cast<QComboBox*>(widget))
        DressComboList(box);
    if (auto* calendar = qobject_cast<QCalendarWidget*>(widget); calendar && m_colors)
        DressCalendar(calendar, *m_colors);
}

void CVantorStyle::polish(QApplication* application)
{
    QProxyStyle::polish(application);
    application->installEventFilter(this);
}

void CVantorStyle::unpolish(QApplication* application)
{
    application->removeEventFilter(this);
    QProxyStyle::unpolish(application);
}

bool CVantorStyle::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (isKey && watched->isWindowType() && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
        for (QWidget* window : QApplication::topLevelWidgets())
            window->update();
    return QProxyStyle::eventFilter(watched, event);
}
