#include "framework/ui/parts/Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <cstdio>

namespace framework {

bool CReport::Open(const QString& path)
{
    if (path == QLatin1String("-"))
        return m_file.open(stdout, QIODevice::WriteOnly);
    m_file.setFileName(path);
    return m_file.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

void CReport::Tell(const QString& event, QJsonObject fields)
{
    if (!m_file.isOpen())
        return;
    fields.insert(QStringLiteral("event"), event);
    m_file.write(QJsonDocument(fields).toJson(QJsonDocument::Compact) + '\n');
    m_file.flush();
}

QRect ScreenRect(const QWidget& widget, const QRect& part)
{
    const QRect local = part.isNull() ? widget.rect() : part;
    const double ratio = widget.devicePixelRatioF();
    const QPoint topLeft = widget.mapToGlobal(local.topLeft());
    return QRect((QPointF(topLeft) * ratio).toPoint(), (QSizeF(local.size()) * ratio).toSize());
}

QJsonArray ToJSON(const QRect& rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

} // namespace framework
