#include "VantorGUIToolkit/Widgets/Dress.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Restyle.h"

#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QToolButton>
#include <QVariant>

namespace VantorGUIToolkit {

namespace {

QString KindName(ButtonKind kind)
{
    switch (kind) {
    case ButtonKind::Primary:
        return QStringLiteral("primary");
    case ButtonKind::Danger:
        return QStringLiteral("danger");
    case ButtonKind::Quiet:
        return QStringLiteral("quiet");
    case ButtonKind::Normal:
        break;
    }
    return {};
}

QString RoleName(TextRole role)
{
    switch (role) {
    case TextRole::Title:
        return QStringLiteral("title");
    case TextRole::Heading:
        return QStringLiteral("heading");
    case TextRole::Hint:
        return QStringLiteral("hint");
    case TextRole::Error:
        return QStringLiteral("error");
    case TextRole::Badge:
        return QStringLiteral("badge");
    case TextRole::Plain:
        break;
    }
    return {};
}

QString SurfaceName(Surface surface)
{
    switch (surface) {
    case Surface::Page:
        return QStringLiteral("page");
    case Surface::Card:
        return QStringLiteral("card");
    case Surface::Bar:
        return QStringLiteral("bar");
    case Surface::Sunken:
        return QStringLiteral("sunken");
    case Surface::Overlay:
        break;
    }
    return QStringLiteral("overlay");
}

/// Sets a property that style sheets select by; an empty value stands for none.
void Dress(QWidget* widget, const char* property, const QString& value)
{
    if (widget->property(property).toString() == value)
        return;
    widget->setProperty(property, value.isEmpty() ? QVariant() : QVariant(value));
    repolish(widget);
}

} // namespace

QString toneName(Tone tone)
{
    switch (tone) {
    case Tone::Ok:
        return QStringLiteral("ok");
    case Tone::Warn:
        return QStringLiteral("warn");
    case Tone::Error:
        return QStringLiteral("error");
    case Tone::Info:
        return QStringLiteral("info");
    case Tone::Idle:
        break;
    }
    return QStringLiteral("idle");
}

QString toneIconName(Tone tone)
{
    switch (tone) {
    case Tone::Ok:
        return QStringLiteral("ok");
    case Tone::Warn:
        return QStringLiteral("warning");
    case Tone::Error:
        return QStringLiteral("error");
    case Tone::Info:
        return QStringLiteral("info");
    case Tone::Idle:
        break;
    }
    return QStringLiteral("minus");
}

void setTone(QWidget* widget, Tone tone)
{
    Dress(widget, "tone", toneName(tone));
}

void setSurface(QWidget* widget, Surface surface)
{
    widget->setAttribute(Qt::WA_StyledBackground);
    Dress(widget, "surface", SurfaceName(surface));
}

void setButtonKind(QPushButton* button, ButtonKind kind)
{
    Dress(button, "kind", KindName(kind));
}

QLabel* makeLabel(const QString& text, TextRole role, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(role == TextRole::Title || role == TextRole::Hint || role == TextRole::Error);
    Dress(label, "role", RoleName(role));
    return label;
}

QPushButton* makeButton(const QString& text, ButtonKind kind, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setAutoDefault(false);
    setButtonKind(button, kind);
    return button;
}

QToolButton* makeIconButton(const QString& iconName, const QString& name, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setIcon(icon(iconName));
    button->setIconSize({Grid::Large, Grid::Large});
    button->setAutoRaise(true);
    button->setToolTip(name);
    button->setAccessibleName(name);
    return button;
}

QLabel* makeIconLabel(const QString& iconName, int size, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setPixmap(icon(iconName).pixmap(size, size));
    label->setFixedSize(size, size);
    return label;
}

void setReadingMargins(QLayout* layout, const QWidget* widget, int start, int top, int end, int bottom)
{
    const bool mirrored = widget->isRightToLeft();
    layout->setContentsMargins(mirrored ? end : start, top, mirrored ? start : end, bottom);
}

QString breakable(const QString& text)
{
    constexpr int longestWord = 24;
    QString result;
    int run = 0;
    for (int at = 0; at < text.size(); ++at) {
        const QChar letter = text.at(at);
        result += letter;
        run = letter.isSpace() ? 0 : run + 1;
        const bool joins = letter.isHighSurrogate() || (at + 1 < text.size() && text.at(at + 1).isMark());
        if (run >= longestWord && !joins) {
            result += QChar(0x200B); // zero-width space
            run = 0;
        }
    }
    return result;
}

} // namespace VantorGUIToolkit
