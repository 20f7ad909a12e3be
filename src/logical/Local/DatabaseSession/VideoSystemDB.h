#pragma once

#include "logical/Local/DatabaseSession/BaseDBConn.h"

namespace video {

/// The one connection to the database "VideoSystem", on which all table sessions execute.
class VideoSystemDB
{
public:
    /// Opens the database on first use; any thread. The object lives as long as the process. The file is
    /// closed at exit, unless a worker is still in it.
    static CBaseDBConn& Instance();
};

} // namespace video
