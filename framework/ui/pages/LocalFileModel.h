#pragma once

#include "framework/ui/parts/LocalFileSource.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QSortFilterProxyModel>

namespace framework {

class CResources;
class CThumbnails;

/// Records of the catalogue for a table: texts are made as they are shown, sorting goes by the values behind
/// them (Qt::UserRole). GUI thread.
class CLocalFileModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Camera, Group, Time, Length, Size, Path, ColumnCount };

    explicit CLocalFileModel(QObject* parent);

    void SetFiles(ILocalFileSource::Files files);
    /// Cameras and groups are shown by the names that they have there, unknown ones by their identifiers.
    void SetNames(const CResources& resources);
    /// The chosen formats of dates and times have changed.
    void ShowTimesAnew();

    const protocol::LocalFileQueryItem& File(int row) const { return (*m_files)[std::size_t(row)]; }
    /// The row of a record; -1 for none.
    int RowOf(const std::string& fileGuid) const;
    /// The sum of the sizes.
    qint64 KiB() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    /// Something that is shown looks different now.
    void PictureLoaded();

private:
    QString TextOf(const protocol::LocalFileQueryItem& file, int column) const;
    QPixmap PictureOf(const protocol::LocalFileQueryItem& file) const;
    QVariant ValueOf(const protocol::LocalFileQueryItem& file, int column) const;

    ILocalFileSource::Files m_files;
    CThumbnails* m_thumbnails;
    QHash<QString, QString> m_names; ///< of cameras and groups, by identifier
};

/// Sorts the records, and shows those with a text in their name, camera, group or path.
class CLocalFileFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CLocalFileFilter(CLocalFileModel* model);

    /// Empty: all records are shown.
    void SetText(const QString& text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    QString m_text;
};

/// A path that keeps its order among words that are read from right to left.
QString PathText(const QString& path);
/// A size as people read it: "312 KiB", "1.4 MiB".
QString KiBText(qint64 kib);
/// A length of time: "0:07", "1:02:03".
QString LengthText(qint64 seconds);

} // namespace framework
