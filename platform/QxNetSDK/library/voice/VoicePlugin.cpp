#include "QxNetSDK/library/voice/VoicePlugin.h"

#define BOOST_DLL_USE_STD_FS
#include <boost/dll/runtime_symbol_info.hpp>
#include <boost/dll/shared_library.hpp>

#include <filesystem>
#include <mutex>

namespace sdk::plugin {

namespace {

using Library = boost::dll::shared_library;

std::filesystem::path Place()
{
    const std::filesystem::path here = boost::dll::this_line_location();
    return Library::decorate(here.parent_path() / ".." / "plugins" / "voice" / "QxNetVoice");
}

/// An exported function; null without the plug-in, which is then looked for again at the next call.
template<typename Function>
Function* Find(const char* name)
{
    static std::mutex mutex;
    static Library& library = *new Library;
    const std::lock_guard lock(mutex);
    std::error_code error;
    if (!library.is_loaded())
        library.load(Place(), error);
    return !error && library.has(name) ? &library.get<Function>(name) : nullptr;
}

} // namespace

std::unique_ptr<IVoiceInput> OpenInput(std::int32_t& error)
{
    error = 0;
    auto* open = Find<OpenVoiceInput>(kOpenVoiceInput);
    return std::unique_ptr<IVoiceInput>(open ? open(&error) : nullptr);
}

std::unique_ptr<IVoiceEncoder> MakeEncoder(const VoiceFormat& format)
{
    auto* make = Find<MakeVoiceEncoder>(kMakeVoiceEncoder);
    return std::unique_ptr<IVoiceEncoder>(make ? make(&format) : nullptr);
}

} // namespace sdk::plugin
