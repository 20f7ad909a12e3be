#include "QxNetSDK/voice/SoundInput.h"

#include <alsa/asoundlib.h>
#include <dlfcn.h>

namespace sdk {

namespace {

void IgnoreAlsa(const char*, int, const char*, int, const char*, ...) {}
void IgnoreJack(const char*) {}

/// PortAudio may have brought it; nothing here needs it.
void SilenceJack()
{
    void* jack = dlopen("libjack.so.0", RTLD_LAZY | RTLD_NOLOAD);
    if (!jack)
        return;
    using SetHandler = void (*)(void (*)(const char*));
    for (const char* name : {"jack_set_error_function", "jack_set_info_function"}) {
        if (const auto set = reinterpret_cast<SetHandler>(dlsym(jack, name)))
            set(IgnoreJack);
    }
    dlclose(jack);
}

} // namespace

void SilenceSoundLibraries()
{
    snd_lib_error_set_handler(IgnoreAlsa);
    SilenceJack();
}

} // namespace sdk
