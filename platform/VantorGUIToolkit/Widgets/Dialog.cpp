#include "VantorGUIToolkit/Widgets/Dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace VantorGUIToolkit {

CDialog::CDialog(const QString& title, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    setWindowTitle(title);
    setSurface(this, Surface::Card);
    setMinimumWidth(320);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(1, 1, 1, 1); // the frame that the style sheet draws
    outer->setSpacing(0);
    m_bar = MakeTitleBar(title);
    outer->addWidget(m_bar);
    m_content = new QVBoxLayout;
    m_content->setContentsMargins(Grid::Wide, Grid::Large, Grid::Wide, Grid::Large);
    m_content->setSpacing(Grid::Medium);
    outer->addLayout(m_content, 1);
    m_buttons = new QHBoxLayout;
    m_buttons->setContentsMargins(Grid::Wide, 0, Grid::Wide, Grid::Large);
    m_buttons->setSpacing(Grid::Small);
    m_buttons->addStretch(1);
    outer->addLayout(m_buttons);
}

QWidget* CDialog::MakeTitleBar(const QString& title)
{
    auto* bar = new QWidget(this);
    setSurface(bar, Surface::Bar);
    bar->setObjectName("dialogTitleBar");
    bar->installEventFilter(this);
    auto* row = new QHBoxLayout(bar);
    setReadingMargins(row, bar, Grid::Wide, Grid::Small, Grid::Small, Grid::Small);
    QLabel* label = makeLabel(title, TextRole::Heading, bar);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    row->addWidget(label, 1);
    QToolButton* close = makeIconButton("close", tr("Close"), bar);
    close->setFocusPolicy(Qt::NoFocus); // Escape does the same
    connect(close, &QToolButton::clicked, this, &QDialog::reject);
    row->addWidget(close);
    return bar;
}

QPushButton* CDialog::AddButton(const QString& text, ButtonKind kind)
{
    QPushButton* button = makeButton(text, kind, this);
    m_buttons->addWidget(button);
    if (kind == ButtonKind::Primary || (kind == ButtonKind::Danger && !m_primary)) {
        button->setDefault(true);
        m_primary = button;
    }
    return button;
}

QPushButton* CDialog::AddButton(const QString& text, ButtonKind kind, int result)
{
    QPushButton* button = AddButton(text, kind);
    connect(button, &QPushButton::clicked, this, [this, result] { done(result); });
    return button;
}

QWidget* CDialog::FirstInput() const
{
    for (QWidget* next = nextInFocusChain(); next && next != this; next = next->nextInFocusChain()) {
        const bool takesKeys = (next->focusPolicy() & Qt::TabFocus) && next->isEnabled();
        if (takesKeys && isAncestorOf(next) && next->isVisibleTo(this) && !qobject_cast<QPushButton*>(next))
            return next;
    }
    return m_primary;
}

void CDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (QWidget* first = focusWidget() ? nullptr : FirstInput())
        first->setFocus(Qt::TabFocusReason);
}

bool CDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_bar)
        DragWith(event);
    return QDialog::eventFilter(watched, event);
}

void CDialog::DragWith(QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        m_dragged = false;
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseMove)
        return;
    auto* mouse = static_cast<QMouseEvent*>(event);
    if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton) {
        m_grip = mouse->globalPos() - pos();
        m_dragged = true;
    } else if (m_dragged && (mouse->buttons() & Qt::LeftButton)) {
        move(mouse->globalPos() - m_grip);
    }
}

} // namespace VantorGUIToolkit
