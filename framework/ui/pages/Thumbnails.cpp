#include "framework/ui/pages/Thumbnails.h"

#include "VantorGUIToolkit/Icons.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QThreadPool>

#include <mutex>

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

/// Fills the size, cutting what sticks out. Null for what is no picture, or one of absurd size.
QImage Read(const QString& path, const QSize& size)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize whole = reader.size();
    if (whole.isEmpty() || qint64(whole.width()) * whole.height() > kMostPixels)
        return {};
    reader.setScaledSize(whole.scaled(size, Qt::KeepAspectRatioByExpanding));
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

/// What the reading thread knows of the thumbnails, which may be gone before it has read.
struct CThumbnails::Reader
{
    std::mutex mutex;
    CThumbnails* owner;

    void Tell(const QString& path, const QImage& picture)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (owner)
            QMetaObject::invokeMethod(
                owner, [owner = owner, path, picture] { owner->Take(path, picture); }, Qt::QueuedConnection);
    }
};

CThumbnails::CThumbnails(QObject* parent)
    : QObject(parent), m_pictures(kMostKept), m_reader(std::make_shared<Reader>())
{
    m_reader->owner = this;
}

CThumbnails::~CThumbnails()
{
    const std::lock_guard<std::mutex> lock(m_reader->mutex);
    m_reader->owner = nullptr;
}

QPixmap CThumbnails::Of(const QString& path, const QString& iconName)
{
    if (const QPixmap* picture = m_pictures.object(path))
        return picture->isNull() ? Tile(iconName) : *picture;
    if (!path.isEmpty()) {
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
    if (m_isReading || m_wanted.isEmpty())
        return;
    m_isReading = true;
    const QString path = m_wanted.takeLast();
    QThreadPool::globalInstance()->start(
        [path, size = InPixels(), reader = m_reader] { reader->Tell(path, Read(path, size)); });
}

void CThumbnails::Take(const QString& path, const QImage& picture)
{
    m_isReading = false;
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
