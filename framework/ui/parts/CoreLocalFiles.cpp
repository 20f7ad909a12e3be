#include "framework/ui/parts/CoreLocalFiles.h"

#include "framework/core/FrameworkCore.h"

#include <QFileInfo>

namespace framework {

template<typename Task>
void CCoreLocalFiles::Post(Task task)
{
    QMetaObject::invokeMethod(this, std::move(task), Qt::QueuedConnection);
}

void CCoreLocalFiles::Query(const protocol::LocalFileQuery& query, OnFiles onFiles)
{
    m_core.QueryLocalFiles(query, [this, onFiles = std::move(onFiles)](const auto& answer) {
        const auto files =
            std::make_shared<const std::vector<protocol::LocalFileQueryItem>>(answer.value.files);
        Post([onFiles, outcome = answer.outcome, files] { onFiles(outcome, files); });
    });
}

// The disk is looked at here, on the core's thread: it may be a slow or lost one.
void CCoreLocalFiles::Resolve(const protocol::LocalFile& file, OnPlace onPlace)
{
    m_core.ResolveLocalFile(file, [this, onPlace = std::move(onPlace)](const auto& answer) {
        LocalFilePlace place;
        place.outcome = answer.outcome;
        place.path = QString::fromStdString(answer.value.path);
        place.exists = !place.path.isEmpty() && QFileInfo::exists(place.path);
        Post([onPlace, place] { onPlace(place); });
    });
}

ComponentState CCoreLocalFiles::State() const
{
    return m_core.State();
}

} // namespace framework
