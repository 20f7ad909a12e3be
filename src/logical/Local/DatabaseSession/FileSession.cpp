#include "logical/Local/DatabaseSession/FileSession.h"

#include <unordered_set>

namespace video {
namespace {

constexpr std::size_t kCamerasOfPart = 500;

} // namespace

std::string CameraClause(const std::vector<std::string>& cameraIds)
{
    std::string clause = "(1 != 1";
    for (const std::string& id : cameraIds)
        clause += " OR CameraID =  '" + Sqlite3DO::Quoted(id) + "'";
    return clause + ")";
}

std::string SpanClause(vantor::TimeValue begin, vantor::TimeValue end)
{
    using Base::TimeUtil::TimeT2StrDatetime;
    return " AND OccurTime >= '" + TimeT2StrDatetime(begin) + "' " + " AND OccurTime <= '" +
           TimeT2StrDatetime(end) + "' ";
}

std::vector<std::vector<std::string>> CameraParts(const std::vector<std::string>& cameraIds)
{
    std::vector<std::vector<std::string>> parts(1);
    std::unordered_set<std::string> known;
    for (const std::string& id : cameraIds) {
        if (!known.insert(id).second)
            continue;
        if (parts.back().size() == kCamerasOfPart)
            parts.emplace_back();
        parts.back().push_back(id);
    }
    return parts;
}

} // namespace video
