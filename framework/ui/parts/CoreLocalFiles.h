#pragma once

#include "framework/ui/parts/LocalFileSource.h"

#include <QObject>

namespace framework {

class CFrameworkCore;

/// The catalogue as the core serves it; brings the answers to the GUI thread.
class CCoreLocalFiles : public QObject, public ILocalFileSource
{
public:
    /// The core is stopped before this object goes.
    explicit CCoreLocalFiles(CFrameworkCore& core) : m_core(core) {}

    void Query(const protocol::LocalFileQuery& query, OnFiles onFiles) override;
    void Resolve(const protocol::LocalFile& file, OnPlace onPlace) override;
    ComponentState State() const override;

private:
    template<typename Task>
    void Post(Task task);

    CFrameworkCore& m_core;
};

} // namespace framework
