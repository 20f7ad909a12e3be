#include "framework/ui/pages/Thumbnails.h"

#include "VantorGUIToolkit/Icons.h"
#include "framework/ui/parts/DiskLook.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPalette>

namespace framework {

namespace {

constexpr int kMostKept = 1000;
constexpr int kMostWanted = 64; ///< more than a screen shows
constexpr int kIconSize = 20;
constexpr int kRound = 4;
constexpr qint64 kMostPixels = 64 * 1024 * 1024; ///< of a file; decoding takes four bytes each

QSize InPixels()
{
    return CThumbnails::kSize * qApp->devicePixelRatio();
}

/// Of what cameras write. Qt has readers for more; a vector graphic is a program of a kind.
bool IsPhotograph(const QByteArray& format)
{
    return format == "jpeg" || format == "png" || format == "bmp";
}

bool IsBounded(const QSize& size)
{
    return !size.isEmpty() && qint64(size.width()) * size.height() <= kMostPixels;
}

/// Fills the size, cutting what sticks out. Null for what is no picture, or one of absurd size or shape.
QImage Read(const QString& path, const QSize& size)
{
    if (!QFileInfo(path).isFile()) // opening a pipe would wait for a writer
        return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize whole = reader.size();
    if (!IsPhotograph(reader.format()) || !IsBounded(whole))
        return {};
    const bool isTurned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    const QSize scaled = whole.scaled(isTurned ? size.transposed() : size, Qt::KeepAspectRatioByExpanding);
    if (!IsBounded(scaled))
        return {};
    reader.setScaledSize(scaled);
    const QImage picture = reader.read();
    const QRect middle(QPoint((picture.width() - size.width()) / 2, (picture.height() - size.height()) / 2),
                       size);
    return picture.isNull() ? picture : picture.copy(middle);
}

/// Draws with round corners into a pixmap of the size.
template<typename Draw>
QPixmap Rounded(Draw draw)
{
    QPixmap pixmap(InPixels());
    pixmap.setDevicePixelRatio(qApp->devicePixelRatio());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    draw(painter, QRect(QPoint(), CThumbnails::kSize));
    return pixmap;
}

} // namespace

CThumbnails::CThumbnails(QObject* parent) : QObject(parent), m_pictures(kMostKept) {}

QPixmap CThumbnails::Of(const QString& path, const QString& iconName)
{
    if (const QPixmap* picture = m_pictures.object(path))
        return picture->isNull() ? Tile(iconName) : *picture;
    if (!path.isEmpty() && path != m_reading) {
        m_wanted.removeOne(path);
        m_wanted.append(path);
        if (m_wanted.size() > kMostWanted)
            m_wanted.removeFirst();
        ReadNext();
    }
    return Tile(iconName);
}

const QPixmap& CThumbnails::Tile(const QString& iconName)
{
    QPixmap& tile = m_tiles[iconName];
    if (tile.isNull())
        tile = Rounded([&](QPainter& painter, const QRect& area) {
            painter.setBrush(QGuiApplication::palette().color(QPalette::Button));
            painter.drawRoundedRect(area, kRound, kRound);
            QRect place(0, 0, kIconSize, kIconSize);
            place.moveCenter(area.center());
            VantorGUIToolkit::icon(iconName).paint(&painter, place);
        });
    return tile;
}

void CThumbnails::ReadNext()
{
    if (!m_reading.isEmpty() || m_wanted.isEmpty())
        return;
    m_reading = m_wanted.takeLast();
    const auto read = [path = m_reading, size = InPixels()] { return Read(path, size); };
    LookAtDisk(this, read, [this, path = m_reading](const QImage& picture) { Take(path, picture); });
}

void CThumbnails::RetryFailed()
{
    for (const QString& path : m_pictures.keys())
        if (m_pictures.object(path)->isNull())
            m_pictures.remove(path);
}

void CThumbnails::Take(const QString& path, const QImage& picture)
{
    m_reading.clear();
    auto* pixmap = new QPixmap;
    if (!picture.isNull())
        *pixmap = Rounded([&](QPainter& painter, const QRect& area) {
            QBrush brush(picture);
            brush.setTransform(QTransform::fromScale(double(area.width()) / picture.width(),
                                                     double(area.height()) / picture.height()));
            painter.setBrush(brush);
            painter.drawRoundedRect(area, kRound, kRound);
        });
    m_pictures.insert(path, pixmap);
    ReadNext();
    emit Loaded();
}

} // namespace framework
