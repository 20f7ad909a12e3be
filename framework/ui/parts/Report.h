#pragma once

#include <QFile>
#include <QJsonObject>
#include <QRect>
#include <QString>

class QWidget;

namespace framework {

/// Tells tests and integrators what happens, one JSON object a line. GUI thread.
class CReport
{
public:
    /// Without a file nothing is written; "-" is standard output. False when the file cannot be written.
    [[nodiscard]] bool Open(const QString& path);
    bool IsOpen() const { return m_file.isOpen(); }

    /// Writes {"event": event, ...fields} at once.
    void Tell(const QString& event, QJsonObject fields = {});

private:
    QFile m_file;
};

/// A part of a widget as a rectangle in pixels of the screen; the whole widget without a part.
QRect ScreenRect(const QWidget& widget, const QRect& part = {});

/// [x, y, width, height].
QJsonArray ToJSON(const QRect& rect);

} // namespace framework
