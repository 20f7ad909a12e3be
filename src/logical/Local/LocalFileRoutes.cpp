#include "logical/Local/LocalFileRoutes.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "LPC_Wire/Limits.h"
#include "Protocol/JSONStruct/HTTP/LocalFileJSONStruct.h"
#include "logical/Communication/LPCNames.h"
#include "logical/Communication/RouteHandler.h"

#include <cstring>

namespace video {
namespace {

using protocol::LocalFileCondition;
using protocol::LocalFileNotify;
using protocol::LocalFileQueryItem;
using protocol::LocalFileType;
using vantor::ILocalFile;
using vantor::PictureFileRecord;
using vantor::VideoFileRecord;

std::string Store(ILocalFile& files, const LocalFileNotify& file)
{
    const bool isVideo = file.type == LocalFileType::Video;
    if ((isVideo ? file.videoFilePath : file.picFilePath).empty()) {
        BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "A file without its path is not catalogued, key: [%s].",
                     isVideo ? "videoFilePath" : "picFilePath");
        return std::string();
    }
    if (!isVideo)
        return files.AddPicture(file.cameraGuid, file.groupGuid, file.fileName, file.picFilePath,
                                file.timeOccur.count);
    return files.AddVideo(file.cameraGuid, file.groupGuid, file.fileName, file.videoFilePath,
                          file.picFilePath, file.timeOccur.count, file.timeBegin.count, file.timeEnd.count);
}

std::string PathOf(ILocalFile& files, const protocol::LocalFile& file)
{
    return file.type == LocalFileType::Video ? files.GetVideoById(file.guid).FilePath
                                             : files.GetPictureById(file.guid).FilePath;
}

template<typename Record>
LocalFileQueryItem CommonItemOf(const Record& record)
{
    LocalFileQueryItem item;
    item.fileGuid = record.ID;
    item.cameraGuid = record.CameraID;
    item.groupGuid = record.GroupID;
    item.fileName = record.FileName;
    item.timeOccur.count = record.OccurTime;
    item.filSize = record.FileSize;
    return item;
}

LocalFileQueryItem ItemOf(const PictureFileRecord& record)
{
    LocalFileQueryItem item = CommonItemOf(record);
    item.type = LocalFileType::Picture;
    item.picFilePath = record.FilePath;
    return item;
}

LocalFileQueryItem ItemOf(const VideoFileRecord& record)
{
    LocalFileQueryItem item = CommonItemOf(record);
    item.type = LocalFileType::Video;
    item.videoFilePath = record.FilePath;
    item.picFilePath = record.PicturePath;
    item.timeBegin.count = record.BeginTime;
    item.timeEnd.count = record.EndTime;
    return item;
}

/// The body of a "localFileQueryResult", written record by record: the tree of a long one would take ten
/// times its memory. Ends with the first record that makes it too long to be sent.
template<typename Record>
std::string ResultBody(const std::vector<Record>& records)
{
    using protocol::json::Kind;
    std::string body = std::string("{\"") + protocol::LocalFileQueryResult::kKey + "\":[";
    for (const Record& record : records) {
        if (&record != records.data())
            body += ',';
        body += protocol::json::PrintText(Kind<LocalFileQueryItem>::Write(ItemOf(record)).get());
        if (body.size() > lpc::kMaxBody)
            break;
    }
    return body + "]}";
}

/// ofCamera and ofGroup are the catalogue's queries for one kind of record.
template<typename Record, typename Query>
RouteAnswer FilesOf(ILocalFile& files, const protocol::LocalFileQuery& query, Query ofCamera, Query ofGroup)
{
    std::vector<Record> records;
    const Query ask = query.contition == LocalFileCondition::Group ? ofGroup : ofCamera;
    if (!(files.*ask)(query.guid, query.timeBegin.count, query.timeEnd.count, records))
        return TooLongAnswer();
    return {ResultBody(records)};
}

RouteAnswer FilesOf(ILocalFile& files, const protocol::LocalFileQuery& query)
{
    if (query.type == LocalFileType::Video)
        return FilesOf<VideoFileRecord>(files, query, &ILocalFile::QueryVideosOfCamera,
                                        &ILocalFile::QueryVideosOfGroup);
    return FilesOf<PictureFileRecord>(files, query, &ILocalFile::QueryPicturesOfCamera,
                                      &ILocalFile::QueryPicturesOfGroup);
}

/// Whether the item holds more of a file than what a look-up names.
bool HasFileFields(const cJSON* item)
{
    bool has = false;
    protocol::ForEachField<LocalFileNotify>([&](const auto& field) {
        has = has || (std::strcmp(field.key, "type") != 0 && protocol::json::Member(item, field.key));
    });
    return has;
}

/// The answer to a body of "locaFile" or "videoFileNotify"; nothing for one that holds neither form. key is
/// the form that the route is named for.
std::optional<std::string> StoreOrResolve(const LocalFileSource& files, const char* key,
                                          const std::string& body)
{
    using protocol::json::Member;
    const protocol::json::Tree root = protocol::ParseBody(body, PROTOCOL_PLACE);
    if (!root)
        return std::nullopt;
    const cJSON* const notify = Member(root.get(), LocalFileNotify::kKey);
    const cJSON* const item = notify ? notify : Member(root.get(), protocol::LocalFile::kKey);
    if (!item) {
        protocol::LogMissingItem(
            key, [&] { return body; }, PROTOCOL_PLACE);
        return std::nullopt;
    }
    if (notify || HasFileFields(item)) {
        LocalFileNotify file;
        if (!file.FromJSON(item))
            return std::nullopt;
        protocol::FileNotifyResult result;
        result.guid = Store(files(), file);
        return protocol::WriteJSONStr(result);
    }
    protocol::LocalFile file;
    if (!file.FromJSON(item))
        return std::nullopt;
    protocol::LocalFileResult result;
    result.path = PathOf(files(), file);
    return protocol::WriteJSONStr(result);
}

} // namespace

void ServeLocalFiles(CRouteTable& http, LocalFileSource files, AnswerCall answer)
{
    const auto storeOrResolve = [&](const char* key) {
        return [files, answer, key](const lpcclient::LPCCallBackData& call) {
            if (const auto body = StoreOrResolve(files, key, call.body))
                answer(call, {*body});
        };
    };
    http.Bind(route::kLocalFile, storeOrResolve(protocol::LocalFile::kKey));
    http.Bind(route::kVideoFileNotify, storeOrResolve(LocalFileNotify::kKey));
    http.Bind(route::kLocalFileQuery,
              AnswerTo<protocol::LocalFileQuery>(answer, [files](const protocol::LocalFileQuery& query) {
                  return FilesOf(files(), query);
              }));
}

} // namespace video
