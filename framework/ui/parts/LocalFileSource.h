#pragma once

#include "Protocol/JSONStruct/HTTP/LocalFileJSONStruct.h"
#include "framework/core/ComponentAnswer.h"
#include "framework/core/FrameworkEvents.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace framework {

/// Where a record's file lies.
struct LocalFilePlace
{
    AskOutcome outcome = AskOutcome::NotThere;
    QString path; ///< empty: there is no such record
    bool exists = false;
};

/// The component's catalogue of pictures and clips as a page sees it. GUI thread; answers arrive there too,
/// later, and none after the end.
class ILocalFileSource
{
public:
    virtual ~ILocalFileSource() = default;

    using Files = std::shared_ptr<const std::vector<protocol::LocalFileQueryItem>>;
    /// files is never null.
    using OnFiles = std::function<void(AskOutcome outcome, const Files& files)>;
    using OnPlace = std::function<void(const LocalFilePlace& place)>;

    virtual void Query(const protocol::LocalFileQuery& query, OnFiles onFiles) = 0;
    virtual void Resolve(const protocol::LocalFile& file, OnPlace onPlace) = 0;
    virtual ComponentState State() const = 0;
};

} // namespace framework
