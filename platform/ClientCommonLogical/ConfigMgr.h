#pragma once

#include "Base/Noncopyable.h"

#include <cstdint>
#include <mutex>
#include <string>

namespace clientcommon {

/// What the framework settles for all components when it starts them.
struct ConfigParams
{
    std::string skinType = "BlackRedSkin";
    std::int32_t language = 0;    ///< in the framework's numbering
    std::int32_t versionType = 0; ///< the product's edition, in the framework's numbering
    std::int32_t extra = 0;       ///< passed on as it is
};

/// The process's configuration. Any thread.
class CConfigMgr : Base::CNoncopyable
{
public:
    static CConfigMgr& Instance();

    /// Sets the configuration; a later call replaces it.
    void init(const ConfigParams& params);

    /// The configuration; defaults before init.
    ConfigParams params() const;

private:
    mutable std::mutex m_mutex;
    ConfigParams m_params;
};

} // namespace clientcommon
