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

// The words of each enumeration in its order; an empty one stands for no property.
constexpr const char* kKinds[] = {"", "primary", "danger", "quiet"};
constexpr const char* kRoles[] = {"", "title", "heading", "hint", "error", "badge"};
constexpr const char* kSurfaces[] = {"page", "card", "bar", "sunken", "overlay"};
constexpr const char* kTones[] = {"ok", "warn", "error", "info", "idle"};
constexpr const char* kToneIcons[] = {"ok", "warning", "error", "info", "minus"};

template<typename Value, std::size_t count>
QString WordOf(const char* const (&words)[count], Value value)
{
    return QString::fromLatin1(words[static_cast<std::size_t>(value)]);
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
    return WordOf(kTones, tone);
}

QString toneIconName(Tone tone)
{
    return WordOf(kToneIcons, tone);
}

void setTone(QWidget* widget, Tone tone)
{
    Dress(widget, "tone", toneName(tone));
}

void setSurface(QWidget* widget, Surface surface)
{
    widget->setAttribute(Qt::WA_StyledBackground);
    Dress(widget, "surface", WordOf(kSurfaces, surface));
}

void setButtonKind(QPushButton* button, ButtonKind kind)
{
    Dress(button, "kind", WordOf(kKinds, kind));
}

QLabel* makeLabel(const QString& text, TextRole role, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(role == TextRole::Title || role == TextRole::Hint || role == TextRole::Error);
    Dress(label, "role", WordOf(kRoles, role));
    return label;
}

void alignToReading(QLabel* label)
{
    const Qt::Alignment start = label->layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    label->setAlignment(start | Qt::AlignAbsolute | Qt::AlignVCenter);
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
