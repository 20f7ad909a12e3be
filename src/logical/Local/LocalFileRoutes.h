#pragma once

#include "VideoInterfaces/ILocalFile.h"
#include "logical/Communication/RouteTable.h"

#include <functional>

namespace video {

/// The catalogue that the routes work on, asked for by each call on its worker; it may wait until the
/// catalogue is ready.
using LocalFileSource = std::function<vantor::ILocalFile&()>;

/// Puts in the routes of pictures and clips:
///
/// - "locaFile" and "videoFileNotify", of one meaning: a body with fields of a file, as "localFileNotify" or
///   as "localFile", is catalogued and answered with "fileNotifyResult"; a "localFile" with type and guid
///   alone is looked up and answered with "localFileResult", whose path is empty when there is no such
///   record;
/// - "localFileQuery": the pictures or clips of a camera or group in a span of time; TooLongAnswer for more
///   than can be read or sent.
///
/// A file without its path (a clip's videoFilePath, a picture's picFilePath) could never be found or opened:
/// it has its line in the log and is not catalogued. That, and a failure of the database, is answered with an
/// empty guid. A notification is catalogued too and takes no answer. A body that holds none of this has its
/// line and no answer.
void ServeLocalFiles(CRouteTable& http, LocalFileSource files, AnswerCall answer);

} // namespace video
