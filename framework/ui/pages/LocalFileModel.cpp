#include "framework/ui/pages/LocalFileModel.h"

#include "VantorGUIToolkit/Toolkit.h"
#include "framework/core/Resources.h"
#include "framework/ui/pages/Thumbnails.h"

#include <QDateTime>
#include <QPixmap>

#include <algorithm>
#include <numeric>

namespace framework {

using protocol::LocalFileQueryItem;
using protocol::LocalFileType;

namespace {

QString PathOf(const LocalFileQueryItem& file)
{
    return QString::fromStdString(file.type == LocalFileType::Video ? file.videoFilePath : file.picFilePath);
}

qint64 LengthOf(const LocalFileQueryItem& file)
{
    const bool isClip = file.type == LocalFileType::Video && file.timeEnd.count > file.timeBegin.count;
    return isClip ? file.timeEnd.count - file.timeBegin.count : 0;
}

} // namespace

QString PathText(const QString& path)
{
    constexpr QChar kLeftToRightMark(0x200e);
    return kLeftToRightMark + path;
}

QString KiBText(qint64 kib)
{
    if (kib <= 0)
        return CLocalFileModel::tr("under 1 KiB");
    constexpr int kDecimals = 1;
    return VantorGUIToolkit::toolkit().locale().formattedDataSize(kib * 1024, kib < 1024 ? 0 : kDecimals);
}

QString LengthText(qint64 seconds)
{
    const QLocale locale = VantorGUIToolkit::toolkit().locale();
    const auto two = [&](qint64 number) {
        const QString digits = locale.toString(number);
        return number < 10 ? locale.zeroDigit() + digits : digits;
    };
    const qint64 minutes = seconds / 60;
    const QString end = ':' + two(seconds % 60);
    return minutes < 60 ? locale.toString(minutes) + end
                        : locale.toString(minutes / 60) + ':' + two(minutes % 60) + end;
}

CLocalFileModel::CLocalFileModel(QObject* parent)
    : QAbstractTableModel(parent), m_files(std::make_shared<const std::vector<LocalFileQueryItem>>()),
      m_thumbnails(new CThumbnails(this))
{
    connect(m_thumbnails, &CThumbnails::Loaded, this, &CLocalFileModel::PictureLoaded);
}

void CLocalFileModel::SetFiles(ILocalFileSource::Files files)
{
    beginResetModel();
    m_files = std::move(files);
    endResetModel();
}

void CLocalFileModel::SetNames(const CResources& resources)
{
    m_names.clear();
    for (const auto& group : resources.Groups())
        m_names.insert(QString::fromStdString(group.guid), QString::fromStdString(group.name));
    for (const auto& channel : resources.Channels({}))
        m_names.insert(QString::fromStdString(channel.guid), QString::fromStdString(channel.name));
    if (rowCount() > 0)
        emit dataChanged(index(0, Camera), index(rowCount() - 1, Group));
}

void CLocalFileModel::ShowTimesAnew()
{
    if (rowCount() > 0)
        emit dataChanged(index(0, Time), index(rowCount() - 1, Time));
}

int CLocalFileModel::RowOf(const std::string& fileGuid) const
{
    const auto file = std::find_if(m_files->begin(), m_files->end(),
                                   [&](const auto& each) { return each.fileGuid == fileGuid; });
    return file == m_files->end() ? -1 : static_cast<int>(file - m_files->begin());
}

qint64 CLocalFileModel::KiB() const
{
    return std::accumulate(m_files->begin(), m_files->end(), qint64(0),
                           [](qint64 sum, const auto& file) { return sum + std::max(file.filSize, 0); });
}

int CLocalFileModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_files->size());
}

int CLocalFileModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString CLocalFileModel::TextOf(const LocalFileQueryItem& file, int column) const
{
    const auto named = [this](const std::string& guid) {
        const QString text = QString::fromStdString(guid);
        return m_names.value(text, text);
    };
    switch (column) {
    case Name:
        return QString::fromStdString(file.fileName);
    case Camera:
        return named(file.cameraGuid);
    case Group:
        return named(file.groupGuid);
    case Time:
        return VantorGUIToolkit::toolkit().dateTimeText(QDateTime::fromSecsSinceEpoch(file.timeOccur.count));
    case Length:
        return LengthText(LengthOf(file));
    case Size:
        return KiBText(file.filSize);
    default:
        return PathText(PathOf(file));
    }
}

QVariant CLocalFileModel::ValueOf(const LocalFileQueryItem& file, int column) const
{
    switch (column) {
    case Time:
        return qlonglong(file.timeOccur.count);
    case Length:
        return qlonglong(LengthOf(file));
    case Size:
        return file.filSize;
    default:
        return TextOf(file, column);
    }
}

QPixmap CLocalFileModel::PictureOf(const LocalFileQueryItem& file) const
{
    return m_thumbnails->Of(QString::fromStdString(file.picFilePath),
                            file.type == LocalFileType::Video ? "video" : "picture");
}

QVariant CLocalFileModel::data(const QModelIndex& index, int role) const
{
    const LocalFileQueryItem& file = File(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return TextOf(file, index.column());
    case Qt::UserRole:
        return ValueOf(file, index.column());
    case Qt::DecorationRole:
        return index.column() == Name ? QVariant(PictureOf(file)) : QVariant();
    default:
        return {};
    }
}

QVariant CLocalFileModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeading | Qt::AlignVCenter);
    const QString titles[] = {tr("Name"),   tr("Camera"), tr("Group"), tr("Time"),
                              tr("Length"), tr("Size"),   tr("Path")};
    return role == Qt::DisplayRole && section < ColumnCount ? QVariant(titles[section]) : QVariant();
}

CLocalFileFilter::CLocalFileFilter(CLocalFileModel* model) : QSortFilterProxyModel(model)
{
    setSourceModel(model);
    setSortRole(Qt::UserRole);
    setSortLocaleAware(true);
}

void CLocalFileFilter::SetText(const QString& text)
{
    m_text = text;
    invalidateFilter();
}

bool CLocalFileFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (m_text.isEmpty())
        return true;
    for (const int column :
         {CLocalFileModel::Name, CLocalFileModel::Camera, CLocalFileModel::Group, CLocalFileModel::Path})
        if (sourceModel()->index(row, column, parent).data().toString().contains(m_text, Qt::CaseInsensitive))
            return true;
    return false;
}

} // namespace framework
