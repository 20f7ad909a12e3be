#pragma once

#include <QString>

class QLabel;
class QLayout;
class QPushButton;
class QToolButton;
class QWidget;

namespace VantorGUIToolkit {

/// The one grid of distances, in device-independent pixels.
namespace Grid {
constexpr int Tight = 4;
constexpr int Small = 8;
constexpr int Medium = 12;
constexpr int Large = 16;
constexpr int Wide = 24;
constexpr int Huge = 32;
} // namespace Grid

/// What a message or a badge says about its matter. Style sheets find it as the property "tone".
enum class Tone { Ok, Warn, Error, Info, Idle };

/// What pressing a button means. Style sheets find it as the property "kind".
enum class ButtonKind { Normal, Primary, Danger, Quiet };

/// What a text is on its page. Style sheets find it as the property "role".
enum class TextRole { Plain, Title, Heading, Hint, Error, Badge };

/// What lies behind widgets. Style sheets find it as the property "surface".
enum class Surface { Page, Card, Bar, Sunken, Overlay };

/// The word of a tone in style sheets ("ok"), and the name of the icon that goes with it.
QString toneName(Tone tone);
QString toneIconName(Tone tone);

/// Changes the tone of a widget that may be on screen already.
void setTone(QWidget* widget, Tone tone);
void setSurface(QWidget* widget, Surface surface);
void setButtonKind(QPushButton* button, ButtonKind kind);

/// A label of plain text (never markup, as names of devices come from outside). Titles, hints and errors
/// wrap.
QLabel* makeLabel(const QString& text, TextRole role, QWidget* parent);

/// Lets a label begin where the user's language is read from, also when its text is of another direction: a
/// name or an address in an Arabic window. The label has its direction already.
void alignToReading(QLabel* label);
QPushButton* makeButton(const QString& text, ButtonKind kind, QWidget* parent);

/// A flat button with an icon of the skin; name is its accessible name and tool tip.
QToolButton* makeIconButton(const QString& iconName, const QString& name, QWidget* parent);

/// A label that shows an icon of the skin, of size x size device-independent pixels.
QLabel* makeIconLabel(const QString& iconName, int size, QWidget* parent);

/// Margins by the direction of reading; those that Qt lets one set are not mirrored. The widget is the one
/// that the layout arranges.
void setReadingMargins(QLayout* layout, const QWidget* widget, int start, int top, int end, int bottom);

/// The text with places to break put into words that are longer than a line, such as paths and identifiers.
QString breakable(const QString& text);

} // namespace VantorGUIToolkit
