#pragma once

#include <QCache>
#include <QObject>
#include <QPixmap>
#include <QStringList>

#include <memory>

namespace framework {

/// Small pictures of picture files, read on another thread when they are first shown; the latest that was
/// asked for comes first, as it is what the user looks at. GUI thread.
class CThumbnails : public QObject
{
    Q_OBJECT

public:
    /// In device-independent pixels.
    static constexpr QSize kSize{64, 36};

    explicit CThumbnails(QObject* parent);
    ~CThumbnails() override;

    /// The picture, of kSize; until it is there, and for a file that cannot be shown, a tile with the icon.
    QPixmap Of(const QString& path, const QString& iconName);

signals:
    /// One more is there.
    void Loaded();

private:
    struct Reader;

    const QPixmap& Tile(const QString& iconName);
    void ReadNext();
    void Take(const QString& path, const QImage& picture);

    QCache<QString, QPixmap> m_pictures; ///< by path; null for a file that cannot be shown
    QHash<QString, QPixmap> m_tiles;     ///< by icon
    QStringList m_wanted;                ///< the latest last
    bool m_isReading = false;
    std::shared_ptr<Reader> m_reader;
};

} // namespace framework
