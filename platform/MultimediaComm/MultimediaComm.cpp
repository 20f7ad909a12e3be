#include "MultimediaComm/MultimediaComm.h"

#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "MultimediaComm/HardwareProbe.h"

#define BOOST_DLL_USE_STD_FS
#include <boost/dll/shared_library.hpp>
#include <boost/dll/shared_library_load_mode.hpp>

#include <filesystem>
#include <mutex>
#include <optional>
#include <system_error>

namespace multimediacomm {

namespace {

using Library = boost::dll::shared_library;

struct Probed
{
    std::mutex mutex;
    bool allowed = false;
    std::optional<std::vector<HardwareDecoder>> decoders;
    Library library; ///< stays loaded: drivers that it opened may have threads of their own
};

/// Never destroyed: the worker that probes may outlive main.
Probed& State()
{
    static Probed* const state = new Probed();
    return *state;
}

std::filesystem::path LibraryPath()
{
    const std::filesystem::path bare = std::filesystem::path(Base::FileUtil::GetCurExeDir()) / ".." /
                                       "plugins" / "multimedia" / "MultimediaProbe";
    return Library::decorate(bare);
}

bool Load(Library& library)
{
    std::error_code error;
    if (!library.is_loaded())
        library.load(LibraryPath(), error);
    if (!error && library.has(kProbeHardware))
        return true;
    BASE_ERROR("Hardware decoding: the library [%s] cannot be loaded: %s.", LibraryPath().string().c_str(),
               error.message().c_str());
    return false;
}

std::string Summary(const std::vector<HardwareDecoder>& decoders)
{
    std::string usable;
    std::string missing;
    for (const HardwareDecoder& decoder : decoders) {
        std::string& list = decoder.usable ? usable : missing;
        list += (list.empty() ? "" : ", ") + decoder.name;
    }
    return "usable: " + (usable.empty() ? "none" : usable) +
           "; no device: " + (missing.empty() ? "none" : missing);
}

std::vector<HardwareDecoder> Probe(Library& library)
{
    std::vector<HardwareDecoder> decoders;
    if (!Load(library))
        return decoders;
    library.get<ProbeHardware>(kProbeHardware)(
        [](void* found, const char* name, bool usable) {
            static_cast<std::vector<HardwareDecoder>*>(found)->push_back({name, usable});
        },
        &decoders);
    BASE_INFO("Hardware decoding, %s.", Summary(decoders).c_str());
    return decoders;
}

} // namespace

bool Init()
{
    std::lock_guard<std::mutex> lock(State().mutex);
    std::error_code error;
    State().allowed = std::filesystem::is_regular_file(LibraryPath(), error);
    if (!State().allowed)
        BASE_ERROR("Hardware decoding: there is no library [%s].", LibraryPath().string().c_str());
    return State().allowed;
}

void UnInit()
{
    std::lock_guard<std::mutex> lock(State().mutex);
    State().allowed = false;
    State().decoders.reset();
}

std::vector<HardwareDecoder> HardwareDecoders()
{
    std::lock_guard<std::mutex> lock(State().mutex);
    if (!State().allowed)
        return {};
    if (!State().decoders)
        State().decoders = Probe(State().library);
    return *State().decoders;
}

} // namespace multimediacomm
