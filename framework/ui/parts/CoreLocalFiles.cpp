#include "framework/ui/parts/CoreLocalFiles.h"

#include "framework/core/FrameworkCore.h"
#include "framework/ui/parts/DiskLook.h"

#include <QFileInfo>

namespace framework {

void CCoreLocalFiles::Query(const protocol::LocalFileQuery& query, OnFiles onFiles)
{
    m_core.QueryLocalFiles(query, [this, onFiles = std::move(onFiles)](const auto& answer) {
        const auto files =
            std::make_shared<const std::vector<protocol::LocalFileQueryItem>>(answer.value.files);
        QMetaObject::invokeMethod(
            this, [onFiles, outcome = answer.outcome, files] { onFiles(outcome, files); },
            Qt::QueuedConnection);
    });
}

void CCoreLocalFiles::Resolve(const protocol::LocalFile& file, OnPlace onPlace)
{
    m_core.ResolveLocalFile(file, [this, onPlace = std::move(onPlace)](const auto& answer) {
        const auto look = [outcome = answer.outcome, path = QString::fromStdString(answer.value.path)] {
            const QFileInfo info(path);
            return LocalFilePlace{outcome, path, info.isAbsolute() && info.isFile()};
        };
        LookAtDisk(this, look, onPlace);
    });
}

ComponentState CCoreLocalFiles::State() const
{
    return m_core.State();
}

} // namespace framework
